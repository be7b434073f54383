// upgrade_phases RUNS HOME --prepare SHELL-COMMAND [--cpus LIST]... -- LAUNCHER [ARG...]
//
// Where the time of a whole upgrade goes. Runs the launcher RUNS times (the
// prepare command before each run, untimed; it must leave the debug levels
// on and no log file) and stamps, as they happen, the lines the launcher
// writes to HOME/.Driftwell/log/launcher.log (the log's own stamps are whole
// seconds), the rename of the old copy to its backup name and the first entry
// the extraction creates in the new copy. Prints the median of each phase and
// of the whole run. With --cpus (numbers separated by commas, as for
// `taskset -c`), the launcher runs bound to those CPUs; several settings take
// turns run by run and get a column each. Linux only (inotify, pidfd).
#include <fcntl.h>
#include <poll.h>
#include <sched.h>
#include <spawn.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <utility>
#include <vector>

#include "cpu_list.h"

extern char** environ;

namespace {

double NowMs()
{
    timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return ts.tv_sec * 1e3 + ts.tv_nsec / 1e6;
}

struct Line {
    double ms;  // since the spawn
    std::string text;
};

struct Run {
    std::vector<Line> lines;
    double backup_ms = -1;  // the old copy renamed
    double first_entry_ms = -1;
    bool first_entry_late = false;  // created before the watch was in place: an upper bound
    double exit_ms = -1;
};

// One run of the launcher, on cpus when given, watched. false on any failure.
bool WatchOnce(const std::string& home, char** argv, const cpu_set_t* cpus, Run& run)
{
    const std::string user = home + "/.Driftwell";
    const std::string log_dir = user + "/log";
    const std::string app = user + "/Driftwell.app";
    const int in = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    if (in < 0 || inotify_add_watch(in, log_dir.c_str(), IN_CREATE | IN_MODIFY) < 0 ||
        inotify_add_watch(in, user.c_str(), IN_CREATE | IN_MOVED_FROM | IN_ONLYDIR) < 0) {
        std::perror("upgrade_phases: inotify");
        return false;
    }
    int app_watch = -1;

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    // The child inherits this thread's CPUs.
    cpu_set_t own;
    if (cpus != nullptr &&
        (sched_getaffinity(0, sizeof own, &own) != 0 || sched_setaffinity(0, sizeof *cpus, cpus) != 0)) {
        std::fprintf(stderr, "upgrade_phases: cannot bind to the CPUs given\n");
        close(in);
        return false;
    }
    const double start = NowMs();
    pid_t pid;
    const int error = posix_spawn(&pid, argv[0], &actions, nullptr, argv, environ);
    if (cpus != nullptr)
        sched_setaffinity(0, sizeof own, &own);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        std::fprintf(stderr, "upgrade_phases: %s: %s\n", argv[0], std::strerror(error));
        close(in);
        return false;
    }
    // Through syscall: glibc 2.36 declares pidfd_open without C linkage for C++.
    const int exited = static_cast<int>(syscall(SYS_pidfd_open, pid, 0));

    int log = -1;
    std::string pending;
    auto read_log = [&](double ms) {
        if (log < 0)
            log = open((log_dir + "/launcher.log").c_str(), O_RDONLY | O_CLOEXEC);
        char buffer[65536];
        for (ssize_t n; log >= 0 && (n = read(log, buffer, sizeof buffer)) > 0;)
            pending.append(buffer, static_cast<size_t>(n));
        for (size_t end; (end = pending.find('\n')) != std::string::npos; pending.erase(0, end + 1))
            run.lines.push_back({ms - start, pending.substr(0, end)});
    };

    pollfd fds[2] = {{in, POLLIN, 0}, {exited, POLLIN, 0}};
    while (run.exit_ms < 0) {
        if (poll(fds, exited >= 0 ? 2 : 1, exited >= 0 ? -1 : 5) < 0 && errno != EINTR)
            break;
        const double ms = NowMs();
        alignas(inotify_event) char events[8192];
        for (ssize_t n; (n = read(in, events, sizeof events)) > 0;) {
            for (char* p = events; p < events + n;) {
                const auto* e = reinterpret_cast<const inotify_event*>(p);
                p += sizeof(inotify_event) + e->len;
                const std::string name = e->len > 0 ? e->name : "";
                if (e->wd == app_watch && run.first_entry_ms < 0) {
                    run.first_entry_ms = ms - start;
                } else if (name == "Driftwell.app" && (e->mask & IN_MOVED_FROM) && run.backup_ms < 0) {
                    run.backup_ms = ms - start;
                } else if (name == "Driftwell.app" && (e->mask & IN_CREATE) && app_watch < 0) {
                    // The extraction's destination, made afresh after the backup.
                    app_watch = inotify_add_watch(in, app.c_str(), IN_CREATE | IN_ONLYDIR);
                    struct stat st;
                    if (stat((app + "/Contents").c_str(), &st) == 0) {
                        run.first_entry_ms = NowMs() - start;
                        run.first_entry_late = true;
                    }
                } else if (name == "launcher.log") {
                    read_log(ms);
                }
            }
        }
        int status = 0;
        if (waitpid(pid, &status, WNOHANG) == pid) {
            run.exit_ms = NowMs() - start;
            read_log(run.exit_ms);
            if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
                std::fprintf(stderr, "upgrade_phases: exit status %d\n", status);
        }
    }
    if (log >= 0)
        close(log);
    if (exited >= 0)
        close(exited);
    close(in);
    return run.exit_ms >= 0;
}

