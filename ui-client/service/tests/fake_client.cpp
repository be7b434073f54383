// Plays drift-ui for the service tests: writes $HOME/.Driftwell/ui.pid and
// waits for signals. On SIGTERM it writes $HOME/sigterm-received and exits,
// or, with DW_FAKE_CLIENT_MODE=ignore, keeps running (the launch passes no
// arguments). It dies by itself after two minutes.
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
    close(open(g_marker, O_WRONLY | O_CREAT | O_TRUNC, 0644));
    if (g_exit_on_term)
        _exit(0);
}

}  // namespace

int main()
{
    const char* home = getenv("HOME");
    const char* mode = getenv("DW_FAKE_CLIENT_MODE");
    if (home == nullptr)
        return 2;
    g_exit_on_term = mode == nullptr || strcmp(mode, "ignore") != 0;
    snprintf(g_marker, sizeof g_marker, "%s/sigterm-received", home);
    signal(SIGTERM, OnTerm);
    alarm(120);

    // Written whole, then renamed: a reader never sees half a number.
    const std::string base = std::string(home) + "/.Driftwell";
    mkdir(base.c_str(), 0755);
    FILE* pid_file = fopen((base + "/ui.pid.tmp").c_str(), "w");
    if (pid_file == nullptr)
        return 3;
    fprintf(pid_file, "pid=%d\n", static_cast<int>(getpid()));
    fclose(pid_file);
    if (rename((base + "/ui.pid.tmp").c_str(), (base + "/ui.pid").c_str()) != 0)
        return 4;
    for (;;)
        pause();
}
