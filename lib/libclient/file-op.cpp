#include "file-op.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>
#include <utime.h>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "fsref.h"
#include "fstype.h"
#include "log.h"
#include "tmp_name_gen.h"

// Every message starts with the level word, "file-op" and the line number.
#define FILE_OP_LOG(level, ...) Logger::LogMsg(Logger::level, "file_op_debug", __VA_ARGS__)

namespace {

const size_t kPathBufferSize = 4096;
const size_t kCopyBufferSize = 33554432;  // 32 MiB
const uint32_t kNoId = UINT32_MAX;

// Owner given to the folders this layer creates; all ones leaves it alone.
uint32_t uid = kNoId;
uint32_t gid = kNoId;

// The calls whose errno decides between results.
enum class Failed { kStatus, kCopy, kRename };

// The one place where errno becomes a result of this layer. A missing path is
// no failure of a status query, nor another file system of a rename (the move
// goes on by copying): both give kFSOk for the caller to go on.
int ResultFromErrno(Failed call, int err)
{
    switch (call) {
    case Failed::kStatus:
        return err == ENOENT ? kFSOk : kFSFailed;
    case Failed::kCopy:
        return (err == ENOSPC || err == EDQUOT) ? kFSCopyNoSpace : kFSCopyFailed;
    case Failed::kRename:
        if (err == EXDEV) {
            return kFSOk;
        }
        return err == ENAMETOOLONG ? kFSRenameNameTooLong : kFSRenameFailed;
    }
    return kFSFailed;
}

// -1 for a file kind outside FILE_TYPE.
int TypeFromMode(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return FILE_TYPE_REGULAR;
    case S_IFDIR:
        return FILE_TYPE_DIR;
    case S_IFLNK:
        return FILE_TYPE_LINK;
    case S_IFCHR:
    case S_IFBLK:
        return FILE_TYPE_DEVICE;
    case S_IFIFO:
        return FILE_TYPE_FIFO;
    case S_IFSOCK:
        return FILE_TYPE_SOCKET;
    default:
        return -1;
    }
}

int TypeFromDirent(unsigned char dtype)
{
    switch (dtype) {
    case DT_REG:
        return FILE_TYPE_REGULAR;
    case DT_DIR:
        return FILE_TYPE_DIR;
    case DT_LNK:
        return FILE_TYPE_LINK;
    case DT_CHR:
    case DT_BLK:
        return FILE_TYPE_DEVICE;
    case DT_FIFO:
        return FILE_TYPE_FIFO;
    case DT_SOCK:
        return FILE_TYPE_SOCKET;
    default:
        return FILE_TYPE_UNKNOWN;
    }
}

bool IsDotOrDotDot(const char* name)
{
    return strcmp(name, ".") == 0 || strcmp(name, "..") == 0;
}

// Next entry of a stream, or null at the end or on an error; errno tells the
// two apart. readdir is safe here: each stream belongs to one call.
struct dirent* NextEntry(DIR* dir)
{
    errno = 0;
    return readdir(dir);
}

enum WalkResult { WALK_DONE = 0, WALK_OPEN_FAILED = -1, WALK_STOPPED = 1 };

// Calls visit(entry name) for every entry of folder but "." and ".."; the
// first nonzero result stops the walk. A read error ends the walk like the end
// of the listing: whatever is left shows when the caller removes the folder.
template <typename Visit> WalkResult WalkFolder(const ustring& folder, Visit visit)
{
    DIR* dir = opendir(folder.c_str());
    if (dir == nullptr) {
        return WALK_OPEN_FAILED;
    }
    WalkResult result = WALK_DONE;
    while (struct dirent* entry = NextEntry(dir)) {
        if (IsDotOrDotDot(entry->d_name)) {
            continue;
        }
        if (visit(entry->d_name) != kFSOk) {
            result = WALK_STOPPED;
            break;
        }
    }
    closedir(dir);
    return result;
}

// A link cannot be renamed across file systems: make the same link at dst,
// then drop the source.
int MoveLinkAcrossDevices(const ustring& src, const ustring& dst)
{
    char target[PATH_MAX];
    ssize_t len = readlink(src.c_str(), target, sizeof(target));
    if (len < 0 || static_cast<size_t>(len) >= sizeof(target)) {
        return kFSRenameFailed;
    }
    target[len] = '\0';
    if (symlink(target, dst.c_str()) != 0) {
        return kFSRenameFailed;
    }
    return remove(src.c_str()) == 0 ? kFSOk : kFSRenameFailed;
}

