// /proc names the running image; the session gives each user a runtime folder
// of their own.
#include "user_folders.h"

#include <unistd.h>
#include <cstdlib>

std::string ExecutablePath()
{
    std::vector<char> buffer(4096);
    for (;;) {
        const ssize_t n = readlink("/proc/self/exe", buffer.data(), buffer.size());
        if (n < 0)
            return std::string();
        if (static_cast<size_t>(n) < buffer.size())
            return std::string(buffer.data(), static_cast<size_t>(n));
        buffer.resize(buffer.size() * 2);  // cut short: the whole path did not fit
    }
}

std::vector<std::string> PrivateLockFolders(const std::string& user_folder)
{
    std::vector<std::string> folders;
    // The shared temporary folder never: anyone may make a file there under a
    // name that is easy to guess.
    const char* runtime = getenv("XDG_RUNTIME_DIR");
    if (runtime != nullptr && IsPrivateFolder(runtime))
        folders.push_back(runtime);
    folders.push_back(user_folder);
    return folders;
}
