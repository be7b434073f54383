#include "test_files_qt.h"

#include <QCoreApplication>
#include <QFile>

namespace dwtest {

QByteArray ReadFile(const QString& path)
{
    return QByteArray::fromStdString(ReadFile(QFile::encodeName(path).toStdString()));
}

bool WriteFile(const QString& path, const QByteArray& data, int mode)
{
    return WriteFile(QFile::encodeName(path).toStdString(), data.toStdString(), mode);
}

Tree Snapshot(const QString& root)
{
    return Snapshot(QFile::encodeName(root).toStdString());
}

void EnsureCoreApplication()
{
    static int argc = 1;
    static char name[] = "dw_test";
    static char* argv[] = {name, nullptr};
    if (QCoreApplication::instance() == nullptr)
        new QCoreApplication(argc, argv);
}

}  // namespace dwtest
