// LD_PRELOAD shim of the fault injection only. In the process that loads it,
// every file-system call on a path below $DW_FAULT_ROOT (open, mkdir, rename,
// unlink, remove, rmdir, links; the *at forms too) and every signal it sends
// (kill, pidfd_send_signal) is numbered from 1 and appended to $DW_FAULT_TRACE as
//   number <TAB> call <TAB> path <TAB> second path <TAB> thread id
// before it runs. With $DW_FAULT_KILL_AT=k the process raises SIGKILL on
// itself instead of making call k. Forked children are not counted, and
// nothing the process starts inherits the shim.
#define _GNU_SOURCE
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

static pid_t g_pid;  // 0 until set up: nothing is counted before
static char g_root[PATH_MAX];
static size_t g_root_len;
static int g_trace = -1;
static unsigned long g_kill_at;
static unsigned long g_count;

#define REAL(type, name)                                                                                     \
    static __typeof__(type) real_##name;                                                                     \
    if (real_##name == NULL)                                                                                 \
    real_##name = (type)dlsym(RTLD_NEXT, #name)

__attribute__((constructor)) static void setup(void)
{
    const char* root = getenv("DW_FAULT_ROOT");
    const char* trace = getenv("DW_FAULT_TRACE");
    const char* kill_at = getenv("DW_FAULT_KILL_AT");
    if (root == NULL || strlen(root) >= sizeof g_root)
        return;
    strcpy(g_root, root);
    g_root_len = strlen(g_root);
    if (kill_at != NULL)
        g_kill_at = strtoul(kill_at, NULL, 10);
    if (trace != NULL) {
        REAL(int (*)(const char*, int, ...), open);
        g_trace = real_open(trace, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
    }
    // The client the launcher starts must run as it would without us.
    unsetenv("LD_PRELOAD");
    unsetenv("DW_FAULT_ROOT");
    unsetenv("DW_FAULT_TRACE");
    unsetenv("DW_FAULT_KILL_AT");
    g_pid = getpid();
}

// path made absolute (not normalised) from the folder that dirfd names.
static void absolute(int dirfd, const char* path, char* out)
{
    char base[PATH_MAX] = "";
    if (path[0] != '/') {
        if (dirfd == AT_FDCWD) {
            if (getcwd(base, sizeof base) == NULL)
                base[0] = '\0';
        } else {
            char link[64];
            snprintf(link, sizeof link, "/proc/self/fd/%d", dirfd);
            const ssize_t n = readlink(link, base, sizeof base - 1);
            base[n > 0 ? n : 0] = '\0';
        }
    }
    snprintf(out, PATH_MAX, "%s%s%s", base, base[0] != '\0' ? "/" : "", path);
}

static int below_root(const char* path)
{
    return strncmp(path, g_root, g_root_len) == 0 && (path[g_root_len] == '/' || path[g_root_len] == '\0');
}

// path NULL: always counted (a signal).
static void note(const char* call, int dirfd, const char* path, int dirfd2, const char* path2)
{
    if (g_pid == 0 || getpid() != g_pid)
        return;
    char first[PATH_MAX] = "-", second[PATH_MAX] = "-";
    if (path != NULL) {
        absolute(dirfd, path, first);
        if (path2 != NULL)
            absolute(dirfd2, path2, second);
        if (!below_root(first) && !below_root(second))
            return;
    }
    const unsigned long n = __atomic_add_fetch(&g_count, 1, __ATOMIC_SEQ_CST);
    if (g_trace >= 0) {
        char line[3 * PATH_MAX];
        const int len = snprintf(line, sizeof line, "%lu\t%s\t%s\t%s\t%ld\n", n, call, first, second,
                                 (long)syscall(SYS_gettid));
        if (len > 0 && write(g_trace, line, (size_t)len < sizeof line ? (size_t)len : sizeof line) < 0)
            g_trace = -1;
    }
    if (n == g_kill_at)
        raise(SIGKILL);
}

// Every wrapper: counts the call on its path (and second path), then makes it.
#define CALL(ret, name, params, args, dirfd, path, dirfd2, path2)                                            \
    ret name params                                                                                          \
    {                                                                                                        \
        note(#name, dirfd, path, dirfd2, path2);                                                             \
        REAL(ret(*) params, name);                                                                           \
        return real_##name args;                                                                             \
    }
// The open forms pass a mode only when one is given.
#define OPEN_CALL(name, params, args, dirfd, path)                                                           \
    int name params                                                                                          \
    {                                                                                                        \
        va_list va;                                                                                          \
        va_start(va, flags);                                                                                 \
        const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? (mode_t)va_arg(va, int) : 0;              \
        va_end(va);                                                                                          \
        note(#name, dirfd, path, AT_FDCWD, NULL);                                                            \
        REAL(int(*) params, name);                                                                           \
        return real_##name args;                                                                             \
    }
OPEN_CALL(open, (const char* p, int flags, ...), (p, flags, mode), AT_FDCWD, p)
OPEN_CALL(open64, (const char* p, int flags, ...), (p, flags, mode), AT_FDCWD, p)
OPEN_CALL(openat, (int d, const char* p, int flags, ...), (d, p, flags, mode), d, p)
OPEN_CALL(openat64, (int d, const char* p, int flags, ...), (d, p, flags, mode), d, p)

// The fortified forms, called where the mode argument is absent.
int __open_2(const char* p, int f);
int __open64_2(const char* p, int f);
int __openat_2(int d, const char* p, int f);
int __openat64_2(int d, const char* p, int f);
CALL(int, __open_2, (const char* p, int f), (p, f), AT_FDCWD, p, AT_FDCWD, NULL)
CALL(int, __open64_2, (const char* p, int f), (p, f), AT_FDCWD, p, AT_FDCWD, NULL)
CALL(int, __openat_2, (int d, const char* p, int f), (d, p, f), d, p, AT_FDCWD, NULL)
CALL(int, __openat64_2, (int d, const char* p, int f), (d, p, f), d, p, AT_FDCWD, NULL)

CALL(int, creat, (const char* p, mode_t m), (p, m), AT_FDCWD, p, AT_FDCWD, NULL)
CALL(FILE*, fopen, (const char* p, const char* m), (p, m), AT_FDCWD, p, AT_FDCWD, NULL)
CALL(FILE*, fopen64, (const char* p, const char* m), (p, m), AT_FDCWD, p, AT_FDCWD, NULL)
CALL(DIR*, opendir, (const char* p), (p), AT_FDCWD, p, AT_FDCWD, NULL)
CALL(int, mkdir, (const char* p, mode_t m), (p, m), AT_FDCWD, p, AT_FDCWD, NULL)
CALL(int, unlink, (const char* p), (p), AT_FDCWD, p, AT_FDCWD, NULL)
CALL(int, rmdir, (const char* p), (p), AT_FDCWD, p, AT_FDCWD, NULL)
CALL(int, remove, (const char* p), (p), AT_FDCWD, p, AT_FDCWD, NULL)
CALL(int, mkdirat, (int d, const char* p, mode_t m), (d, p, m), d, p, AT_FDCWD, NULL)
CALL(int, unlinkat, (int d, const char* p, int f), (d, p, f), d, p, AT_FDCWD, NULL)
CALL(int, rename, (const char* a, const char* b), (a, b), AT_FDCWD, a, AT_FDCWD, b)
CALL(int, renameat, (int da, const char* a, int db, const char* b), (da, a, db, b), da, a, db, b)
CALL(int, renameat2, (int da, const char* a, int db, const char* b, unsigned f), (da, a, db, b, f), da, a, db,
     b)
CALL(int, link, (const char* a, const char* b), (a, b), AT_FDCWD, a, AT_FDCWD, b)
CALL(int, linkat, (int da, const char* a, int db, const char* b, int f), (da, a, db, b, f), da, a, db, b)
// A link's target is text, not a path that is touched: only the link counts.
CALL(int, symlink, (const char* t, const char* p), (t, p), AT_FDCWD, p, AT_FDCWD, NULL)
CALL(int, symlinkat, (const char* t, int d, const char* p), (t, d, p), d, p, AT_FDCWD, NULL)

// Signals through a pidfd, as the stop sends them where it can.
long syscall(long number, ...)
{
    va_list args;
    va_start(args, number);
    long a[6];
    for (int i = 0; i < 6; ++i)
        a[i] = va_arg(args, long);
    va_end(args);
    if (number == SYS_pidfd_send_signal && a[1] != 0)
        note("pidfd_send_signal", AT_FDCWD, NULL, AT_FDCWD, NULL);
    REAL(long (*)(long, ...), syscall);
    return real_syscall(number, a[0], a[1], a[2], a[3], a[4], a[5]);
}

// The stop's probes (signal 0) are left out: how many there are depends on
// how fast the client dies, and the numbers of later calls must not.
int kill(pid_t pid, int sig)
{
    if (sig != 0)
        note("kill", AT_FDCWD, NULL, AT_FDCWD, NULL);
    REAL(int (*)(pid_t, int), kill);
    return real_kill(pid, sig);
}
