// Stand-in for the CoreServices pair: realpath gives the absolute spelling the
// file system keeps, with links and "." / ".." resolved.
#include "fsref.h"

#include <sys/stat.h>
#include <cerrno>
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
}  // namespace

OSStatus FSPathMakeRef(const unsigned char* path, FSRef* ref, bool* isDirectory)
{
    if (path == nullptr || ref == nullptr || path[0] == '\0') {
        return kParamError;
    }
    if (realpath(reinterpret_cast<const char*>(path), ref->path) == nullptr) {
        return StatusFromErrno(errno);
    }
    if (isDirectory != nullptr) {
        struct stat st;
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