int MoveFolderAcrossDevices(const ustring& src, const ustring& dst, bool exact)
{
    if (FSMKDir(dst, true) != kFSOk) {
        return kFSRenameFailed;
    }
    WalkResult walk = WalkFolder(
        src, [&](const char* name) { return FSRename(src + "/" + name, dst + "/" + name, exact); });
    if (walk != WALK_DONE) {
        return kFSRenameFailed;
    }
    return remove(src.c_str()) == 0 ? kFSOk : kFSRenameFailed;
}

// Gives a folder just made the mode that mkdir(path, mode) has under umask 0:
// the permission and sticky bits of mode, and a set-group-id bit inherited
// from the parent.
int SetMkdirMode(const char* path, mode_t mode)
{
    struct stat st;
    if (stat(path, &st) != 0) {
        return -1;
    }
    return chmod(path, (mode & 01777) | (st.st_mode & S_ISGID));
}

// Gives a folder that FSMKDirP made to the configured owner.
void ApplyOwner(const char* path)
{
    if (uid == kNoId && gid == kNoId) {
        return;
    }
    uid_t user = uid == kNoId ? geteuid() : static_cast<uid_t>(uid);
    gid_t group = gid == kNoId ? getegid() : static_cast<gid_t>(gid);
    if (chown(path, user, group) != 0) {
        // Best effort: a folder we cannot give away is still a usable folder.
    }
}

}  // namespace

bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b)
{
    return a.exist == b.exist && a.size == b.size && a.mtime == b.mtime && a.type == b.type &&
           a.path == b.path && a.alt_path == b.alt_path;
}

bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b)
{
    return !(a == b);
}

bool IsFileExist(const ustring& path, bool exact)
{
    ustring n = path.normalize(ustring::NFC);
    if (n.empty()) {
        return false;
    }
    bool exists = access(n.c_str(), F_OK) == 0;
    // A file system that keeps names byte for byte may hold the decomposed
    // spelling (a home folder made that way): then the given text is the name.
    bool asGiven = !exists && n != path && access(path.c_str(), F_OK) == 0;
    if (asGiven) {
        n = path;
        exists = true;
    }
    if (!exists || !exact) {
        return exists;
    }

    FILE_OP_LOG(LOG_DEBUG, "[DEBUG] file-op(%d): Input file path = [%s].\n", __LINE__, n.c_str());
    char buffer[kPathBufferSize];
    const int status = CanonicalPath(n.c_str(), buffer, sizeof(buffer));
    if (status != 0) {
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): FSPathMakeRef: %d\n", __LINE__, status);
        return false;
    }
    // The spelling found on disk is compared as it is kept there.
    ustring real = asGiven ? ustring(buffer) : ustring(buffer).normalize(ustring::NFC);
    FILE_OP_LOG(LOG_DEBUG, "[DEBUG] file-op(%d): FSRefMakePath outTargetPath path = [%s].\n", __LINE__,
                real.c_str());
    if (n != real) {
        return false;
    }
    FILE_OP_LOG(LOG_DEBUG, "[DEBUG] file-op(%d): File exist.\n", __LINE__);
    return true;
}

namespace {

// GetFileInfo, with the canonical spelling looked up only when asked for.
int FileStatus(const ustring& path, _FILE_INFO_tag& info, bool canonical)
{
    struct stat st;
    if (lstat(path.c_str(), &st) != 0) {
        const int result = ResultFromErrno(Failed::kStatus, errno);
        if (result != kFSOk) {
            return result;
        }
        info.exist = false;
        info.mtime = time(nullptr);
        info.path = path;
        info.size = 0;
        info.type = FILE_TYPE_REGULAR;
        info.owner = 0;
        info.group = 0;
        info.mode = 0;
        return kFSOk;
    }
    info.exist = true;
    info.mtime = st.st_mtime;
    info.path = path;
    info.size = st.st_size;
    info.owner = st.st_uid;
    info.group = st.st_gid;
    info.mode = static_cast<uint32_t>(st.st_mode);
    int type = TypeFromMode(st.st_mode);
    if (type < 0) {
        return kFSFailed;
    }
    info.type = type;
    // Best effort: without a canonical spelling the path stays as given.
    if (canonical)
        FSGetRealPath(info.path);
    return kFSOk;
}

}  // namespace

