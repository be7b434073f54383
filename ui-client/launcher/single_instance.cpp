#include "single_instance.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>

QString SingleInstance::LockPath()
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(QCoreApplication::applicationFilePath().toUtf8());
    hash.addData(QByteArrayLiteral("\n"));
    hash.addData(QByteArray::number(static_cast<qulonglong>(getuid())));
    const QString checksum = QString::fromLatin1(hash.result().toHex().left(16));
    return QDir::tempPath() + QStringLiteral("/driftwell-launcher-") + checksum + QStringLiteral(".lock");
}

SingleInstance::SingleInstance() : m_lock(LockPath()), m_running(false)
{
    // Age says nothing about a launcher waiting on a slow upgrade; only a dead
    // holder makes the lock stale.
    m_lock.setStaleLockTime(0);
    if (!m_lock.tryLock(0))
        m_running = m_lock.error() == QLockFile::LockFailedError;
}
