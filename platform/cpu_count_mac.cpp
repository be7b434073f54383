// No affinity to ask: the processors active now (fewer than installed when
// some are switched off to save power).
#include "cpu_count.h"

#include <sys/sysctl.h>

int UsableCpuCount()
{
    int active = 0;
    size_t size = sizeof active;
    if (sysctlbyname("hw.activecpu", &active, &size, nullptr, 0) == 0 && active > 0)
        return active;
    return 1;
}