int GetFileInfo(const ustring& path, _FILE_INFO_tag& info)
{
    return FileStatus(path, info, true);
}

int FSGetRealPath(ustring& path)
{
    FILE_OP_LOG(LOG_DEBUG, "[DEBUG] file-op(%d):  org path [%s]\n", __LINE__, path.c_str());
    char buffer[kPathBufferSize];
    if (CanonicalPath(path.c_str(), buffer, sizeof(buffer)) != 0) {
        return kFSFailed;
    }
    path = buffer;
    FILE_OP_LOG(LOG_DEBUG, "[DEBUG] file-op(%d):  get full path [%s]\n", __LINE__, path.c_str());
    return kFSOk;
}

int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact)
{
    if (path.empty()) {
        return kFSStatEmptyPath;
    }
    if (!IsFileExist(path, exact)) {
        info.exist = false;
        return kFSOk;
    }
    return GetFileInfo(path, info) < 0 ? kFSStatFailed : kFSOk;
}

int FSCopy(const ustring& src, const ustring& dst, bool removeSrc)
{
    // errno is taken right after each failing call: the logger's own calls
    // (a rotation) would overwrite it before it is mapped.
    int err = 0;
    int in = open(src.c_str(), O_RDONLY);
    if (in < 0) {
        err = errno;
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): CopyFile: open(%s): %s (%d)\n", __LINE__, src.c_str(),
                    strerror(err), err);
        return kFSCopyFailed;
    }
    int out = open(dst.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (out < 0) {
        err = errno;
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): CopyFile: open(%s): %s (%d)\n", __LINE__, dst.c_str(),
                    strerror(err), err);
        close(in);
        return kFSCopyFailed;
    }

    int result = kFSOk;
    char* buffer = static_cast<char*>(malloc(kCopyBufferSize));
    if (buffer == nullptr) {
        err = errno;
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): FSCopy: malloc(%d): %s (%d)\n", __LINE__,
                    (int)kCopyBufferSize, strerror(err), err);
        result = kFSCopyFailed;
    }
    while (buffer != nullptr) {
        ssize_t got = read(in, buffer, kCopyBufferSize);
        if (got < 0) {
            err = errno;
            FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): CopyFile: read: %s (%d)\n", __LINE__, strerror(err),
                        err);
            result = kFSCopyFailed;
            break;
        }
        if (got == 0) {
            break;
        }
        ssize_t done = 0;
        while (done < got) {
            // A zero-byte write sets no errno: do not report a stale one.
            errno = 0;
            ssize_t put = write(out, buffer + done, static_cast<size_t>(got - done));
            if (put <= 0) {
                err = errno;
                FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): CopyFile: write: %s (%d)\n", __LINE__,
                            strerror(err), err);
                result = ResultFromErrno(Failed::kCopy, err);
                break;
            }
            done += put;
        }
        if (result != kFSOk) {
            break;
        }
    }

    close(in);
    // A write only reached the cache: the file system may find out at the
    // flush or the close that the data cannot be stored (a volume on a full
    // backing store, a network share). The source goes once both succeeded.
    if (result == kFSOk && fsync(out) != 0) {
        err = errno;
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): CopyFile: fsync(%s): %s (%d)\n", __LINE__, dst.c_str(),
                    strerror(err), err);
        result = ResultFromErrno(Failed::kCopy, err);
    }
    if (close(out) != 0 && result == kFSOk) {
        err = errno;
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): CopyFile: close(%s): %s (%d)\n", __LINE__, dst.c_str(),
                    strerror(err), err);
        result = ResultFromErrno(Failed::kCopy, err);
    }
    free(buffer);
    if (result == kFSOk && removeSrc && remove(src.c_str()) != 0) {
        err = errno;
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): CopyFile: remove(%s): %s (%d)\n", __LINE__, src.c_str(),
                    strerror(err), err);
        result = kFSCopyFailed;
    }
    return result;
}

