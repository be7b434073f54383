#include "drift-service.h"

#include <cstdio>

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QString>
#include <QVariant>

#include "extractor.h"
#include "file-op.h"
#include "log.h"

namespace {

const char kComponent[] = "service_debug";
// Backup names run from number 0 ("_tmp") to this one ("_tmp9").
const int kLastBackupNumber = 9;

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
                       "[ERROR] drift-service(%d): snprintf failed (continuing without postfix)",
                       __LINE__);
        postfix[0] = '\0';
    }
    return name + postfix;
}

// A missing file or key leaves the field as it was; QSettings' status is not
// consulted, a broken record simply yields fewer keys.
void ReadVersionRecord(const ustring& path, VerInfo& info)
{
    QSettings record(QString::fromUtf8(path.c_str_utf8()), QSettings::IniFormat);
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
}

}  // namespace

Service::Service() : timeout(0) {}

Service::~Service() = default;

void Service::SetTimeout(int value)
{
    timeout = value;
}

ustring Service::GetUserInstallPath()
{
    return ToUstring(QDir::homePath());
}

ustring Service::GetRootDriftwellInstallPath()
{
    return ToUstring(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" + "../.."));
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
    ReadVersionRecord(GetRootDriftwellResourceInstallPath() + "/" + "INFO", target_version);
    Logger::LogMsg(Logger::LOG_INFO, kComponent,
                   "[INFO] drift-service(%d): target_version = (%s, %s, %s, %s)\n", __LINE__,
                   target_version.major_version.c_str(), target_version.minor_version.c_str(),
                   target_version.build_version.c_str(),
                   target_version.icon_overlay_version.c_str());
}

void Service::LoadSourceVersion()
{
    ustring path = GetUserDriftwellAppInstallPath() + "/Contents/Resources" + "/" + "INFO";
    if (!IsFileExist(path, false)) {
        // Not an error: there is no per-user copy yet, or it lost its record.
        Logger::LogMsg(Logger::LOG_INFO, kComponent,
                       "[INFO] drift-service(%d): source does not exist\n", __LINE__);
        return;
    }
    ReadVersionRecord(path, source_version);
    Logger::LogMsg(Logger::LOG_INFO, kComponent,
                   "[INFO] drift-service(%d): source_version = (%s, %s, %s, %s)\n", __LINE__,
                   source_version.major_version.c_str(), source_version.minor_version.c_str(),
                   source_version.build_version.c_str(),
                   source_version.icon_overlay_version.c_str());
}

int Service::PrepareUserEnv()
{
    const ustring app = app_path;
    ustring backup;
    int n = 0;
    if (IsFileExist(app, false)) {
        // Earlier interrupted runs may still hold the lower numbers: take the
        // first name the rename accepts.
        for (;;) {
            backup = GetAppBackupDir(app, n);
            if (FSRename(app, backup, false) == 0)
                break;
            Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                           "[ERROR] drift-service(%d): failed to backup app from '%s' -> '%s'\n",
                           __LINE__, app.c_str(), backup.c_str());
            if (n >= kLastBackupNumber) {
                // Fatal for the upgrade only: the old copy stays in place and is launched.
                Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                               "[ERROR] drift-service(%d): failed to backup app from '%s' -> "
                               "'%s' at max retries, exiting\n",
                               __LINE__, app.c_str(), backup.c_str());
                return -1;
            }
            ++n;
        }
    }

    if (ExtractPackage() == 0) {
        Logger::LogMsg(Logger::LOG_INFO, kComponent,
                       "[INFO] drift-service(%d): user installation is ready, removing backup app\n",
                       __LINE__);
        // Best effort: a backup that stays is removed by a later upgrade that
        // reaches its number.
        for (int i = 0; i <= n; ++i)
            FSRemove(GetAppBackupDir(app, i), false);
        return 0;
    }

    if (backup.empty()) {
        // First installation: the partial copy stays; the next run decides on
        // whether its executable made it.
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
    // Unchecked: should the rename back fail, the next run sees no per-user
    // copy and installs afresh.
    FSRemove(app, false);
    FSRename(backup, app, false);
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
    Logger::LogMsg(Logger::LOG_INFO, kComponent,
                   "[INFO] drift-service(%d): extract package: '%s' -> '%s'\n", __LINE__,
                   archive.c_str(), destination.c_str());
    Extractor extractor;
    extractor.dest_path = destination;
    extractor.archive_path = archive;
    return extractor.Extract();
}

void Service::RemoveAgedFolders()
{
    const ustring path = GetUserDriftwellInstallPath() + "/app";
    Logger::LogMsg(Logger::LOG_INFO, kComponent,
                   "[INFO] drift-service(%d): removing aged app folder %s\n", __LINE__,
                   path.c_str());
    // Best effort: a folder that stays is tried again on the next launch.
    FSRemove(path, false);
}

int Service::FSCopyPath(const ustring& source, const ustring& destination)
{
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent,
                   "[DEBUG] drift-service(%d): copy from '%s' to '%s'\n", __LINE__,
                   source.c_str(), destination.c_str());
    _FILE_INFO_tag info;
    if (FSStat(source, info, false) < 0) {
        Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                       "[ERROR] drift-service(%d): FSCopyPath: failed to stat source '%s'\n",
                       __LINE__, source.c_str());
        return -1;
    }
    if (!info.exist) {
        Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                       "[ERROR] drift-service(%d): FSCopyPath: source path '%s' does not exist\n",
                       __LINE__, source.c_str());
        return -1;
    }
    if (info.type != FILE_TYPE_DIR)
        return FSCopy(source, destination, false) == 0 ? 0 : -1;

    if (FSMKDir(destination, true) < 0) {
        Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                       "[ERROR] drift-service(%d): FSCopyPath: failed to create dest folder '%s'\n",
                       __LINE__, destination.c_str());
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
    while (FSReadDir(handle, entry) > 0) {
        if (entry.name.compare(".") == 0 || entry.name.compare("..") == 0)
            continue;
        const ustring child_source = source + "/" + entry.name;
        const ustring child_destination = destination + "/" + entry.name;
        const int r = entry.type == FILE_TYPE_DIR
                          ? FSCopyPath(child_source, child_destination)
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
