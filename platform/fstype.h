// The BSD statfs type name (f_fstypename) of the volume holding path:
// "nfs", "smbfs", "afpfs", "msdos", ... On Linux it is derived from f_type,
// and only the network and FAT volumes the file layer asks about are named:
// any other is "unknown".
// 0 and name filled, or -1 with errno from statfs.
#ifndef DW_PLATFORM_FSTYPE_H
#define DW_PLATFORM_FSTYPE_H

#include <cstddef>

int FSTypeName(const char* path, char* name, size_t len);

#endif
