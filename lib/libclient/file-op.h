// File operations on ustring paths. Results are plain integers (0 success,
// negative failure, codes per function) or booleans; nothing throws.
// Messages go to the logger under "file_op_debug".
#ifndef DW_LIB_LIBCLIENT_FILE_OP_H
#define DW_LIB_LIBCLIENT_FILE_OP_H

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
    FILE_TYPE_DEVICE = 5,  // character or block device
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

// Results. Every int operation below returns kFSOk (0) on success; a failure
// number means something of its own per operation, so each has its names.
// kFSFailed is the one failure of the operations that know only one.
constexpr int kFSOk = 0;
constexpr int kFSFailed = -1;

// True when the NFC form of path exists. With exact, also only when its
// canonical spelling equals it byte for byte (so a trailing "/", "/." or a
// relative path is false). Where the NFC spelling does not exist on a file
// system that keeps names byte for byte, the path as given is tried too.
bool IsFileExist(const ustring& path, bool exact);
// lstat: a link is described, not followed. A missing path is kFSOk with exist
// false, type regular, size 0 and mtime now; kFSFailed on other errors or a
// file kind not in FILE_TYPE.
int GetFileInfo(const ustring& path, _FILE_INFO_tag& info);
// kFSOk and path replaced by its canonical spelling; kFSFailed and path
// unchanged.
int FSGetRealPath(ustring& path);

// FSStat: kFSOk (see info.exist; a missing path changes only exist), or:
constexpr int kFSStatEmptyPath = -1;
constexpr int kFSStatFailed = -2;  // the path exists, its status could not be read
int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact);

// Copies one file's bytes (not its mode, owner or times) through a 32 MiB
// buffer, then fsyncs and closes the destination: a failure of either fails
// the copy. With removeSrc the source is removed only after both succeeded.
// A partial destination stays. kFSOk, or:
constexpr int kFSCopyFailed = -1;   // open, read, write, flush, close or removal failed
constexpr int kFSCopyNoSpace = -2;  // the volume or the quota is full
int FSCopy(const ustring& src, const ustring& dst, bool removeSrc);

// rename, or across file systems: a file is copied then removed, a folder is
// moved entry by entry, a symbolic link is recreated (same target text, an
// existing dst is not replaced) then removed; devices, FIFOs and sockets fail
// and stay. A move across file systems keeps no mode bits, owner or times:
// new files get 0666 and new folders 0777, less the process umask (an existing
// destination file keeps its mode, an existing folder takes the entries in).
// A link is moved whether or not its target exists. kFSOk, or:
constexpr int kFSRenameEmptyArgument = -1;
constexpr int kFSRenameSourceMissing = -2;  // or its status failed; nothing tried
constexpr int kFSRenameFailed = -3;         // a folder may be partly moved
constexpr int kFSRenameNameTooLong = -100;
int FSRename(const ustring& src, const ustring& dst, bool exact);

// kFSOk when created or already a folder (a link to a folder is not), or:
constexpr int kFSMKDirBadPath = -1;       // empty, status failed, or not a folder
constexpr int kFSMKDirCreateFailed = -2;  // mkdir failed (also a parent missing without parents)
int FSMKDir(const ustring& path, bool parents);

// FSMKDirP's mode for "none given": 0777 under the process umask.
constexpr unsigned short kFSNoMode = 0xFFFF;
// Creates each missing folder along path; kFSOk, or kFSFailed with errno. Links
// are followed: a link to a folder counts as that folder and is walked
// through. Something other than a folder along the way fails with ENOTDIR (or
// EEXIST for the last component); with force it is removed (a link itself,
// not its target) and a folder made in its place. A folder that appears
// between the check and mkdir (another process making the same path) fails
// the call with EEXIST: calling again goes on from there. A dangling link
// fails with EEXIST, force or not. Any mode other than kFSNoMode is set
// exactly on the folders made (as mkdir under umask 0), and the umask is never
// changed. *end (if given) points into path's own text where the last handled
// component ends.
int FSMKDirP(const ustring& path, const char** end, bool force, unsigned short mode);

// Removes a path, a folder with everything under it; links are removed, never
// followed. A failure may leave a tree partly removed. flag is ignored. kFSOk
// when removed or absent, or:
constexpr int kFSRemoveBadPath = -1;  // empty path or status failed
constexpr int kFSRemoveFailed = -3;   // also for a folder that cannot be opened
int FSRemove(const ustring& path, bool flag);

// kFSOk and h filled, or kFSFailed (logged) with h untouched.
int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& h);
// FSReadDir: kFSReadDirEntry ("." and ".." included), kFSReadDirEnd, or
// kFSFailed (logged). With FS_DIR_WITH_STAT, "." and ".." carry the listed
// folder's own mtime and size; an entry that the exact check does not find
// under h.path + "/" + name (a link, or a listing opened by a non-canonical
// path) carries 0 and 0.
constexpr int kFSReadDirEntry = 1;
constexpr int kFSReadDirEnd = 0;
int FSReadDir(DIR_HANDLE& h, DIR_ENTRY& e);
// Only for a handle that FSOpenDir opened; flags keep their value.
void FSCloseDir(DIR_HANDLE& h);

// Sets the owner that FSMKDir, FSMKDirP and FSChown give; all ones (the start
// value) leaves the user or group alone (FSMKDirP, once one of them is set,
// gives the effective id for the other). Plain statics: call before any other
// thread uses this layer.
void FSInitialize(unsigned int user, unsigned int group);
// chown(path) to that owner: chown's own result, 0 or -1 with errno.
int FSChown(const ustring& path);
// Does nothing; kFSOk.
int FSInit(const ustring& path);
// Creates an empty file folder + "/XXXXXX" (mkstemp), flushed, mode 0644, and
// sets out to its path: kFSOk, or kFSFailed (logged) with out untouched.
int FSMktemp(const ustring& folder, ustring& out);
// Sets access and modification time in seconds (utime, follows links); kFSOk
// or kFSFailed with errno.
int FSUTime(const ustring& path, long atime, long mtime);
// a == b: times are whole seconds, compared exactly.
bool FSTimeEqual(long a, long b);
// True only when access(path, mode) is refused (EACCES, EPERM): a missing path
// or another error is false. Root passes most access checks.
bool isFileLocked(const ustring& path, int mode);
// True for a network volume ("nfs", "smbfs", "afpfs"), not a mount point. A
// path whose file system cannot be read is false (logged).
bool isMountPoint(const ustring& path);
// True, with a warning logged, for a path on an msdos (FAT) volume. A path
// whose file system cannot be read is false (logged as an error).
bool IsMSDOS(const ustring& path);
// folder + "/" + a fresh temporary name; nothing is created. kFSFailed if empty.
int FSCreateTempPath(const ustring& folder, ustring& out);

#endif
