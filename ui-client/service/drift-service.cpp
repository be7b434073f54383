#include "drift-service.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QString>
#include <QVariant>

#include "extractor.h"
#include "file-op.h"
#include "log.h"
#include "user_folders.h"

namespace {

const char kComponent[] = "service_debug";
// Backup names run from number 0 ("_tmp") to this one ("_tmp9").
const int kLastBackupNumber = 9;
// A record is a few lines; anything larger is not one.
const off_t kMaxRecordSize = 64 * 1024;

ustring ToUstring(const QString& text)
{
    return ustring(text.toUtf8().constData());
}

ustring GetAppBackupDir(const ustring& base, int number)
{
    ustring name = base + "_tmp";
    if (number == 0)
        return name;
    char postfix[8];
    if (snprintf(postfix, sizeof postfix, "%d", number) < 0) {
        Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                       "[ERROR] drift-service(%d): snprintf failed (continuing without postfix)", __LINE__);
        postfix[0] = '\0';
    }
    return name + postfix;
}

// Why the record at path must not be handed to QSettings, which would block
// on a FIFO and read a device such as /dev/zero without end; nullptr for a
// regular file of at most kMaxRecordSize, and for one that cannot be opened
// (QSettings finds that missing or unreadable itself). Opening does not
// block. QSettings opens the path again: a file swapped in between is not
// guarded against, the folders are the user's own.
const char* RecordFileProblem(const ustring& path)
{
    const int fd = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0)
        return nullptr;
    struct stat st;
    const char* problem = nullptr;
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode))
        problem = "is not a regular file";
    else if (st.st_size > kMaxRecordSize)
        problem = "is larger than 64 KiB";
    close(fd);
    return problem;
}

// A missing file or key leaves the field as it was: a broken record simply
// yields fewer keys. Its status tells the caller why, where that matters. A
// file that RecordFileProblem refuses is not read (AccessError), and refused
// (if given) receives why.
QSettings::Status ReadVersionRecord(const ustring& path, VerInfo& info, const char** refused = nullptr)
{
    const char* problem = RecordFileProblem(path);
    if (refused != nullptr)
        *refused = problem;
    if (problem != nullptr)
        return QSettings::AccessError;
    QSettings record(QFile::decodeName(path.c_str()), QSettings::IniFormat);
    record.beginGroup("Version");
    const struct {
        const char* key;
        ustring* field;
    } fields[] = {
        {"major_version", &info.major_version},
        {"minor_version", &info.minor_version},
        {"build_version", &info.build_version},
        {"icon_overlay_version", &info.icon_overlay_version},
    };
    for (const auto& f : fields) {
        if (record.contains(f.key))
            *f.field = ToUstring(record.value(f.key).toString());
    }
    return record.status();
}

// Why the bundle's record, read as info, gives no build number to compare;
// nullptr when it does. QSettings takes junk for an empty record, so what is
// missing is the build.
const char* TargetRecordProblem(const ustring& path, QSettings::Status status, const VerInfo& info)
{
    struct stat st;
    if (stat(path.c_str(), &st) != 0 || !S_ISREG(st.st_mode) || status == QSettings::AccessError)
        return "cannot be read";
    if (status == QSettings::FormatError)
        return "is malformed";
    if (info.build_version.empty())
        return "has no build number";
    char* end = nullptr;
    std::strtol(info.build_version.c_str(), &end, 10);
    return *end == '\0' ? nullptr : "has a build number that is not a number";
}

