// Whether process pid runs the executable file at exe_path (same file: device
// and inode). A script counts when the first or second word of its command line
// names that file. False for a missing process or one we may not inspect.
#ifndef PLATFORM_PROCESS_IDENTITY_H
#define PLATFORM_PROCESS_IDENTITY_H

#include <sys/types.h>

bool ProcessRunsExecutable(pid_t pid, const char* exe_path);

#endif
