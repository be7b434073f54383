// proc_pidpath names the running image; a script client is not recognised here
// (its image is the interpreter), which only means it is not signalled.
#include "process_identity.h"

#include <libproc.h>
#include <sys/stat.h>
#include <cerrno>
#include <climits>

ProcessMatch MatchProcessExecutable(pid_t pid, const char* exe_path)
{
    if (pid <= 0)
        return PROCESS_MISSING;
    char image[PROC_PIDPATHINFO_MAXSIZE];
    if (proc_pidpath(pid, image, sizeof image) <= 0)
        return errno == ESRCH ? PROCESS_MISSING : PROCESS_OTHER;
    struct stat target;
    struct stat running;
    if (exe_path == nullptr || stat(exe_path, &target) != 0 || stat(image, &running) != 0)
        return PROCESS_OTHER;
    return target.st_dev == running.st_dev && target.st_ino == running.st_ino ? PROCESS_MATCHES
                                                                              : PROCESS_OTHER;
}

bool ProcessRunsExecutable(pid_t pid, const char* exe_path)
{
    return MatchProcessExecutable(pid, exe_path) == PROCESS_MATCHES;
}

// No tunable limit to read; a number no process has simply does not match.
long MaxProcessId()
{
    return INT_MAX;
}
