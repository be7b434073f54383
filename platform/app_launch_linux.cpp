// Stand-in for the desktop's launching service: the bundle's executable is
// started as an orphan in a session of its own, so that it outlives the
// launcher and never becomes a zombie of ours.
#include "app_launch.h"

#include <fcntl.h>
#include <linux/close_range.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>

#include "process_identity.h"

extern char** environ;

namespace {

// Everything the new process needs, made before fork: the launcher has other
// threads, so between fork and exec only async-signal-safe calls may happen.
struct SpawnPlan {
    const char* exe;
    char* argv[2];
    char** envp;
    int null_fd;
    int error_fd;  // write end of the exec report pipe, close-on-exec
    int fd_limit;
    sigset_t no_signals;
    struct sigaction default_action;
};

// dup2 onto 0..2 in the child must not clobber a descriptor it still needs.
int AboveStdio(int fd)
{
    if (fd < 0 || fd > STDERR_FILENO)
        return fd;
    int moved = fcntl(fd, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    close(fd);
    return moved;
}

[[noreturn]] void ExecInNewSession(const SpawnPlan& plan)
{
    setsid();
    // Mask and dispositions survive exec; the launcher's must not leak into the client.
    sigprocmask(SIG_SETMASK, &plan.no_signals, nullptr);
    for (int sig = 1; sig < NSIG; ++sig)
        sigaction(sig, &plan.default_action, nullptr);  // SIGKILL, SIGSTOP refuse: ignored
    if (chdir("/") != 0) {
        // Not fatal: the client does not depend on its working folder.
    }
    dup2(plan.null_fd, STDIN_FILENO);
    dup2(plan.null_fd, STDOUT_FILENO);
    dup2(plan.null_fd, STDERR_FILENO);
    // Descriptors the launcher opened without close-on-exec (the log file) stay ours.
    if (syscall(SYS_close_range, STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC) != 0) {
        for (int fd = STDERR_FILENO + 1; fd < plan.fd_limit; ++fd)
            fcntl(fd, F_SETFD, FD_CLOEXEC);
    }
    execve(plan.exe, plan.argv, plan.envp);
    int exec_errno = errno;
    ssize_t written = write(plan.error_fd, &exec_errno, sizeof exec_errno);
    (void)written;  // nothing more to do if the report cannot be written
    _exit(127);
}

// true when the executable was exec'd in a grandchild that is no longer ours.
bool SpawnDetached(const std::string& exe)
{
    SpawnPlan plan;
    plan.exe = exe.c_str();
    plan.argv[0] = const_cast<char*>(exe.c_str());
    plan.argv[1] = nullptr;
    plan.envp = environ;
    sigemptyset(&plan.no_signals);
    std::memset(&plan.default_action, 0, sizeof plan.default_action);
    plan.default_action.sa_handler = SIG_DFL;
    sigemptyset(&plan.default_action.sa_mask);
    struct rlimit limit;
    plan.fd_limit = getrlimit(RLIMIT_NOFILE, &limit) == 0 && limit.rlim_cur < 65536
                        ? static_cast<int>(limit.rlim_cur)
                        : 65536;

    int report[2];
    if (pipe2(report, O_CLOEXEC) != 0)
        return false;
    int report_read = report[0];
    plan.error_fd = AboveStdio(report[1]);
    plan.null_fd = AboveStdio(open("/dev/null", O_RDWR | O_CLOEXEC));
    if (plan.error_fd < 0 || plan.null_fd < 0) {
        close(report_read);
        if (plan.error_fd >= 0)
            close(plan.error_fd);
        if (plan.null_fd >= 0)
            close(plan.null_fd);
        return false;
    }

    pid_t middle = fork();
    if (middle == 0) {
        // The intermediate exits at once, so the grandchild is re-parented
        // to init and we reap only the intermediate.
        pid_t grandchild = _Fork();
        if (grandchild == 0)
            ExecInNewSession(plan);
        _exit(grandchild < 0 ? 1 : 0);
    }
    close(plan.error_fd);
    close(plan.null_fd);
    if (middle < 0) {
        close(report_read);
        return false;
    }

    int status = 0;
    pid_t waited;
    do {
        waited = waitpid(middle, &status, 0);
    } while (waited < 0 && errno == EINTR);
    // Someone else reaping it (ECHILD) leaves the report pipe as the only witness.
    bool forked = waited < 0 || (WIFEXITED(status) && WEXITSTATUS(status) == 0);

    // End of file: every write end is closed, the grandchild's by its exec.
    int exec_errno = 0;
    ssize_t n;
    do {
        n = read(report_read, &exec_errno, sizeof exec_errno);
    } while (n < 0 && errno == EINTR);
    close(report_read);
    return forked && n == 0;
}

}  // namespace

bool OpenApplicationBundle(const char* bundle_path, const char* exe_name, pid_t known_pid)
{
    const std::string exe = std::string(bundle_path) + "/Contents/MacOS/" + exe_name;
    // Already running: the desktop would only bring it to the front.
    if (known_pid > 0 && ProcessRunsExecutable(known_pid, exe.c_str()))
        return true;
    struct stat st;
    if (stat(exe.c_str(), &st) != 0 || !S_ISREG(st.st_mode) || access(exe.c_str(), X_OK) != 0)
        return false;
    return SpawnDetached(exe);
}
