// Linux reports a magic number, not a name: translate the kinds the file layer
// asks about into the BSD names, and a few common ones for the log.
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
    {0x6969, "nfs"},          {0x517B, "smbfs"},  // SMB
    {0xFF534D42, "smbfs"},                        // CIFS
    {0xFE534D42, "smbfs"},                        // SMB2
    {0x4d44, "msdos"},                            // FAT of any width
    {0x2011BAB0, "exfat"},    {0xEF53, "ext4"},   // ext2, ext3 and ext4 share the magic
    {0x01021994, "tmpfs"},    {0x858458f6, "ramfs"}, {0x9123683E, "btrfs"}, {0x58465342, "xfs"},
    {0x794c7630, "overlay"},  {0x65735546, "fuse"},  {0x9660, "cd9660"},    {0x5346544e, "ntfs"},
    {0x73717368, "squashfs"}, {0x9fa0, "proc"},      {0x62656572, "sysfs"},
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
