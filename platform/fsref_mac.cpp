// FSPathMakeRef and FSRefMakePath have been deprecated since macOS 10.8 and
// have no successor that spells a path as the volume keeps it; the warning is
// silenced here only, so that warnings stay errors everywhere else. Written
// against the SDK's headers; no macOS toolchain builds it on these machines.
#include "fsref.h"

#include <CoreServices/CoreServices.h>
#include <cstdint>
#include <cstring>

#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"

int CanonicalPath(const char* path, char* out, size_t out_size)
{
    if (path == nullptr || path[0] == '\0' || out == nullptr || out_size == 0 || out_size > UINT32_MAX)
        return kPathParamError;
    FSRef ref;
    const OSStatus made = FSPathMakeRef(reinterpret_cast<const UInt8*>(path), &ref, nullptr);
    if (made != noErr)
        return static_cast<int>(made);
    memset(out, 0, out_size);
    return static_cast<int>(
        FSRefMakePath(&ref, reinterpret_cast<UInt8*>(out), static_cast<UInt32>(out_size)));
}

#pragma clang diagnostic pop