int FSRename(const ustring& src, const ustring& dst, bool exact)
{
    if (src.empty() || dst.empty()) {
        return kFSRenameEmptyArgument;
    }
    FILE_INFO info;
    if (FSStat(src, info, exact) < 0) {
        return kFSRenameSourceMissing;
    }
    // The existence check follows links (and the exact one spells a link as
    // its target): a link that it misses still has a name of its own to move.
    if (!info.exist && (GetFileInfo(src, info) != kFSOk || !info.exist || info.type != FILE_TYPE_LINK)) {
        return kFSRenameSourceMissing;
    }
    if (rename(src.c_str(), dst.c_str()) == 0) {
        return kFSOk;
    }
    const int result = ResultFromErrno(Failed::kRename, errno);
    if (result != kFSOk) {
        return result;
    }
    // Different file systems: rebuild at dst, then remove the source.
    switch (info.type) {
    case FILE_TYPE_REGULAR:
        return FSCopy(src, dst, true) < 0 ? kFSRenameFailed : kFSOk;
    case FILE_TYPE_DIR:
        return MoveFolderAcrossDevices(src, dst, exact);
    case FILE_TYPE_LINK:
        return MoveLinkAcrossDevices(src, dst);
    default:
        // Devices, FIFOs and sockets cannot be carried over by copying bytes.
        return kFSRenameFailed;
    }
}

int FSMKDir(const ustring& path, bool parents)
{
    if (path.empty()) {
        return kFSMKDirBadPath;
    }
    FILE_INFO info;
    if (GetFileInfo(path, info) != kFSOk) {
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): FSMKDir: Failed to to file info '%s'\n", __LINE__,
                    path.c_str());
        return kFSMKDirBadPath;
    }
    if (info.exist) {
        if (info.type == FILE_TYPE_DIR) {
            return kFSOk;
        }
        FILE_OP_LOG(LOG_ERROR,
                    "[ERROR] file-op(%d): FSMKDir: Create a folder but local file system is not "
                    "directory '%s' (%d)\n",
                    __LINE__, path.c_str(), (int)info.type);
        return kFSMKDirBadPath;
    }
    int made = parents ? FSMKDirP(path, nullptr, false, kFSNoMode) : mkdir(path.c_str(), 0777);
    if (made != 0) {
        return kFSMKDirCreateFailed;
    }
    // Ignored by design, and not logged: the folder exists, the owner is a bonus.
    FSChown(path);
    return kFSOk;
}

int FSMKDirP(const ustring& path, const char** end, bool force, unsigned short mode)
{
    if (path.empty()) {
        return kFSFailed;
    }
    char* copy = strdup(path.c_str());
    if (copy == nullptr) {
        return kFSFailed;
    }
    // An exact mode is set after the mkdir, never by clearing the umask: that
    // is process-wide, and other threads create files meanwhile (the log).
    const bool exactMode = mode != kFSNoMode;
    const mode_t folderMode = exactMode ? mode : 0777;

    int result = kFSOk;
    char* cut = copy + (copy[0] == '/' ? 1 : 0);
    for (;;) {
        cut += strcspn(cut, "/");
        bool last = cut[0] == '\0' || cut[1] == '\0';
        char separator = *cut;
        *cut = '\0';

        struct stat st;
        bool exists = stat(copy, &st) == 0;
        if (exists && !S_ISDIR(st.st_mode)) {
            if (!force) {
                errno = last ? EEXIST : ENOTDIR;
                result = kFSFailed;
            } else if (remove(copy) != 0) {
                result = kFSFailed;
            } else {
                exists = false;
            }
        }
        if (result == kFSOk && !exists) {
            if (mkdir(copy, folderMode) < 0 || (exactMode && SetMkdirMode(copy, folderMode) != 0)) {
                result = kFSFailed;
            } else {
                ApplyOwner(copy);
            }
        }

        *cut = separator;
        if (result != kFSOk || last) {
            break;
        }
        ++cut;
    }

    if (end != nullptr) {
        *end = path.c_str() + (cut - copy);
    }
    int savedErrno = errno;
    free(copy);
    errno = savedErrno;
    return result;
}

