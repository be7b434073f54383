// The file helpers for tests that hold their paths and bytes in Qt's types.
#ifndef DW_TESTS_SUPPORT_TEST_FILES_QT_H
#define DW_TESTS_SUPPORT_TEST_FILES_QT_H

#include <QByteArray>
#include <QString>

#include "test_files.h"

namespace dwtest {

QByteArray ReadFile(const QString& path);
bool WriteFile(const QString& path, const QByteArray& data, int mode = 0644);
Tree Snapshot(const QString& root);
// A string literal as a path is one of ours, not a QString.
inline std::string ReadFile(const char* path)
{
    return ReadFile(std::string(path));
}

// An application object for QProcess and the like, unless there is one.
void EnsureCoreApplication();

}  // namespace dwtest

#endif
