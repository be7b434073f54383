// The launching service starts the bundle or brings its running instance to
// the front by itself; the executable name and the known pid are not needed.
#include "app_launch.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>

bool OpenApplicationBundle(const char* bundle_path, const char*, pid_t)
{
    // decodeName: the bytes as the file system keeps them, whatever they are.
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(bundle_path)));
}