namespace {

// Opens a folder for removal; a link in its place is not followed.
int OpenFolderAt(int at, const char* name)
{
    return openat(at, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

// The failures of OpenFolderAt that mean something else than a folder is
// there now (a link, a file): swapped since it was listed.
bool NotAFolderNow(int err)
{
    return err == ELOOP || err == ENOTDIR;
}

// Removes the entry name of the folder open as at, or for a folder sets child
// to a descriptor of it to be emptied first. false on failure; an entry gone
// meanwhile counts as removed.
bool RemoveOrOpen(int at, const char* name, unsigned char type, int& child)
{
    if (type == DT_UNKNOWN) {
        struct stat st;
        if (fstatat(at, name, &st, AT_SYMLINK_NOFOLLOW) != 0) {
            return errno == ENOENT;
        }
        type = S_ISDIR(st.st_mode) ? DT_DIR : DT_REG;
    }
    // unlink refuses a folder (EISDIR, or EPERM on some systems): one may
    // have taken the name since it was listed.
    if (type != DT_DIR) {
        if (unlinkat(at, name, 0) == 0 || errno == ENOENT) {
            return true;
        }
        if (errno != EISDIR && errno != EPERM) {
            return false;
        }
    }
    child = OpenFolderAt(at, name);
    if (child >= 0) {
        return true;
    }
    if (NotAFolderNow(errno)) {
        return unlinkat(at, name, 0) == 0 || errno == ENOENT;
    }
    return errno == ENOENT;
}

// Empties the folder open as fd (taken over), each entry named relative to
// its own folder's descriptor: no link is followed, whatever is swapped in
// meanwhile, and no path is looked up again from the top. One descriptor per
// level, all closed on return; a tree deeper than the descriptor limit fails.
// With debug, each entry's status is also asked by its full path, for the
// lines that call writes; it decides nothing.
bool EmptyFolder(int fd, const ustring& path, bool debug)
{
    struct Level {
        DIR* dir;
        std::string name;  // in the folder above
        ustring path;      // only with debug
    };
    std::vector<Level> levels;
    DIR* top = fdopendir(fd);
    if (top == nullptr) {
        close(fd);
        return false;
    }
    levels.push_back({top, std::string(), path});
    bool ok = true;
    while (ok && !levels.empty()) {
        DIR* dir = levels.back().dir;
        struct dirent* entry = NextEntry(dir);
        if (entry == nullptr) {
            // A read error ends the listing too: what is left fails the rmdir.
            const std::string name = levels.back().name;
            closedir(dir);
            levels.pop_back();
            ok = levels.empty() || unlinkat(dirfd(levels.back().dir), name.c_str(), AT_REMOVEDIR) == 0 ||
                 errno == ENOENT;
            continue;
        }
        if (IsDotOrDotDot(entry->d_name)) {
            continue;
        }
        ustring full;
        if (debug) {
            full = levels.back().path + "/" + entry->d_name;
            FILE_INFO info;
            FileStatus(full, info, true);
        }
        int child = -1;
        ok = RemoveOrOpen(dirfd(dir), entry->d_name, entry->d_type, child);
        if (child < 0) {
            continue;
        }
        DIR* sub = fdopendir(child);
        if (sub == nullptr) {
            close(child);
            ok = false;
        } else {
            levels.push_back({sub, entry->d_name, full});
        }
    }
    for (Level& level : levels) {
        closedir(level.dir);
    }
    return ok;
}

}  // namespace

int FSRemove(const ustring& path, bool /*flag*/)
{
    if (path.empty()) {
        return kFSRemoveBadPath;
    }
    // The canonical spelling costs a lookup of the whole path and is used by
    // nothing here but the debug lines.
    const bool debug = Logger::Writes(Logger::LOG_DEBUG, "file_op_debug");
    FILE_INFO info;
    if (FileStatus(path, info, debug) != kFSOk) {
        return kFSRemoveBadPath;
    }
    if (!info.exist) {
        return kFSOk;
    }
    // Links are removed themselves, never followed.
    if (info.type != FILE_TYPE_DIR) {
        return remove(path.c_str()) == 0 ? kFSOk : kFSRemoveFailed;
    }
    const int fd = OpenFolderAt(AT_FDCWD, path.c_str());
    if (fd < 0) {
        return NotAFolderNow(errno) && remove(path.c_str()) == 0 ? kFSOk : kFSRemoveFailed;
    }
    if (!EmptyFolder(fd, path, debug)) {
        return kFSRemoveFailed;
    }
    return remove(path.c_str()) == 0 ? kFSOk : kFSRemoveFailed;
}

int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& h)
{
    DIR* dir = opendir(path.c_str());
    if (dir == nullptr) {
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): FSOpenDir: Failed to open directory '%s'. %s\n",
                    __LINE__, path.c_str(), strerror(errno));
        return kFSFailed;
    }
    h.dir = dir;
    h.path = path;
    h.flags = flags;
    return kFSOk;
}

