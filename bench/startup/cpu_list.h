// A CPU list as taskset takes it ("0,1") for the benchmarks' --cpus option.
#ifndef DW_BENCH_STARTUP_CPU_LIST_H
#define DW_BENCH_STARTUP_CPU_LIST_H

#include <sched.h>

#include <cstdlib>

// "0,1" -> CPUs 0 and 1; false for anything else than numbers and commas.
inline bool ParseCpus(const char* list, cpu_set_t& set)
{
    CPU_ZERO(&set);
    for (const char* p = list; *p != '\0';) {
        char* end;
        const long cpu = std::strtol(p, &end, 10);
        if (end == p || cpu < 0 || cpu >= CPU_SETSIZE || (*end != ',' && *end != '\0'))
            return false;
        CPU_SET(static_cast<int>(cpu), &set);
        p = *end == ',' ? end + 1 : end;
    }
    return CPU_COUNT(&set) > 0;
}

#endif
