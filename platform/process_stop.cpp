// The fallback where a process cannot be pinned: its number, checked again
// each time, as the only handle.
#include "process_stop.h"

#include <signal.h>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>

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
