#include "drift-service.h"

#include <sys/stat.h>
#include <unistd.h>
#include <cstdio>
#include <cstdlib>

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
const char kClientExecutable[] = "Contents/MacOS/drift-ui";
const char kVersionRecord[] = "Contents/Resources/INFO";

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

// A missing file or key leaves the field as it was: a broken record simply
// yields fewer keys. Its status tells the caller why, where that matters.
QSettings::Status ReadVersionRecord(const ustring& path, VerInfo& info)
{
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

// As the upgrade decision reads it: empty is 0, otherwise atoi.
int BuildNumber(const VerInfo& info)
{
    return info.build_version.empty() ? 0 : std::atoi(info.build_version.c_str_utf8());
}

// The client executable and a record with a build: the package carries its
// record last, so an extraction cut short never has one, and a removal takes
// it first. build (if given) receives the record's build number.
bool IsCompleteCopy(const ustring& folder, int* build)
{
    if (access((folder + "/" + kClientExecutable).c_str(), F_OK) != 0)
        return false;
    VerInfo record;
    ReadVersionRecord(folder + "/" + kVersionRecord, record);
    if (record.build_version.empty())
        return false;
    if (build != nullptr)
        *build = BuildNumber(record);
    return true;
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
// leaves a folder that passes for a complete copy. Best effort.
void RemoveCopy(const ustring& folder)
{
    // Only through real folders: a link among them could point anywhere.
    if (IsRealFolder(folder) && IsRealFolder(folder + "/Contents") &&
        IsRealFolder(folder + "/Contents/Resources"))
        FSRemove(folder + "/" + kVersionRecord, false);
    FSRemove(folder, false);
}

// Every backup name but number keep, each removal logged.
void RemoveLeftoverBackups(const ustring& app, int keep)
{
    for (int i = 0; i <= kLastBackupNumber; ++i) {
        const ustring backup = GetAppBackupDir(app, i);
        _FILE_INFO_tag info;
        if (i == keep || GetFileInfo(backup, info) != 0 || !info.exist)
            continue;
        Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                       "[WARNING] drift-service(%d): removing leftover backup '%s'\n", __LINE__,
                       backup.c_str());
        RemoveCopy(backup);
    }
}

}  // namespace

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
    const ustring path = GetRootDriftwellResourceInstallPath() + "/" + "INFO";
    const QSettings::Status status = ReadVersionRecord(path, target_version);
    Logger::LogMsg(Logger::LOG_INFO, kComponent,
                   "[INFO] drift-service(%d): target_version = (%s, %s, %s, %s)\n", __LINE__,
                   target_version.major_version.c_str(), target_version.minor_version.c_str(),
                   target_version.build_version.c_str(), target_version.icon_overlay_version.c_str());
    // A broken bundle: without its build nothing is upgraded unless the
    // client is missing.
    if (const char* problem = TargetRecordProblem(path, status, target_version)) {
        Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                       "[WARNING] drift-service(%d): bundle version record '%s' %s\n", __LINE__, path.c_str(),
                       problem);
    }
}

void Service::LoadSourceVersion()
{
    ustring path = GetUserDriftwellAppInstallPath() + "/Contents/Resources" + "/" + "INFO";
    if (!IsFileExist(path, false)) {
        // Not an error: there is no per-user copy yet, or it lost its record.
        Logger::LogMsg(Logger::LOG_INFO, kComponent, "[INFO] drift-service(%d): source does not exist\n",
                       __LINE__);
        return;
    }
    ReadVersionRecord(path, source_version);
    Logger::LogMsg(Logger::LOG_INFO, kComponent,
                   "[INFO] drift-service(%d): source_version = (%s, %s, %s, %s)\n", __LINE__,
                   source_version.major_version.c_str(), source_version.minor_version.c_str(),
                   source_version.build_version.c_str(), source_version.icon_overlay_version.c_str());
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

    if (ExtractPackage() == 0) {
        Logger::LogMsg(Logger::LOG_INFO, kComponent,
                       "[INFO] drift-service(%d): user installation is ready, removing backup app\n",
                       __LINE__);
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
    if (newest < 0)
        return -1;  // never put a partial copy in place
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
    VerInfo bundle;
    ReadVersionRecord(GetRootDriftwellResourceInstallPath() + "/" + "INFO", bundle);
    int build = 0;
    if (IsCompleteCopy(app_path, &build) && build >= BuildNumber(bundle))
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
