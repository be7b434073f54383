// Runs extract_ours, extract_plain and bsdtar on the package in each packing,
// interleaved, on tmpfs and on the main disk, each extraction in a fresh
// child process into an emptied folder, once bound to one CPU and once to two
// (the first one or two that this process may use, as `taskset -c` would set
// them), and prints medians, ratios and peak memory (ru_maxrss from wait4).
//
// usage: extract_bench DATA_DIR DISK_DIR TMPFS_DIR TMPFS_RUNS DISK_RUNS
//   DATA_DIR holds extract_gen's output; the archives are copied next to the
//   destination on each file system so that reading and writing share it.
//
// A child's ru_maxrss also covers the pages it shared with this process
// before exec, so this process stays small: no libarchive here, and the
// generator runs as a program of its own.
#include <sched.h>
#include <sys/resource.h>
#include <sys/statfs.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

namespace {

const char* const kPackings[] = {"tar", "tar.gz", "tar.zst", "zip"};
enum Tool { OURS, PLAIN, BSDTAR, TOOLS };
const char* const kToolNames[] = {"ours", "plain", "bsdtar"};

// The CPU sets the children run on: the first one, then the first two of
// this process's own (fewer on a one-CPU machine).
std::vector<cpu_set_t> CpuSettings()
{
    std::vector<cpu_set_t> settings;
    cpu_set_t allowed;
    CPU_ZERO(&allowed);
    if (sched_getaffinity(0, sizeof allowed, &allowed) != 0)
        return settings;
    cpu_set_t set;
    CPU_ZERO(&set);
    for (int cpu = 0; cpu < CPU_SETSIZE && settings.size() < 2; ++cpu) {
        if (CPU_ISSET(cpu, &allowed)) {
            CPU_SET(cpu, &set);
            settings.push_back(set);
        }
    }
    return settings;
}

std::string CpuList(const cpu_set_t& set)
{
    std::string list;
    for (int cpu = 0; cpu < CPU_SETSIZE; ++cpu) {
        if (CPU_ISSET(cpu, &set))
            list += (list.empty() ? "" : ",") + std::to_string(cpu);
    }
    return list;
}

struct Sample {
    double seconds = 0;
    double cpu_seconds = 0;  // user + system: less disturbed by other load than wall time
    long maxrss_kib = 0;
    bool ok = false;
};

struct TreeStats {
    long files = 0;
    long folders = 0;
    long symlinks = 0;
    long long bytes = 0;
    bool operator==(const TreeStats& o) const
    {
        return files == o.files && folders == o.folders && symlinks == o.symlinks && bytes == o.bytes;
    }
};

double now()
{
    timespec ts{};
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return static_cast<double>(ts.tv_sec) + static_cast<double>(ts.tv_nsec) * 1e-9;
}

Sample run_child(const std::vector<std::string>& args, const cpu_set_t& cpus)
{
    std::vector<char*> argv;
    for (const std::string& a : args)
        argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);

    Sample s;
    const double start = now();
    const pid_t pid = fork();
    if (pid == 0) {
        if (sched_setaffinity(0, sizeof cpus, &cpus) != 0)
            _exit(126);
        execvp(argv[0], argv.data());
        _exit(127);
    }
    if (pid < 0)
        return s;
    int status = 0;
    rusage usage{};
    if (wait4(pid, &status, 0, &usage) != pid)
        return s;
    s.seconds = now() - start;
    s.cpu_seconds = static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
                    static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) * 1e-6;
    s.maxrss_kib = usage.ru_maxrss;
    s.ok = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return s;
}

TreeStats scan(const std::string& root)
{
    TreeStats t;
    for (const fs::directory_entry& e : fs::recursive_directory_iterator(root)) {
        if (e.is_symlink()) {
            ++t.symlinks;
        } else if (e.is_directory()) {
            ++t.folders;
        } else if (e.is_regular_file()) {
            ++t.files;
            t.bytes += static_cast<long long>(e.file_size());
        }
    }
    return t;
}

