// Asks the desktop to open an application bundle: start it, or bring an
// already running instance to the front. True on success. Paths are the
// file system's bytes, as given.
// macOS: the launching service through QDesktopServices::openUrl.
// Elsewhere: the bundle's Contents/MacOS/<exe_name> is started detached, in its
// own session, standard streams on /dev/null, working folder "/"; it is not
// left as a child of the caller. False when it is missing, not executable or
// its exec fails. When known_pid (> 0) already runs that executable, nothing is
// started and the result is true ("bring to front").
#ifndef DW_PLATFORM_APP_LAUNCH_H
#define DW_PLATFORM_APP_LAUNCH_H

#include <sys/types.h>

bool OpenApplicationBundle(const char* bundle_path, const char* exe_name, pid_t known_pid);

#endif