// Why the copy at folder is not complete; empty when it is: a client to
// start, and a record with a usable build. The package carries its record
// last, so an extraction cut short never has one, and a removal takes it
// first. build (if given) receives the record's build number.
ustring CopyProblem(const ustring& folder, int* build)
{
    if (const char* problem = ClientProblem(folder))
        return "client '" + ClientExecutablePath(folder) + "' " + problem;
    const ustring path = VersionRecordPath(folder);
    VerInfo record;
    const char* refused = nullptr;
    ReadVersionRecord(path, record, &refused);
    if (refused != nullptr)
        return "version record '" + path + "' " + refused;
    int number = 0;
    if (record.build_version.empty())
        return "version record '" + path + "' has no build number";
    if (!ParseBuildNumber(record.build_version, number))
        return "version record '" + path + "' has build number '" + record.build_version +
               "', negative or too large";
    if (build != nullptr)
        *build = number;
    return ustring();
}

bool IsCompleteCopy(const ustring& folder, int* build)
{
    return CopyProblem(folder, build).empty();
}

// The bundle's build as the upgrade decision counts it (0 without a usable
// one); what is wrong with its record was logged when it was loaded.
int BundleBuild()
{
    VerInfo bundle;
    ReadVersionRecord(VersionRecordPath(Service::GetRootDriftwellInstallPath()), bundle);
    int build = 0;
    ParseBuildNumber(bundle.build_version, build);
    return build;
}

// The number of the complete backup with the highest build (the lowest
// number among equals), or -1.
int NewestCompleteBackup(const ustring& app)
{
    int newest = -1, newest_build = 0;
    for (int i = 0; i <= kLastBackupNumber; ++i) {
        int build = 0;
        if (IsCompleteCopy(GetAppBackupDir(app, i), &build) && (newest < 0 || build > newest_build)) {
            newest = i;
            newest_build = build;
        }
    }
    return newest;
}

bool IsRealFolder(const ustring& path)
{
    _FILE_INFO_tag info;
    return GetFileInfo(path, info) == 0 && info.exist && info.type == FILE_TYPE_DIR;
}

// Removes a copy of the bundle, its record first: a removal cut short never
// leaves a folder that passes for a complete copy. A link is removed itself.
// 0, or the errno of the failure (-1 when it left none).
int RemoveCopy(const ustring& folder)
{
    // Only through real folders: a link among them could point anywhere.
    if (IsRealFolder(folder) && IsRealFolder(folder + "/Contents") &&
        IsRealFolder(folder + "/Contents/Resources"))
        FSRemove(VersionRecordPath(folder), false);
    errno = 0;
    if (FSRemove(folder, false) == kFSOk)
        return 0;
    return errno != 0 ? errno : -1;
}

// Every backup name but number keep, each removal logged.
void RemoveLeftoverBackups(const ustring& app, int keep)
{
    for (int i = 0; i <= kLastBackupNumber; ++i) {
        const ustring backup = GetAppBackupDir(app, i);
        _FILE_INFO_tag info;
        if (i == keep || GetFileInfo(backup, info) != 0 || !info.exist)
            continue;
        if (info.type == FILE_TYPE_LINK)
            Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                           "[WARNING] drift-service(%d): backup name '%s' is a symbolic link, removing "
                           "the link\n",
                           __LINE__, backup.c_str());
        else
            Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                           "[WARNING] drift-service(%d): removing leftover backup '%s'\n", __LINE__,
                           backup.c_str());
        // It holds its name until a later launch manages; the rename of the
        // old copy takes the next free one.
        const int err = RemoveCopy(backup);
        if (err != 0)
            Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                           "[ERROR] drift-service(%d): failed to remove leftover backup '%s': %s\n", __LINE__,
                           backup.c_str(), err > 0 ? strerror(err) : "cause unknown");
    }
}

}  // namespace

ustring ClientExecutablePath(const ustring& app)
{
    return app + "/Contents/MacOS/" + kClientExecutable;
}

ustring VersionRecordPath(const ustring& app)
{
    return app + "/Contents/Resources/INFO";
}

bool ParseBuildNumber(const ustring& text, int& number)
{
    number = 0;
    if (text.empty())
        return false;
    // atoi's reading, without its wrap: 2147483648 would be INT_MIN.
    errno = 0;
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    if (errno == ERANGE || value < 0 || value > INT_MAX)
        return false;
    number = static_cast<int>(value);
    return true;
}

