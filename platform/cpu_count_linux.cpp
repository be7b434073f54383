#include "cpu_count.h"

#include <sched.h>
#include <unistd.h>

int UsableCpuCount()
{
    cpu_set_t set;
    CPU_ZERO(&set);
    if (sched_getaffinity(0, sizeof set, &set) == 0 && CPU_COUNT(&set) > 0)
        return CPU_COUNT(&set);
    // A machine with more CPUs than a cpu_set_t holds: the online count.
    const long online = sysconf(_SC_NPROCESSORS_ONLN);
    return online > 0 ? static_cast<int>(online) : 1;
}
