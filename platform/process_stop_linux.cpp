// A pidfd pins the process: signals go through it, and poll wakes on the exit.
#include "process_stop.h"

#include <poll.h>
#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <cerrno>
#include <chrono>

namespace {

// glibc 2.36 declares both in <sys/pidfd.h>, but without C linkage for C++;
// the system calls themselves are the same everywhere since Linux 5.3.
int OpenPidfd(pid_t pid)
{
    return static_cast<int>(syscall(SYS_pidfd_open, pid, 0U));
}

int SignalPidfd(int fd, int sig)
{
    return static_cast<int>(syscall(SYS_pidfd_send_signal, fd, sig, nullptr, 0U));
}

}  // namespace

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
    // gets signalled: had the number changed hands in between, the pidfd
    // names the ended process and every signal through it fails.
    const int fd = OpenPidfd(pid);
    if (fd < 0 && errno == ESRCH)
        return PROCESS_MISSING;
    // Any other refusal (ENOSYS before Linux 5.3, EPERM in a sandbox) leaves
    // the number alone.
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
    if (pid_ <= 0)
        return ESRCH;
    if (fd_ >= 0) {
        if (SignalPidfd(fd_, sig) == 0)
            return 0;
        // Only a filter lets pidfd_open through but not this one.
        if (errno != ENOSYS)
            return errno;
    }
    return SignalIfRunning(pid_, exe_.c_str(), sig);
}

bool HeldProcess::WaitForExit(int timeout_ms)
{
    if (pid_ <= 0)
        return false;
    if (fd_ < 0)
        return ProbeForExit(pid_, exe_.c_str(), timeout_ms);
    using Clock = std::chrono::steady_clock;
    const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(timeout_ms);
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd watch = {fd_, POLLIN, 0};
        const int n = poll(&watch, 1, left > 0 ? static_cast<int>(left) : 0);
        if (n > 0 && (watch.revents & POLLIN) != 0)
            return true;
        if (n == 0)
            return false;
        if (n < 0 && errno == EINTR)
            continue;
        return ProbeForExit(pid_, exe_.c_str(), left > 0 ? static_cast<int>(left) : 0);
    }
}
