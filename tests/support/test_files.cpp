#include "test_files.h"

#include <signal.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <climits>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

namespace fs = std::filesystem;

namespace dwtest {

TempDir::TempDir(const std::string& base)
{
    std::string tmpl = (base.empty() ? fs::temp_directory_path().string() : base) + "/dwtest-XXXXXX";
    char real[PATH_MAX];
    if (mkdtemp(tmpl.data()) != nullptr && realpath(tmpl.c_str(), real) != nullptr)
        path_ = real;
}

TempDir::~TempDir()
{
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

bool Exists(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

bool WriteFile(const std::string& path, const std::string& data, int mode)
{
    std::error_code ec;
    fs::create_directories(fs::path(path).parent_path(), ec);
    unlink(path.c_str());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << data;
    out.close();
    return out.good() && chmod(path.c_str(), static_cast<mode_t>(mode)) == 0;
}

std::string Shown(const std::string& data)
{
    if (data.size() < 256)
        return data;
    return "<" + std::to_string(data.size()) + " bytes #" + std::to_string(std::hash<std::string>()(data)) +
           ">";
}

Tree Snapshot(const std::string& root)
{
    Tree tree;
    std::error_code ec;
    for (fs::recursive_directory_iterator it(root, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string rel = it->path().lexically_relative(root).string();
        tree[rel] = it->is_symlink()     ? "-> " + fs::read_symlink(it->path()).string()
                    : it->is_directory() ? "<dir>"
                                         : Shown(ReadFile(it->path().string()));
    }
    return tree;
}

Tree TreeOf(const std::vector<Entry>& entries)
{
    Tree tree;
    for (const Entry& e : entries) {
        for (size_t slash = e.name.find('/'); slash != std::string::npos; slash = e.name.find('/', slash + 1))
            tree[e.name.substr(0, slash)] = "<dir>";
        tree[e.name] = e.kind == Entry::File      ? Shown(e.data)
                       : e.kind == Entry::Folder  ? "<dir>"
                       : e.kind == Entry::Symlink ? "-> " + e.data
                                                  : tree[e.data];
    }
    return tree;
}

std::vector<std::string> LogLines(const std::string& path, long long from)
{
    std::vector<std::string> lines;
    std::ifstream in(path, std::ios::binary);
    in.seekg(from);
    for (std::string line; std::getline(in, line);) {
        std::string text = line.size() > 16 ? line.substr(16) : line;
        const size_t open = text.find('('), close = text.find("): ");
        if (open != std::string::npos && close != std::string::npos && open < close)
            text.replace(open + 1, close - open - 1, "#");
        lines.push_back(text);
    }
    return lines;
}

bool WaitFor(const std::function<bool()>& done, int timeout_ms)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeout_ms);
    while (!done()) {
        if (std::chrono::steady_clock::now() > deadline)
            return done();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

bool ProcessGone(pid_t pid)
{
    if (pid <= 0 || (kill(pid, 0) != 0 && errno == ESRCH))
        return true;
    // The state follows the name in parentheses, which may hold blanks itself.
    const std::string stat = ReadFile("/proc/" + std::to_string(pid) + "/stat");
    const size_t paren = stat.rfind(')');
    return paren != std::string::npos && paren + 2 < stat.size() && stat[paren + 2] == 'Z';
}

}  // namespace dwtest
