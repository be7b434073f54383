// The canonical spelling of an existing path: absolute, as the file system
// keeps it, links and "." / ".." resolved. On macOS the CoreServices pair
// FSPathMakeRef / FSRefMakePath gives it, elsewhere the kernel's own name
// for the object.
#ifndef DW_PLATFORM_FSREF_H
#define DW_PLATFORM_FSREF_H

#include <cstddef>

// The CoreServices status codes on every system, so that log lines read the same.
constexpr int kPathIoError = -36;     // ioErr
constexpr int kPathNotFound = -43;    // fnfErr: nothing of that name
constexpr int kPathParamError = -50;  // paramErr: empty path, or out too small

// 0 and out holds the spelling, NUL-terminated (at most out_size - 1 bytes);
// otherwise a nonzero status and out's contents are undefined. A dangling link,
// or a file named with a trailing "/", is not found. A FIFO is named without
// being opened for reading.
int CanonicalPath(const char* path, char* out, size_t out_size);

#endif
