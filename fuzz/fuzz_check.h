// CHECK for fuzz targets: a broken invariant aborts, which libFuzzer reports
// as a crash with the input that caused it.
#ifndef DW_FUZZ_FUZZ_CHECK_H
#define DW_FUZZ_FUZZ_CHECK_H

#include <cstdio>
#include <cstdlib>

#define CHECK(cond)                                                                                          \
    do {                                                                                                     \
        if (!(cond)) {                                                                                       \
            fprintf(stderr, "%s:%d: check failed: %s\n", __FILE__, __LINE__, #cond);                         \
            abort();                                                                                         \
        }                                                                                                    \
    } while (0)

#endif