int FSReadDir(DIR_HANDLE& h, DIR_ENTRY& e)
{
    struct dirent* entry = NextEntry(h.dir);
    if (entry == nullptr) {
        if (errno == 0) {
            return kFSReadDirEnd;
        }
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): FSOpenDir: Failed to read directory '%s'. %s\n",
                    __LINE__, h.path.c_str(), strerror(errno));
        return kFSFailed;
    }

    e.mtime = 0;
    e.size = 0;
    if (h.flags & FS_DIR_WITH_STAT) {
        ustring full = h.path + "/" + entry->d_name;
        if (IsDotOrDotDot(entry->d_name)) {
            // No spelling of these names is canonical: give them the status
            // of the folder being listed.
            struct stat st;
            if (fstat(dirfd(h.dir), &st) != 0) {
                FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): FSOpenDir: Failed to get info for '%s'\n",
                            __LINE__, full.c_str());
                return kFSFailed;
            }
            e.mtime = st.st_mtime;
            e.size = st.st_size;
        } else {
            // An entry whose spelling is not canonical (a link, or a listing
            // opened by a relative path) reads as missing and keeps 0 and 0.
            FILE_INFO info;
            info.mtime = 0;
            info.size = 0;
            if (FSStat(full, info, true) < 0) {
                FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): FSOpenDir: Failed to get info for '%s'\n",
                            __LINE__, full.c_str());
                return kFSFailed;
            }
            if (info.exist) {
                e.mtime = info.mtime;
                e.size = info.size;
            }
        }
    }
    e.name = entry->d_name;
    e.type = TypeFromDirent(entry->d_type);
    return kFSReadDirEntry;
}

void FSCloseDir(DIR_HANDLE& h)
{
    closedir(h.dir);
    h.dir = nullptr;
    h.path.clear();
}

void FSInitialize(unsigned int user, unsigned int group)
{
    uid = user;
    gid = group;
}

int FSChown(const ustring& path)
{
    return chown(path.c_str(), static_cast<uid_t>(uid), static_cast<gid_t>(gid));
}

int FSInit(const ustring& /*path*/)
{
    return kFSOk;
}

int FSMktemp(const ustring& folder, ustring& out)
{
    char name[kPathBufferSize];
    snprintf(name, sizeof(name), "%s/XXXXXX", folder.c_str());
    char pattern[kPathBufferSize];
    memcpy(pattern, name, sizeof(pattern));  // mkstemp may fill in the X's and still fail
    int fd = mkstemp(name);
    if (fd < 0) {
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): mkstemp(%s): %s\n", __LINE__, pattern, strerror(errno));
        return kFSFailed;
    }
    fsync(fd);
    close(fd);
    out = name;
    chmod(name, 0644);
    return kFSOk;
}

int FSUTime(const ustring& path, long atime, long mtime)
{
    struct utimbuf times;
    times.actime = static_cast<time_t>(atime);
    times.modtime = static_cast<time_t>(mtime);
    return utime(path.c_str(), &times) == 0 ? kFSOk : kFSFailed;
}

bool FSTimeEqual(long a, long b)
{
    return a == b;
}

bool isFileLocked(const ustring& path, int mode)
{
    return access(path.c_str(), mode) != 0 && (errno == EACCES || errno == EPERM);
}

bool isMountPoint(const ustring& path)
{
    char type[64];
    if (FSTypeName(path.c_str(), type, sizeof(type)) != 0) {
        FILE_OP_LOG(LOG_ERROR, "[ERROR] file-op(%d): isMountPoint: Failed to get file system info '%s'. %s\n",
                    __LINE__, path.c_str(), strerror(errno));
        return false;
    }
    return strcmp(type, "nfs") == 0 || strcmp(type, "smbfs") == 0 || strcmp(type, "afpfs") == 0;
}

bool IsMSDOS(const ustring& path)
{
    char type[64];
    if (FSTypeName(path.c_str(), type, sizeof(type)) != 0) {
        FILE_OP_LOG(LOG_ERROR,
                    "[ERROR] file-op(%d): IsSupportLargeFile: Failed to get file system info "
                    "'%s'. %s\n",
                    __LINE__, path.c_str(), strerror(errno));
        return false;
    }
    if (strcmp(type, "msdos") != 0) {
        return false;
    }
    FILE_OP_LOG(LOG_WARNING, "[WARNING] file-op(%d): Detect a MSDOS platform for path '%s'.\n", __LINE__,
                path.c_str());
    return true;
}

int FSCreateTempPath(const ustring& folder, ustring& out)
{
    out = TmpNameGen::getInstance()->getTmpPath(folder);
    return out.empty() ? kFSFailed : kFSOk;
}