const char* ClientProblem(const ustring& app)
{
    const ustring paths[] = {app, app + "/Contents", app + "/Contents/MacOS", ClientExecutablePath(app)};
    struct stat st;
    for (const ustring& path : paths) {
        if (lstat(path.c_str(), &st) != 0)
            return errno == ENOENT || errno == ENOTDIR ? "is missing" : "cannot be examined";
        if (&path != &paths[3] && !S_ISDIR(st.st_mode))
            return "is not inside the copy (a link or a file on its way)";
    }
    if (S_ISLNK(st.st_mode))
        return "is a symbolic link";
    if (S_ISDIR(st.st_mode))
        return "is a folder";
    if (!S_ISREG(st.st_mode))
        return "is not a regular file";
    return (st.st_mode & S_IXUSR) != 0 ? nullptr : "is not executable";
}

Service::Service() : timeout(0) {}

Service::~Service() = default;

void Service::SetTimeout(int value)
{
    timeout = value;
}

// Both as bytes, never through QString: a folder name that is not UTF-8
// would come back as another name.
ustring Service::GetUserInstallPath()
{
    return ustring(HomeFolder().c_str());
}

// Where the executable really is: two folders above its Contents/MacOS.
ustring Service::GetRootDriftwellInstallPath()
{
    return ustring(ParentFolder(ExecutablePath(), 3).c_str());
}

ustring Service::GetRootDriftwellResourceInstallPath()
{
    return GetRootDriftwellInstallPath() + "/Contents/Resources";
}

ustring Service::GetUserDriftwellInstallPath()
{
    return GetUserInstallPath() + "/" + ".Driftwell";
}

ustring Service::GetUserDriftwellAppInstallPath()
{
    return GetUserDriftwellInstallPath() + "/" + "Driftwell.app";
}

ustring Service::GetUserDriftwellDataInstallPath()
{
    return GetUserDriftwellInstallPath() + "/" + "data";
}

void Service::LoadTargetVersion()
{
    const ustring path = VersionRecordPath(GetRootDriftwellInstallPath());
    const char* refused = nullptr;
    const QSettings::Status status = ReadVersionRecord(path, target_version, &refused);
    Logger::LogMsg(Logger::LOG_INFO, kComponent,
                   "[INFO] drift-service(%d): target_version = (%s, %s, %s, %s)\n", __LINE__,
                   target_version.major_version.c_str(), target_version.minor_version.c_str(),
                   target_version.build_version.c_str(), target_version.icon_overlay_version.c_str());
    // A broken bundle: without its build nothing is upgraded unless the
    // client is missing.
    if (const char* problem = refused != nullptr ? refused
                                                 : TargetRecordProblem(path, status, target_version)) {
        Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                       "[WARNING] drift-service(%d): bundle version record '%s' %s\n", __LINE__, path.c_str(),
                       problem);
    }
}

void Service::LoadSourceVersion()
{
    const ustring path = VersionRecordPath(GetUserDriftwellAppInstallPath());
    const char* refused = nullptr;
    if (IsFileExist(path, false)) {
        ReadVersionRecord(path, source_version, &refused);
        if (refused == nullptr) {
            Logger::LogMsg(Logger::LOG_INFO, kComponent,
                           "[INFO] drift-service(%d): source_version = (%s, %s, %s, %s)\n", __LINE__,
                           source_version.major_version.c_str(), source_version.minor_version.c_str(),
                           source_version.build_version.c_str(), source_version.icon_overlay_version.c_str());
            return;
        }
        Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                       "[WARNING] drift-service(%d): version record '%s' %s, taken as missing\n", __LINE__,
                       path.c_str(), refused);
    }
    // Not an error: there is no per-user copy yet, or it lost its record.
    Logger::LogMsg(Logger::LOG_INFO, kComponent, "[INFO] drift-service(%d): source does not exist\n",
                   __LINE__);
}

