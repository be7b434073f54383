// A kqueue watching the process for NOTE_EXIT stands in for a pidfd: the exit
// wakes WaitForExit at once. There is no signal through such a handle, so a
// signal goes by number, but never once the exit has been reported (Signal
// asks first). Written against the SDK's <sys/event.h>; no macOS toolchain
// builds it on these machines.
#include "process_stop.h"

#include <signal.h>
#include <sys/event.h>
#include <sys/time.h>
#include <unistd.h>
#include <cerrno>
#include <cstdint>

int HeldProcess::Pin(pid_t pid)
{
    const int kq = kqueue();
    if (kq < 0)
        return -1;  // never ESRCH: the number is used
    struct kevent watch;
    EV_SET(&watch, static_cast<uintptr_t>(pid), EVFILT_PROC, EV_ADD | EV_ONESHOT, NOTE_EXIT, 0, nullptr);
    if (kevent(kq, &watch, 1, nullptr, 0, nullptr) != 0) {
        const int err = errno;
        close(kq);
        errno = err;
        return -1;
    }
    return kq;
}

int HeldProcess::SignalPinned(int sig)
{
    return kill(pid_, sig) == 0 ? 0 : errno;
}

bool HeldProcess::WaitPinned(int timeout_ms)
{
    const struct timespec wait = {timeout_ms / 1000, (timeout_ms % 1000) * 1000000L};
    struct kevent event;
    int n;
    do
        n = kevent(fd_, nullptr, 0, &event, 1, &wait);
    while (n < 0 && errno == EINTR);
    if (n < 0)
        return ProbeForExit(pid_, exe_.c_str(), timeout_ms);
    return n > 0;
}
