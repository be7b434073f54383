// Signalling a process and waiting for its end without ever reaching another
// process that took its number over after it ended.
#ifndef DW_PLATFORM_PROCESS_STOP_H
#define DW_PLATFORM_PROCESS_STOP_H

#include <sys/types.h>

#include <string>

#include "process_identity.h"

// One process, held from Open until the object goes. Where the system can
// pin a process (Linux: a pidfd, macOS: a kqueue watching it), its exit wakes
// WaitForExit at once and, on Linux, signals reach that process only. Where it
// cannot (an old kernel, a sandbox refusing the calls), the number is used:
// its identity is checked again before every signal and the exit is probed at
// short intervals.
class HeldProcess {
public:
    HeldProcess() = default;
    ~HeldProcess();
    HeldProcess(const HeldProcess&) = delete;
    HeldProcess& operator=(const HeldProcess&) = delete;

    // Takes hold of pid first, then asks whether it runs exe_path
    // (MatchProcessExecutable). Only on PROCESS_MATCHES is anything held.
    ProcessMatch Open(pid_t pid, const char* exe_path);
    // 0, or the errno of the refusal; ESRCH when the process has ended or
    // nothing is held. Never reaches a process id that is not positive.
    int Signal(int sig);
    // True as soon as the process has ended (a zombie has), false when it
    // still runs after timeout_ms or nothing is held.
    bool WaitForExit(int timeout_ms);
    // Whether the system pins the process (false: the number is used).
    bool Pinned() const { return fd_ >= 0; }

private:
    void Release();
    // Per system: a handle that pins pid, or -1 (errno ESRCH when pid has
    // ended, anything else when the system refuses).
    static int Pin(pid_t pid);
    // Per system, through the pin: what Signal and WaitForExit do.
    int SignalPinned(int sig);
    bool WaitPinned(int timeout_ms);

    pid_t pid_ = 0;
    int fd_ = -1;
    // Once seen, the end is kept: the kqueue reports it only once, and a
    // number that ended is never signalled again.
    bool ended_ = false;
    std::string exe_;
};

// The fallback wait: true once pid has ended or no longer runs exe_path,
// probed at intervals growing from a few milliseconds; false after timeout_ms.
bool ProbeForExit(pid_t pid, const char* exe_path, int timeout_ms);

// The fallback signal: kill(pid, sig) if pid still runs exe_path; 0 or the
// errno, ESRCH when it does not (or pid is not positive).
int SignalIfRunning(pid_t pid, const char* exe_path, int sig);

#endif