int Service::PrepareUserEnv()
{
    const ustring app = app_path;
    // An interrupted run may have left a partial copy in place, the old copy
    // under a backup name, or stale backups. Only a complete copy is worth
    // keeping; the rest must not block the backup rename.
    int kept = -1;
    const bool app_complete = IsCompleteCopy(app, nullptr);
    if (!app_complete) {
        kept = NewestCompleteBackup(app);
        _FILE_INFO_tag info;
        if (GetFileInfo(app, info) == 0 && info.exist) {
            Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                           "[WARNING] drift-service(%d): removing incomplete copy '%s'\n", __LINE__,
                           app.c_str());
            RemoveCopy(app);
        }
        if (kept >= 0)
            Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                           "[WARNING] drift-service(%d): no complete copy in place, '%s' is the old "
                           "copy\n",
                           __LINE__, GetAppBackupDir(app, kept).c_str());
    }
    RemoveLeftoverBackups(app, kept);

    ustring backup = kept >= 0 ? GetAppBackupDir(app, kept) : ustring();
    if (app_complete) {
        // A leftover that could not be removed still holds its name: take the
        // first name the rename accepts.
        for (int n = 0;; ++n) {
            backup = GetAppBackupDir(app, n);
            if (FSRename(app, backup, false) == kFSOk)
                break;
            Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                           "[ERROR] drift-service(%d): failed to backup app from '%s' -> '%s'\n", __LINE__,
                           app.c_str(), backup.c_str());
            if (n >= kLastBackupNumber) {
                // Fatal for the upgrade only: the old copy stays in place and is launched.
                Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                               "[ERROR] drift-service(%d): failed to backup app from '%s' -> "
                               "'%s' at max retries, exiting\n",
                               __LINE__, app.c_str(), backup.c_str());
                return -1;
            }
        }
    }

    int extracted = ExtractPackage();
    int build = 0;
    if (extracted == 0) {
        // A package without a startable client or a usable record extracts
        // without a fault; the old copy must not go for it.
        const ustring problem = CopyProblem(app, &build);
        if (!problem.empty()) {
            Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                           "[ERROR] drift-service(%d): the new copy '%s' is not complete: %s\n", __LINE__,
                           app.c_str(), problem.c_str());
            extracted = -1;
        }
    }
    if (extracted == 0) {
        Logger::LogMsg(Logger::LOG_INFO, kComponent,
                       "[INFO] drift-service(%d): user installation is ready, removing backup app\n",
                       __LINE__);
        const int bundle_build = BundleBuild();
        if (build < bundle_build) {
            // The package's record disagrees with the bundle's: the decision
            // will find the copy older than the bundle on every launch.
            Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                           "[WARNING] drift-service(%d): the new copy has build %d, below the bundle's %d: "
                           "its package's version record disagrees with the bundle's, every launch will "
                           "install it again\n",
                           __LINE__, build, bundle_build);
        }
        // Best effort: a backup that stays goes on a later launch.
        if (!backup.empty())
            RemoveCopy(backup);
        return 0;
    }

    if (backup.empty()) {
        // Nothing complete to go back to: the partial copy stays, and the next
        // run starts afresh.
        Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                       "[ERROR] drift-service(%d): Failed to extract package, and no old "
                       "installation to rollback\n",
                       __LINE__);
        return -1;
    }
    Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                   "[ERROR] drift-service(%d): Failed to extract package, rollback to old "
                   "installation\n",
                   __LINE__);
    const int newest = NewestCompleteBackup(app);
    if (newest < 0) {
        // Never a partial copy in place: the new one stays, as on a first
        // installation, and the next launch starts afresh.
        Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                       "[WARNING] drift-service(%d): no complete backup to restore ('%s' is not one), the "
                       "partial new copy '%s' stays\n",
                       __LINE__, backup.c_str(), app.c_str());
        return -1;
    }
    const ustring restore = GetAppBackupDir(app, newest);
    Logger::LogMsg(Logger::LOG_WARNING, kComponent, "[WARNING] drift-service(%d): restoring '%s'\n", __LINE__,
                   restore.c_str());
    // Unchecked: should the rename back fail, the next run finds the complete
    // backup and takes it as the old copy again.
    RemoveCopy(app);
    FSRename(restore, app, false);
    return -1;
}

