// A pidfd pins the process: signals go through it, and poll wakes on the exit.
#include "process_stop.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <cerrno>
#include <chrono>

// glibc 2.36 declares both calls in <sys/pidfd.h>, but without C linkage for
// C++; the system calls themselves are the same everywhere since Linux 5.3.
// ENOSYS before that, EPERM in a sandbox: the number is used instead.
int HeldProcess::Pin(pid_t pid)
{
    return static_cast<int>(syscall(SYS_pidfd_open, pid, 0U));
}

int HeldProcess::SignalPinned(int sig)
{
    if (syscall(SYS_pidfd_send_signal, fd_, sig, nullptr, 0U) == 0)
        return 0;
    // Only a filter lets pidfd_open through but not this one.
    if (errno != ENOSYS)
        return errno;
    return SignalIfRunning(pid_, exe_.c_str(), sig);
}

bool HeldProcess::WaitPinned(int timeout_ms)
{
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
