// What holding a process means on every system; the pin itself (a pidfd, a
// kqueue) is in the file of each. Where there is no pin, the number, checked
// again each time, is the only handle.
#include "process_stop.h"

#include <signal.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>

HeldProcess::~HeldProcess()
{
    Release();
}

void HeldProcess::Release()
{
    if (fd_ >= 0)
        close(fd_);
    fd_ = -1;
    pid_ = 0;
    ended_ = false;
    exe_.clear();
}

ProcessMatch HeldProcess::Open(pid_t pid, const char* exe_path)
{
    Release();
    if (pid <= 0)
        return PROCESS_MISSING;
    // Pinned before the identity check, so that what was checked is what
    // gets signalled: had the number changed hands in between, the pin names
    // the ended process.
    const int fd = Pin(pid);
    if (fd < 0 && errno == ESRCH)
        return PROCESS_MISSING;
    // Any other refusal (an old kernel, a sandbox) leaves the number alone.
    const ProcessMatch match = MatchProcessExecutable(pid, exe_path);
    if (match != PROCESS_MATCHES) {
        if (fd >= 0)
            close(fd);
        return match;
    }
    pid_ = pid;
    fd_ = fd;
    exe_ = exe_path;
    return match;
}

int HeldProcess::Signal(int sig)
{
    if (pid_ <= 0 || WaitForExit(0))
        return ESRCH;
    if (fd_ < 0)
        return SignalIfRunning(pid_, exe_.c_str(), sig);
    return SignalPinned(sig);
}

bool HeldProcess::WaitForExit(int timeout_ms)
{
    if (pid_ <= 0)
        return false;
    if (!ended_)
        ended_ = fd_ < 0 ? ProbeForExit(pid_, exe_.c_str(), timeout_ms) : WaitPinned(timeout_ms);
    return ended_;
}

bool ProbeForExit(pid_t pid, const char* exe_path, int timeout_ms)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(timeout_ms);
    // Most clients are gone within the first few probes; a slow one costs at
    // most one longest interval more than it took.
    std::chrono::milliseconds interval(2);
    const std::chrono::milliseconds longest(50);
    for (;;) {
        // A zombie or a number that went to another program: ended either way.
        if (MatchProcessExecutable(pid, exe_path) != PROCESS_MATCHES)
            return true;
        const Clock::duration left = deadline - Clock::now();
        if (left <= Clock::duration::zero())
            return false;
        std::this_thread::sleep_for(std::min<Clock::duration>(interval, left));
        interval = std::min(interval * 2, longest);
    }
}

int SignalIfRunning(pid_t pid, const char* exe_path, int sig)
{
    if (pid <= 0 || MatchProcessExecutable(pid, exe_path) != PROCESS_MATCHES)
        return ESRCH;
    return kill(pid, sig) == 0 ? 0 : errno;
}