// Emptied and synced outside the timing, so one run's write-back does not
// land in the next.
void clear(const std::string& dest)
{
    fs::remove_all(dest);
    fs::create_directory(dest);
    sync();
}

std::string fs_type(const std::string& path)
{
    struct statfs st {};
    if (statfs(path.c_str(), &st) != 0)
        return "?";
    switch (st.f_type) {
    case 0x01021994:
        return "tmpfs";
    case 0xEF53:
        return "ext4";
    case 0x58465342:
        return "xfs";
    case 0x9123683E:
        return "btrfs";
    case 0x794c7630:
        return "overlayfs";
    default: {
        char hex[32];
        snprintf(hex, sizeof hex, "0x%lx", static_cast<unsigned long>(st.f_type));
        return hex;
    }
    }
}

double median(std::vector<double> v)
{
    if (v.empty())
        return 0;
    std::sort(v.begin(), v.end());
    const size_t n = v.size();
    return n % 2 ? v[n / 2] : (v[n / 2 - 1] + v[n / 2]) / 2;
}

double mib(double bytes)
{
    return bytes / (1024.0 * 1024.0);
}

class Bench {
public:
    Bench(std::string data, std::string bin, TreeStats expected)
        : data_(std::move(data)), bin_(std::move(bin)), expected_(expected), cpus_(CpuSettings())
    {
    }

    // false when an extraction failed or produced another tree.
    bool measure(const std::string& label, const std::string& base, int runs)
    {
        const std::string root = base + "/extract-bench-" + std::to_string(getpid());
        const std::string dest = root + "/dest";
        fs::create_directories(root);
        for (const char* packing : kPackings)
            fs::copy_file(data_ + "/package." + packing, root + "/package." + packing,
                          fs::copy_options::overwrite_existing);
        printf("\n%s: %s (%s), %d runs\n", label.c_str(), root.c_str(), fs_type(root).c_str(), runs);
        fflush(stdout);

        bool ok = !cpus_.empty();
        if (!ok)
            fprintf(stderr, "extract_bench: sched_getaffinity failed\n");
        // [CPU setting][tool][packing]
        std::vector<std::array<std::map<std::string, std::vector<Sample>>, TOOLS>> samples(cpus_.size());
        // Round 0 warms the caches and checks every tree; it is not counted.
        for (int run = 0; run <= runs && ok; ++run) {
            for (const char* packing : kPackings) {
                const std::string archive = root + "/package." + packing;
                for (size_t c = 0; c < cpus_.size() && ok; ++c) {
                    const size_t setting = (c + static_cast<size_t>(run)) % cpus_.size();
                    for (int k = 0; k < TOOLS; ++k) {
                        const Tool tool = static_cast<Tool>((k + run) % TOOLS);
                        clear(dest);
                        const Sample s = run_child(command(tool, archive, dest), cpus_[setting]);
                        if (!s.ok) {
                            fprintf(stderr, "%s failed on %s (CPUs %s)\n", kToolNames[tool], archive.c_str(),
                                    CpuList(cpus_[setting]).c_str());
                            ok = false;
                        } else if (run == 0 && !(scan(dest) == expected_)) {
                            const TreeStats got = scan(dest);
                            fprintf(stderr,
                                    "%s on %s (CPUs %s): %ld files, %ld folders, %ld links, %lld bytes\n",
                                    kToolNames[tool], packing, CpuList(cpus_[setting]).c_str(), got.files,
                                    got.folders, got.symlinks, got.bytes);
                            ok = false;
                        }
                        if (run > 0)
                            samples[setting][tool][packing].push_back(s);
                    }
                }
            }
        }
        fs::remove_all(root);
        if (!ok)
            return false;

        printf("%-8s %-4s %7s %7s %8s  %8s %9s %10s  %8s %9s  %8s %9s %10s\n", "format", "CPUs", "ours s",
               "plain s", "bsdtar s", "ours/bsd", "plain/bsd", "ours/plain", "ours cpu", "plain cpu",
               "ours MiB", "plain MiB", "bsdtar MiB");
        for (const char* packing : kPackings) {
            for (size_t setting = 0; setting < cpus_.size(); ++setting) {
                double wall[TOOLS];
                double cpu[TOOLS];
                double rss[TOOLS];
                for (int tool = 0; tool < TOOLS; ++tool) {
                    std::vector<double> w, c;
                    long peak = 0;
                    for (const Sample& s : samples[setting][tool][packing]) {
                        w.push_back(s.seconds);
                        c.push_back(s.cpu_seconds);
                        peak = std::max(peak, s.maxrss_kib);
                    }
                    wall[tool] = median(w);
                    cpu[tool] = median(c);
                    rss[tool] = static_cast<double>(peak) / 1024.0;
                }
                printf("%-8s %-4s %7.3f %7.3f %8.3f  %8.2f %9.2f %10.3f  %8.3f %9.3f  %8.1f %9.1f %10.1f\n",
                       packing, CpuList(cpus_[setting]).c_str(), wall[OURS], wall[PLAIN], wall[BSDTAR],
                       wall[OURS] / wall[BSDTAR], wall[PLAIN] / wall[BSDTAR], wall[OURS] / wall[PLAIN],
                       cpu[OURS], cpu[PLAIN], rss[OURS], rss[PLAIN], rss[BSDTAR]);
            }
        }
        fflush(stdout);
        return true;
    }

private:
    std::vector<std::string> command(Tool tool, const std::string& archive, const std::string& dest) const
    {
        switch (tool) {
        case OURS:
            return {bin_ + "/extract_ours", archive, dest};
        case PLAIN:
            return {bin_ + "/extract_plain", archive, dest};
        default:
            return {"bsdtar", "-xf", archive, "-C", dest};
        }
    }