int Service::ExtractPackage()
{
    const ustring archive = GetRootDriftwellResourceInstallPath() + "/package/driftwell.tpk";
    const ustring destination = GetUserDriftwellAppInstallPath();
    if (FSMKDir(destination, true) < 0) {
        Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                       "[ERROR] drift-service(%d): failed to create folder: '%s'\n", __LINE__,
                       destination.c_str());
        return -1;
    }
    Logger::LogMsg(Logger::LOG_INFO, kComponent, "[INFO] drift-service(%d): extract package: '%s' -> '%s'\n",
                   __LINE__, archive.c_str(), destination.c_str());
    Extractor extractor;
    extractor.dest_path = destination;
    extractor.archive_path = archive;
    return extractor.Extract();
}

void Service::RemoveAgedFolders()
{
    const ustring path = GetUserDriftwellInstallPath() + "/app";
    Logger::LogMsg(Logger::LOG_INFO, kComponent, "[INFO] drift-service(%d): removing aged app folder %s\n",
                   __LINE__, path.c_str());
    // Best effort: a folder that stays is tried again on the next launch.
    FSRemove(path, false);

    // Backups outlive an upgrade cut short after its extraction; once the copy
    // in place is whole and needs no upgrade, nothing else is worth keeping.
    int build = 0;
    if (IsCompleteCopy(app_path, &build) && build >= BundleBuild())
        RemoveLeftoverBackups(app_path, -1);
}

int Service::FSCopyPath(const ustring& source, const ustring& destination)
{
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] drift-service(%d): copy from '%s' to '%s'\n",
                   __LINE__, source.c_str(), destination.c_str());
    _FILE_INFO_tag info;
    if (FSStat(source, info, false) < 0) {
        Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                       "[ERROR] drift-service(%d): FSCopyPath: failed to stat source '%s'\n", __LINE__,
                       source.c_str());
        return -1;
    }
    if (!info.exist) {
        Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                       "[ERROR] drift-service(%d): FSCopyPath: source path '%s' does not exist\n", __LINE__,
                       source.c_str());
        return -1;
    }
    if (info.type != FILE_TYPE_DIR)
        return FSCopy(source, destination, false) == kFSOk ? 0 : -1;

    if (FSMKDir(destination, true) < 0) {
        Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                       "[ERROR] drift-service(%d): FSCopyPath: failed to create dest folder '%s'\n", __LINE__,
                       destination.c_str());
        return -1;
    }
    DIR_HANDLE handle;
    if (FSOpenDir(source, 0, handle) < 0) {
        // Not a failure: the folder is copied as an empty one.
        Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                       "[WARNING] drift-service(%d): FSCopyPath: failed to create handle  for src "
                       "'%s' failed\n",
                       __LINE__, source.c_str());
        return 0;
    }
    DIR_ENTRY entry;
    int result = 0;
    while (FSReadDir(handle, entry) == kFSReadDirEntry) {
        if (entry.name.compare(".") == 0 || entry.name.compare("..") == 0)
            continue;
        const ustring child_source = source + "/" + entry.name;
        const ustring child_destination = destination + "/" + entry.name;
        const int r = entry.type == FILE_TYPE_DIR ? FSCopyPath(child_source, child_destination)
                                                  : FSCopy(child_source, child_destination, false);
        if (r < 0) {
            Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                           "[ERROR] drift-service(%d): FSCopyPath: failed to copy from '%s' to "
                           "'%s'\n",
                           __LINE__, child_source.c_str(), child_destination.c_str());
            result = -1;
            break;
        }
    }
    FSCloseDir(handle);
    return result;
}
