#include "single_instance.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QFile>

#include "drift-service.h"
#include "log.h"
#include "user_folders.h"

namespace {

QString LockName()
{
    const std::string exe = ExecutablePath();
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(QByteArray::fromStdString(exe));
    hash.addData(QByteArrayLiteral("\n"));
    hash.addData(QByteArray::number(static_cast<qulonglong>(getuid())));
    return QStringLiteral("driftwell-launcher-") + QString::fromLatin1(hash.result().toHex().left(16)) +
           QStringLiteral(".lock");
}

}  // namespace

SingleInstance::SingleInstance()
{
    const QString name = LockName();
    const ustring user_folder = Service::GetUserDriftwellInstallPath();
    for (const std::string& folder : PrivateLockFolders(user_folder.c_str())) {
        const QString path = QFile::decodeName(folder.c_str()) + QLatin1Char('/') + name;
        std::unique_ptr<QLockFile> lock(new QLockFile(path));
        // Age says nothing about a launcher waiting on a slow upgrade; only a
        // dead holder makes the lock stale.
        lock->setStaleLockTime(0);
        if (lock->tryLock(0)) {
            m_lock = std::move(lock);
            return;
        }
        if (lock->error() == QLockFile::LockFailedError) {
            m_running = true;
            return;
        }
        // Not fatal: the next folder may hold it.
        Logger::LogMsg(Logger::LOG_NOTE, "launcher_debug",
                       "[NOTE] single_instance(%d): cannot lock '%s' (%s)\n", __LINE__,
                       QFile::encodeName(path).constData(),
                       lock->error() == QLockFile::PermissionError ? "no permission" : "cannot be made");
    }
    Logger::LogMsg(Logger::LOG_WARNING, "launcher_debug",
                   "[WARNING] single_instance(%d): no folder can hold the single-instance lock, running "
                   "without it\n",
                   __LINE__);
}
