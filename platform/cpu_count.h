// The number of CPUs this process may run on: its affinity where the system
// has one (taskset, cgroup cpusets), else the processors online. At least 1.
#ifndef DW_PLATFORM_CPU_COUNT_H
#define DW_PLATFORM_CPU_COUNT_H

int UsableCpuCount();

#endif
