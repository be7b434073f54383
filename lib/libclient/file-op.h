// File operations on ustring paths. Results are plain integers (0 success,
// negative failure, codes per function) or booleans; nothing throws.
// Messages go to the logger under "file_op_debug".
#ifndef FILE_OP_H
#define FILE_OP_H

#include <dirent.h>
#include <sys/types.h>
#include <cstdint>
#include <ctime>

#include "ustring.h"

enum FILE_TYPE {
    FILE_TYPE_UNKNOWN = 0,  // only in directory entries
    FILE_TYPE_REGULAR = 1,
    FILE_TYPE_DIR = 2,
    FILE_TYPE_LINK = 3,
    FILE_TYPE_DEVICE = 5,   // character or block device
    FILE_TYPE_FIFO = 6,
    FILE_TYPE_SOCKET = 7,
};

// Listing option: every entry carries mtime and size.
#define FS_DIR_WITH_STAT 1

typedef struct _FILE_INFO_tag {
    ustring path;      // canonical spelling after GetFileInfo on an existing path
    ustring alt_path;  // never written by this layer
    int32_t type;
    time_t mtime;
    off_t size;
    bool exist;
    uint32_t owner;
    uint32_t group;
    uint32_t mode;
} FILE_INFO;

// Compares exist, size, mtime, type, path and alt_path; not owner, group, mode.
bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);
bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);

typedef struct _DIR_HANDLE_tag {
    ustring path;
    int flags = 0;
    DIR* dir = nullptr;
} DIR_HANDLE;

typedef struct _DIR_ENTRY_tag {
    ustring name;
    int32_t type = 0;
    time_t mtime = 0;
    int64_t size = 0;
} DIR_ENTRY;

// True when the NFC form of path exists. With exact, also only when its
// canonical spelling equals it byte for byte (so a trailing "/", "/." or a
// relative path is false). Where the NFC spelling does not exist on a file
// system that keeps names byte for byte, the path as given is tried too.
bool IsFileExist(const ustring& path, bool exact);
// lstat: a link is described, not followed. A missing path is 0 with exist
// false, type regular, size 0 and mtime now; -1 on other errors or a file kind
// not in FILE_TYPE.
int GetFileInfo(const ustring& path, _FILE_INFO_tag& info);
// 0 and path replaced by its canonical spelling; -1 and path unchanged.
int FSGetRealPath(ustring& path);
// 0 (see info.exist; a missing path changes only exist), -1 empty path,
// -2 status failed.
int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact);
// Copies one file's bytes (not its mode, owner or times) through a 32 MiB
// buffer, then fsyncs and closes the destination: a failure of either fails
// the copy. With removeSrc the source is removed only after both succeeded.
// 0, -1 failure, -2 out of space or quota. A partial destination stays.
int FSCopy(const ustring& src, const ustring& dst, bool removeSrc);
// rename, or across file systems: a file is copied then removed, a folder is
// moved entry by entry, a symbolic link is recreated (same target text, an
// existing dst is not replaced) then removed; devices, FIFOs and sockets give
// -3 and stay. 0, -1 empty argument, -2 source missing or its status failed,
// -3 move failed (a folder may be partly moved), -100 name too long. A link
// is moved whether or not its target exists.
int FSRename(const ustring& src, const ustring& dst, bool exact);
// 0 created or already a folder (a link to a folder is not), -1 status failed
// or not a folder, -2 creation failed.
int FSMKDir(const ustring& path, bool parents);
// Creates each missing folder along path; 0, or -1 with errno. mode 0xFFFF
// means 0777 under the process umask; any other mode is set exactly on the
// folders made (as mkdir under umask 0), and the umask is never changed. *end (if given) points into path's own
// text where the last handled component ends.
int FSMKDirP(const ustring& path, const char** end, bool force, unsigned short mode);
// Removes a path, a folder with everything under it; links are removed, never
// followed. 0 removed or absent, -1 empty path or status failed, -3 removal
// failed (also for a folder that cannot be opened). flag is ignored.
int FSRemove(const ustring& path, bool flag);
// 0 and h filled, or -1 with h untouched.
int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& h);
// 1 entry read ("." and ".." included), 0 end of listing, -1 error. With
// FS_DIR_WITH_STAT, "." and ".." carry the listed folder's own mtime and size;
// an entry that the exact check does not find under h.path + "/" + name (a
// link, or a listing opened by a non-canonical path) carries 0 and 0.
int FSReadDir(DIR_HANDLE& h, DIR_ENTRY& e);
// Only for a handle that FSOpenDir opened; flags keep their value.
void FSCloseDir(DIR_HANDLE& h);

void FSInitialize(unsigned int user, unsigned int group);
int FSChown(const ustring& path);
int FSInit(const ustring& path);
int FSMktemp(const ustring& folder, ustring& out);
int FSUTime(const ustring& path, long atime, long mtime);
bool FSTimeEqual(long a, long b);
bool isFileLocked(const ustring& path, int mode);
// True for a network volume ("nfs", "smbfs", "afpfs"), not a mount point.
bool isMountPoint(const ustring& path);
bool IsMSDOS(const ustring& path);
// folder + "/" + a fresh temporary name; nothing is created. -1 if empty.
int FSCreateTempPath(const ustring& folder, ustring& out);

#endif
