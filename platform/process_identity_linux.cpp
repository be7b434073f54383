// /proc stands in for proc_pidpath: exe is the running image, cmdline the
// arguments, cwd the folder relative words are taken from.
#include "process_identity.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string>

namespace {

std::string ProcEntry(pid_t pid, const char* leaf)
{
    return "/proc/" + std::to_string(pid) + "/" + leaf;
}

// Up to max bytes of a file; proc files report no size, so read until the end.
bool ReadHead(const std::string& path, size_t max, std::string& out)
{
    int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    out.clear();
    char buf[4096];
    bool ok = true;
    while (out.size() < max) {
        ssize_t n = read(fd, buf, sizeof buf);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            ok = false;
        if (n <= 0)
            break;
        out.append(buf, static_cast<size_t>(n));
    }
    close(fd);
    if (out.size() > max)
        out.resize(max);
    return ok;
}

bool SameFile(const struct stat& a, const struct stat& b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// The state letter follows the last ')' of /proc/<pid>/stat (the command name
// in parentheses may itself contain blanks and parentheses).
bool IsZombie(pid_t pid)
{
    std::string stat_text;
    if (!ReadHead(ProcEntry(pid, "stat"), 1024, stat_text))
        return false;
    size_t close_paren = stat_text.rfind(')');
    return close_paren != std::string::npos && close_paren + 2 < stat_text.size() &&
           stat_text[close_paren + 2] == 'Z';
}

bool IsScript(const char* path)
{
    std::string head;
    return ReadHead(path, 2, head) && head == "#!";
}

bool WordNamesFile(pid_t pid, const std::string& word, const struct stat& target)
{
    if (word.empty())
        return false;
    std::string path = word[0] == '/' ? word : ProcEntry(pid, "cwd/") + word;
    struct stat st;
    return stat(path.c_str(), &st) == 0 && SameFile(st, target);
}

// An interpreter runs a script as "interpreter script ..." (or "env interpreter
// script ..." after env has exec'd), so only the first two words can name it.
bool CommandLineNamesFile(pid_t pid, const struct stat& target)
{
    std::string cmdline;
    if (!ReadHead(ProcEntry(pid, "cmdline"), 2 * PATH_MAX + 2, cmdline))
        return false;
    size_t first_end = cmdline.find('\0');
    std::string first = cmdline.substr(0, first_end);
    if (WordNamesFile(pid, first, target))
        return true;
    if (first_end == std::string::npos)
        return false;
    size_t second_end = cmdline.find('\0', first_end + 1);
    return WordNamesFile(pid, cmdline.substr(first_end + 1, second_end - first_end - 1), target);
}

}  // namespace

ProcessMatch MatchProcessExecutable(pid_t pid, const char* exe_path)
{
    if (pid <= 0)
        return PROCESS_MISSING;
    struct stat st;
    if (stat(ProcEntry(pid, "").c_str(), &st) != 0)
        return errno == ENOENT ? PROCESS_MISSING : PROCESS_OTHER;
    // A zombie has ended; it only waits for its parent. Its exe link is gone.
    if (IsZombie(pid))
        return PROCESS_MISSING;

    struct stat target;
    if (exe_path == nullptr || stat(exe_path, &target) != 0)
        return PROCESS_OTHER;
    // Following the exe link reaches the image even after its path was
    // replaced or removed. Another user's process refuses it (EACCES).
    struct stat image;
    if (stat(ProcEntry(pid, "exe").c_str(), &image) == 0 && SameFile(image, target))
        return PROCESS_MATCHES;
    if (IsScript(exe_path) && CommandLineNamesFile(pid, target))
        return PROCESS_MATCHES;
    return PROCESS_OTHER;
}

bool ProcessRunsExecutable(pid_t pid, const char* exe_path)
{
    return MatchProcessExecutable(pid, exe_path) == PROCESS_MATCHES;
}

long MaxProcessId()
{
    std::string text;
    if (!ReadHead("/proc/sys/kernel/pid_max", 32, text))
        return INT_MAX;
    char* end = nullptr;
    errno = 0;
    long value = std::strtol(text.c_str(), &end, 10);
    if (errno != 0 || end == text.c_str() || value <= 0 || value > INT_MAX)
        return INT_MAX;
    return value;
}
