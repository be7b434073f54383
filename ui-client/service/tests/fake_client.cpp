// Plays drift-ui for the service tests: records its start, writes
// $HOME/.Driftwell/ui.pid and waits for signals.
//   mode "term"   (default): on SIGTERM writes $HOME/sigterm-received, exits 0
//   mode "ignore":            on SIGTERM writes the marker and keeps running
// The mode is the first argument, else $DW_FAKE_CLIENT_MODE (the launch
// passes no arguments). It dies by itself after two minutes.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

char g_marker[PATH_MAX];
bool g_exit_on_term = true;

void OnTerm(int)
{
    int fd = open(g_marker, O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd >= 0)
        close(fd);
    if (g_exit_on_term)
        _exit(0);
}

std::string LinkTarget(const std::string& link)
{
    char target[PATH_MAX];
    ssize_t n = readlink(link.c_str(), target, sizeof target);
    return n < 0 ? "none" : std::string(target, static_cast<size_t>(n));
}

std::string FdTarget(int fd)
{
    return LinkTarget("/proc/self/fd/" + std::to_string(fd));
}

}  // namespace

int main(int argc, char** argv)
{
    const char* home = getenv("HOME");
    if (home == nullptr)
        return 2;
    const char* mode = argc > 1 ? argv[1] : getenv("DW_FAKE_CLIENT_MODE");
    g_exit_on_term = mode == nullptr || strcmp(mode, "ignore") != 0;
    snprintf(g_marker, sizeof g_marker, "%s/sigterm-received", home);
    signal(SIGTERM, OnTerm);
    alarm(120);

    const std::string base = std::string(home) + "/.Driftwell";
    mkdir(base.c_str(), 0755);
    // What a detached start must look like: own session, streams on /dev/null,
    // no descriptor inherited beyond them (3 is the one reading this list).
    FILE* starts = fopen((std::string(home) + "/client-starts").c_str(), "a");
    if (starts != nullptr) {
        int extra = 0;
        for (int fd = 3; fd < 1024; ++fd) {
            if (fcntl(fd, F_GETFD) >= 0 && fd != fileno(starts))
                ++extra;
        }
        fprintf(starts, "pid=%d sid=%d stdin=%s stdout=%s stderr=%s extra_fds=%d cwd=%s\n",
                static_cast<int>(getpid()), static_cast<int>(getsid(0)), FdTarget(0).c_str(),
                FdTarget(1).c_str(), FdTarget(2).c_str(), extra,
                LinkTarget("/proc/self/cwd").c_str());
        fclose(starts);
    }

    // Written whole, then renamed: a reader never sees half a number.
    const std::string tmp = base + "/ui.pid.tmp";
    FILE* pid_file = fopen(tmp.c_str(), "w");
    if (pid_file == nullptr)
        return 3;
    fprintf(pid_file, "pid=%d\n", static_cast<int>(getpid()));
    fclose(pid_file);
    if (rename(tmp.c_str(), (base + "/ui.pid").c_str()) != 0)
        return 4;
    for (;;)
        pause();
}