    std::string data_;
    std::string bin_;
    TreeStats expected_;
    std::vector<cpu_set_t> cpus_;
};

bool read_expected(const std::string& path, TreeStats& t)
{
    std::ifstream in(path);
    std::string version;
    return std::getline(in, version) && (in >> t.files >> t.folders >> t.symlinks >> t.bytes);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 6 || atoi(argv[4]) < 1 || atoi(argv[5]) < 0) {
        fprintf(stderr, "usage: extract_bench DATA_DIR DISK_DIR TMPFS_DIR TMPFS_RUNS DISK_RUNS\n");
        return 2;
    }
    const std::string data = argv[1];
    TreeStats expected;
    if (!read_expected(data + "/package.stats", expected)) {
        fprintf(stderr, "extract_bench: no package in %s (run extract_gen first)\n", data.c_str());
        return 1;
    }
    const std::string bin = fs::read_symlink("/proc/self/exe").parent_path().string();

    printf("Package: %ld files, %ld folders, %ld symlinks, %.1f MiB of file data\nArchives:", expected.files,
           expected.folders, expected.symlinks, mib(static_cast<double>(expected.bytes)));
    for (const char* packing : kPackings)
        printf(" %s %.1f MiB", packing,
               mib(static_cast<double>(fs::file_size(data + "/package." + packing))));
    rusage self{};
    getrusage(RUSAGE_SELF, &self);
    printf("\nMedians over the runs (after one unmeasured round): wall and user+system time of each child,\n"
           "bound to the CPUs listed; plain = the bare two libarchive passes, bsd = bsdtar.\n"
           "Peak memory is the largest ru_maxrss seen; a child's can not go below this runner's own (%.1f "
           "MiB).\n",
           static_cast<double>(self.ru_maxrss) / 1024.0);

    Bench bench(data, bin, expected);
    // No disk runs (0): tmpfs only, a few minutes shorter.
    const bool ok = bench.measure("tmpfs", argv[3], atoi(argv[4])) &&
                    (atoi(argv[5]) == 0 || bench.measure("main disk", argv[2], atoi(argv[5])));
    return ok ? 0 : 1;
}
