// Which program a process id names, so that a signal never reaches a process
// that merely inherited a number from a stale pid file.
#ifndef DW_PLATFORM_PROCESS_IDENTITY_H
#define DW_PLATFORM_PROCESS_IDENTITY_H

#include <sys/types.h>

enum ProcessMatch {
    PROCESS_MISSING = 0,  // no such process, a zombie, or pid not positive
    PROCESS_OTHER = 1,    // alive, but not running exe_path (or not inspectable)
    PROCESS_MATCHES = 2,  // alive and running exe_path
};

// Whether process pid runs the executable file at exe_path (same file: device
// and inode, so links and renamed paths still match). On Linux a script counts
// too: when exe_path begins with "#!", the first or second word of the
// process's command line naming that file is enough (a relative word is taken
// from the process's working folder). On macOS only the executable image counts.
ProcessMatch MatchProcessExecutable(pid_t pid, const char* exe_path);

// MatchProcessExecutable(...) == PROCESS_MATCHES.
bool ProcessRunsExecutable(pid_t pid, const char* exe_path);

// The largest process id the system hands out (Linux: kernel.pid_max), at
// most INT_MAX; INT_MAX where the system has no such limit to read.
long MaxProcessId();

#endif
