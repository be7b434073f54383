// Stand-in for the CoreServices pair: the absolute spelling the file system
// keeps, with links and "." / ".." resolved.
#include "fsref.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {
// The CoreServices codes, so that log lines read the same on both systems.
const OSStatus kFileNotFound = -43;  // fnfErr
const OSStatus kIoError = -36;       // ioErr
const OSStatus kParamError = -50;    // paramErr

// The one place where realpath's errno becomes a status. A missing component
// and a file where a folder should be both mean there is no such object.
OSStatus StatusFromErrno(int err)
{
    switch (err) {
    case ENOENT:
    case ENOTDIR:
        return kFileNotFound;
    default:
        return kIoError;
    }
}

// The kernel's own spelling of the object that path names: one lookup, where
// realpath looks up every prefix again (a removal of a deep tree asks for
// each of its entries). False, errno set, when the object does not exist;
// false with errno 0 when realpath has to answer (/proc not mounted, no
// descriptor left, ...).
bool SpellThroughProc(const char* path, char (&out)[PATH_MAX], struct stat& st)
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

OSStatus FSPathMakeRef(const unsigned char* path, FSRef* ref, bool* isDirectory)
{
    if (path == nullptr || ref == nullptr || path[0] == '\0') {
        return kParamError;
    }
    const char* text = reinterpret_cast<const char*>(path);
    struct stat st;
    if (SpellThroughProc(text, ref->path, st)) {
        if (isDirectory != nullptr) {
            *isDirectory = S_ISDIR(st.st_mode);
        }
        return 0;
    }
    if (errno != 0) {
        return StatusFromErrno(errno);
    }
    if (realpath(text, ref->path) == nullptr) {
        return StatusFromErrno(errno);
    }
    if (isDirectory != nullptr) {
        *isDirectory = stat(ref->path, &st) == 0 && S_ISDIR(st.st_mode);
    }
    return 0;
}

OSStatus FSRefMakePath(const FSRef* ref, unsigned char* path, unsigned int maxPathSize)
{
    if (ref == nullptr || path == nullptr) {
        return kParamError;
    }
    size_t len = strnlen(ref->path, sizeof(ref->path));
    if (len >= maxPathSize) {
        return kParamError;
    }
    memcpy(path, ref->path, len);
    path[len] = '\0';
    return 0;
}
