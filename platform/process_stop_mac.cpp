// A kqueue watching the process for NOTE_EXIT stands in for a pidfd: the exit
// wakes WaitForExit at once. There is no signal through such a handle, so a
// signal goes by number, but never once the exit has been reported.
#include "process_stop.h"

#include <signal.h>
#include <sys/event.h>
#include <sys/time.h>
#include <unistd.h>
#include <cerrno>

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
    int kq = kqueue();
    if (kq >= 0) {
        struct kevent watch;
        EV_SET(&watch, pid, EVFILT_PROC, EV_ADD | EV_ONESHOT, NOTE_EXIT, 0, nullptr);
        if (kevent(kq, &watch, 1, nullptr, 0, nullptr) != 0) {
            const int err = errno;
            close(kq);
            kq = -1;
            if (err == ESRCH)
                return PROCESS_MISSING;
        }
    }
    const ProcessMatch match = MatchProcessExecutable(pid, exe_path);
    if (match != PROCESS_MATCHES) {
        if (kq >= 0)
            close(kq);
        return match;
    }
    pid_ = pid;
    fd_ = kq;
    exe_ = exe_path;
    return match;
}

int HeldProcess::Signal(int sig)
{
    if (pid_ <= 0 || ended_ || WaitForExit(0))
        return ESRCH;
    if (fd_ < 0)
        return SignalIfRunning(pid_, exe_.c_str(), sig);
    return kill(pid_, sig) == 0 ? 0 : errno;
}

bool HeldProcess::WaitForExit(int timeout_ms)
{
    if (pid_ <= 0)
        return false;
    if (ended_)
        return true;
    if (fd_ < 0)
        return ProbeForExit(pid_, exe_.c_str(), timeout_ms);
    const struct timespec wait = {timeout_ms / 1000, (timeout_ms % 1000) * 1000000L};
    struct kevent event;
    int n;
    do
        n = kevent(fd_, nullptr, 0, &event, 1, &wait);
    while (n < 0 && errno == EINTR);
    if (n < 0)
        return ProbeForExit(pid_, exe_.c_str(), timeout_ms);
    ended_ = n > 0;
    return ended_;
}
