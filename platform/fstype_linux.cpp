// Linux reports a magic number, not a name: the kinds the file layer asks
// about get their BSD names, any other volume is "unknown".
#include "fstype.h"

#include <sys/vfs.h>
#include <cerrno>
#include <cstdio>

namespace {
struct TypeName {
    unsigned long magic;
    const char* name;
};

const TypeName kTypeNames[] = {
    {0x6969, "nfs"},       {0x517B, "smbfs"},  // SMB
    {0xFF534D42, "smbfs"},                     // CIFS
    {0xFE534D42, "smbfs"},                     // SMB2
    {0x4d44, "msdos"},                         // FAT of any width
};
}  // namespace

int FSTypeName(const char* path, char* name, size_t len)
{
    if (path == nullptr || name == nullptr || len == 0) {
        errno = EINVAL;
        return -1;
    }
    struct statfs st;
    if (statfs(path, &st) != 0) {
        return -1;
    }
    // f_type is signed on some ABIs; the magic numbers are 32-bit patterns.
    unsigned long magic = static_cast<unsigned long>(st.f_type) & 0xFFFFFFFFUL;
    const char* found = "unknown";
    for (const TypeName& t : kTypeNames) {
        if (t.magic == magic) {
            found = t.name;
            break;
        }
    }
    snprintf(name, len, "%s", found);
    return 0;
}
