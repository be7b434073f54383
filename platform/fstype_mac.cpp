#include "fstype.h"

#include <sys/mount.h>
#include <sys/param.h>
#include <cerrno>
#include <cstring>

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
    strlcpy(name, st.f_fstypename, len);
    return 0;
}