// The stamp of the first line at or after index from that holds marker and
// passes keep; its index goes to at. Negative when there is none.
template <typename Keep> double Find(const Run& run, size_t& at, const char* marker, Keep keep)
{
    for (size_t i = at; i < run.lines.size(); ++i) {
        if (run.lines[i].text.find(marker) != std::string::npos && keep(run.lines[i].text)) {
            at = i;
            return run.lines[i].ms;
        }
    }
    return -1;
}

bool Any(const std::string&)
{
    return true;
}

const char* const kPhases[] = {"Qt start",   "version records",  "stop of the client", "backup", "counting",
                               "extraction", "old copy removal", "client start",       "exit"};
const size_t kPhaseCount = sizeof kPhases / sizeof *kPhases;

// The ends of the phases, from the spawn; empty when a step is missing.
std::vector<double> Ends(const Run& run)
{
    size_t at = 0;
    std::vector<double> ends;
    ends.push_back(Find(run, at, "): running", Any));
    ends.push_back(Find(run, at, "local appdata exist", Any));
    ends.push_back(run.backup_ms);  // the stop ends where the backup's rename happens
    ends.push_back(Find(run, at, "): extract package:", Any));
    ends.push_back(run.first_entry_ms);
    ends.push_back(Find(run, at, "user installation is ready", Any));
    ends.push_back(Find(run, at, "removing aged app folder", Any));
    ends.push_back(
        Find(run, at, "launcher(", [](const std::string& t) { return t.find("): done") != t.npos; }));
    ends.push_back(run.exit_ms);
    for (size_t i = 0; i < ends.size(); ++i)
        if (ends[i] < 0 || (i > 0 && ends[i] < ends[i - 1]))
            return {};
    return ends;
}

double Median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    const size_t n = v.size();
    return n % 2 ? v[n / 2] : (v[n / 2 - 1] + v[n / 2]) / 2;
}

}  // namespace

int main(int argc, char** argv)
{
    const int runs = argc > 1 ? std::atoi(argv[1]) : 0;
    struct Setting {
        std::string name;
        cpu_set_t cpus;
        std::vector<std::vector<double>> phases = std::vector<std::vector<double>>(kPhaseCount + 1);
    };
    std::vector<Setting> settings;
    int launcher = 5;
    for (; launcher + 1 < argc && std::strcmp(argv[launcher], "--cpus") == 0; launcher += 2) {
        settings.push_back({argv[launcher + 1], {}});
        if (!ParseCpus(argv[launcher + 1], settings.back().cpus))
            launcher = argc;
    }
    if (runs < 1 || launcher + 1 >= argc || std::strcmp(argv[3], "--prepare") != 0 ||
        std::strcmp(argv[launcher], "--") != 0) {
        std::fprintf(
            stderr, "usage: upgrade_phases RUNS HOME --prepare SHELL-COMMAND [--cpus LIST]... -- LAUNCHER\n");
        return 1;
    }
    const bool bound = !settings.empty();
    if (!bound)
        settings.push_back({"", {}});
    int late = 0;
    for (int i = 0; i < runs; ++i) {
        for (size_t k = 0; k < settings.size(); ++k) {
            Setting& setting = settings[(k + static_cast<size_t>(i)) % settings.size()];
            Run run;
            if (std::system(argv[4]) != 0 ||
                !WatchOnce(argv[2], argv + launcher + 1, bound ? &setting.cpus : nullptr, run)) {
                std::fprintf(stderr, "upgrade_phases: run %d failed\n", i + 1);
                return 2;
            }
            const std::vector<double> ends = Ends(run);
            if (ends.empty()) {
                std::fprintf(stderr,
                             "upgrade_phases: run %d: a step is missing (backup %.1f, first entry %.1f):\n",
                             i + 1, run.backup_ms, run.first_entry_ms);
                for (const Line& line : run.lines)
                    std::fprintf(stderr, "  %8.1f %s\n", line.ms, line.text.c_str());
                return 2;
            }
            for (size_t p = 0; p < kPhaseCount; ++p)
                setting.phases[p].push_back(ends[p] - (p > 0 ? ends[p - 1] : 0));
            setting.phases[kPhaseCount].push_back(run.exit_ms);
            late += run.first_entry_late;
        }
    }
    std::printf("  where the time goes, medians of %d runs with the debug levels on (ms)%s:\n", runs,
                bound ? ", by the CPUs it ran on" : "");
    if (bound) {
        std::printf("    %-20s", "");
        for (const Setting& setting : settings)
            std::printf(" %8s", setting.name.c_str());
        std::printf("\n");
    }
    for (size_t p = 0; p <= kPhaseCount; ++p) {
        std::printf("    %-20s", p < kPhaseCount ? kPhases[p] : "launch to exit");
        for (const Setting& setting : settings)
            std::printf(" %8.1f", Median(setting.phases[p]));
        std::printf("\n");
    }
    if (late > 0)
        std::printf("    (first entry seen late in %d runs: counting is an upper bound there)\n", late);
    return 0;
}
