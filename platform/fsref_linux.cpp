// The kernel's own name for the object a path names, through /proc; realpath
// where that is not available.
#include "fsref.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// The one place where errno becomes a status. A missing component and a file
// where a folder should be both mean there is no such object.
int StatusFromErrno(int err)
{
    switch (err) {
    case ENOENT:
    case ENOTDIR:
        return kPathNotFound;
    default:
        return kPathIoError;
    }
}

// One lookup, where realpath looks up every prefix again (a removal of a deep
// tree asks for each of its entries). False, errno set, when the object does
// not exist; false with errno 0 when realpath has to answer (/proc not
// mounted, no descriptor left, ...).
bool SpellThroughProc(const char* path, char (&out)[PATH_MAX])
{
    const int fd = open(path, O_PATH | O_CLOEXEC);
    if (fd < 0) {
        if (errno != ENOENT && errno != ENOTDIR)
            errno = 0;
        return false;
    }
    char link[32];
    snprintf(link, sizeof(link), "/proc/self/fd/%d", fd);
    const ssize_t n = readlink(link, out, sizeof(out));
    // An object unlinked meanwhile is spelled with " (deleted)" appended.
    struct stat st;
    const bool ok = n > 0 && static_cast<size_t>(n) < sizeof(out) && out[0] == '/' && fstat(fd, &st) == 0 &&
                    st.st_nlink > 0;
    close(fd);
    if (!ok) {
        errno = 0;
        return false;
    }
    out[n] = '\0';
    return true;
}

}  // namespace

int CanonicalPath(const char* path, char* out, size_t out_size)
{
    if (path == nullptr || path[0] == '\0' || out == nullptr) {
        return kPathParamError;
    }
    char spelled[PATH_MAX];
    if (!SpellThroughProc(path, spelled)) {
        if (errno != 0) {
            return StatusFromErrno(errno);
        }
        if (realpath(path, spelled) == nullptr) {
            return StatusFromErrno(errno);
        }
    }
    const size_t len = strlen(spelled);
    if (len >= out_size) {
        return kPathParamError;
    }
    memcpy(out, spelled, len + 1);
    return 0;
}
