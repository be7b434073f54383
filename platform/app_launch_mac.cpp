// The launching service starts the bundle or brings its running instance to
// the front by itself; the executable name and the known pid are not needed.
#include "app_launch.h"

#include <QDesktopServices>
#include <QUrl>

bool OpenApplicationBundle(const QString& bundle_path, const QString&, pid_t)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(bundle_path));
}
