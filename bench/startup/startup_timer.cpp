// startup_timer RUNS VARIANT...
//   VARIANT: --name NAME [--vs NAME] [--cpus LIST] [--prepare SHELL-COMMAND] -- PROGRAM ARG... ;
//
// Times whole processes, from spawn to exit, with the variants interleaved
// round by round (and their order flipped every round) so that a machine that
// gets busier or quieter affects all of them alike. A prepare command runs
// before each timed run of its variant, untimed. Three untimed rounds warm
// the caches first. The programs' output goes to /dev/null; any exit status
// other than 0 stops the benchmark. With --cpus (numbers separated by commas)
// the program runs bound to those CPUs, as under `taskset -c LIST`.
//
// Prints per variant the median, minimum and 90th percentile in milliseconds,
// then its median over that of the variant named by --vs (by default the last
// variant).
#include <fcntl.h>
#include <sched.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

#include "cpu_list.h"

extern char** environ;

namespace {

const int kWarmupRounds = 3;

struct Variant {
    std::string name;
    std::string vs;
    std::string prepare;
    bool bound = false;
    cpu_set_t cpus;
    std::vector<char*> argv;
    std::vector<double> ms;
};

double NowMs()
{
    timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return ts.tv_sec * 1e3 + ts.tv_nsec / 1e6;
}

// Milliseconds from spawn to exit, or a negative value on failure.
double TimeOnce(Variant& v)
{
    if (!v.prepare.empty() && std::system(v.prepare.c_str()) != 0) {
        std::fprintf(stderr, "startup_timer: %s: prepare command failed\n", v.name.c_str());
        return -1;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    // The child inherits this thread's CPUs.
    cpu_set_t own;
    if (v.bound &&
        (sched_getaffinity(0, sizeof own, &own) != 0 || sched_setaffinity(0, sizeof v.cpus, &v.cpus) != 0)) {
        std::fprintf(stderr, "startup_timer: %s: cannot bind to the CPUs given\n", v.name.c_str());
        return -1;
    }
    const double start = NowMs();
    pid_t pid;
    const int error = posix_spawn(&pid, v.argv[0], &actions, nullptr, v.argv.data(), environ);
    if (v.bound)
        sched_setaffinity(0, sizeof own, &own);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        std::fprintf(stderr, "startup_timer: %s: %s\n", v.argv[0], std::strerror(error));
        return -1;
    }
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    const double elapsed = NowMs() - start;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "startup_timer: %s: exit status %d\n", v.name.c_str(), status);
        return -1;
    }
    return elapsed;
}

double Percentile(std::vector<double> values, double p)
{
    std::sort(values.begin(), values.end());
    const size_t index = static_cast<size_t>(p * (values.size() - 1) + 0.5);
    return values[index];
}

bool Parse(int argc, char** argv, std::vector<Variant>& variants)
{
    for (int i = 2; i < argc;) {
        if (std::strcmp(argv[i], "--name") != 0 || i + 1 >= argc)
            return false;
        Variant v;
        v.name = argv[i + 1];
        i += 2;
        if (i + 1 < argc && std::strcmp(argv[i], "--vs") == 0) {
            v.vs = argv[i + 1];
            i += 2;
        }
        if (i + 1 < argc && std::strcmp(argv[i], "--cpus") == 0) {
            if (!ParseCpus(argv[i + 1], v.cpus))
                return false;
            v.bound = true;
            i += 2;
        }
        if (i + 1 < argc && std::strcmp(argv[i], "--prepare") == 0) {
            v.prepare = argv[i + 1];
            i += 2;
        }
        if (i >= argc || std::strcmp(argv[i], "--") != 0)
            return false;
        for (++i; i < argc && std::strcmp(argv[i], ";") != 0; ++i)
            v.argv.push_back(argv[i]);
        if (i >= argc || v.argv.empty())
            return false;
        ++i;
        v.argv.push_back(nullptr);
        variants.push_back(std::move(v));
    }
    if (variants.empty())
        return false;
    for (Variant& v : variants) {
        if (v.vs.empty())
            v.vs = variants.back().name;
        if (std::none_of(variants.begin(), variants.end(), [&](const Variant& b) { return b.name == v.vs; }))
            return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv)
{
    std::vector<Variant> variants;
    const int runs = argc > 1 ? std::atoi(argv[1]) : 0;
    if (runs < 1 || !Parse(argc, argv, variants)) {
        std::fprintf(stderr, "usage: startup_timer RUNS --name NAME [--vs NAME] [--cpus LIST] "
                             "[--prepare CMD] -- PROGRAM ARG... ; ...\n");
        return 1;
    }
    for (int round = 0; round < kWarmupRounds + runs; ++round) {
        for (size_t k = 0; k < variants.size(); ++k) {
            Variant& v = variants[round % 2 ? variants.size() - 1 - k : k];
            const double ms = TimeOnce(v);
            if (ms < 0)
                return 2;
            if (round >= kWarmupRounds)
                v.ms.push_back(ms);
        }
    }
    for (const Variant& v : variants) {
        const double median = Percentile(v.ms, 0.5);
        const auto base = std::find_if(variants.begin(), variants.end(),
                                       [&](const Variant& b) { return b.name == v.vs; });
        std::printf("  %-12s median %7.1f ms   min %7.1f   p90 %7.1f   (%d runs)   %.2fx %s\n",
                    v.name.c_str(), median, Percentile(v.ms, 0), Percentile(v.ms, 0.9), runs,
                    median / Percentile(base->ms, 0.5), v.vs.c_str());
    }
    return 0;
}
