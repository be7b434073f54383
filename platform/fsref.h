// Canonical-path pair of the file layer: FSPathMakeRef gives a reference to the
// existing object named by a path (nonzero status if there is none),
// FSRefMakePath gives back its absolute path as the file system spells it, as
// UTF-8 of at most maxPathSize - 1 bytes (nonzero status if it does not fit).
// On macOS these are the CoreServices calls; elsewhere realpath stands in.
#ifndef DW_PLATFORM_FSREF_H
#define DW_PLATFORM_FSREF_H

#if defined(__APPLE__)
#include <CoreServices/CoreServices.h>
#else
#include <climits>

typedef int OSStatus;
struct FSRef {
    char path[PATH_MAX];
};
OSStatus FSPathMakeRef(const unsigned char* path, FSRef* ref, bool* isDirectory);
OSStatus FSRefMakePath(const FSRef* ref, unsigned char* path, unsigned int maxPathSize);
#endif

#endif
