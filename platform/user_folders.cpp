// What every POSIX system answers alike: the password database and the
// environment.
#include "user_folders.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstdlib>

namespace {

std::string AccountHome()
{
    const long suggested = sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(suggested > 0 ? static_cast<size_t>(suggested) : 16384);
    struct passwd entry;
    struct passwd* found = nullptr;
    int err;
    while ((err = getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found)) == ERANGE &&
           buffer.size() < (1u << 20))
        buffer.resize(buffer.size() * 2);
    return err == 0 && found != nullptr && found->pw_dir != nullptr ? found->pw_dir : "";
}

}  // namespace

std::string ParentFolder(const std::string& path, int levels)
{
    std::string folder = path;
    for (int i = 0; i < levels && folder.size() > 1; ++i) {
        const size_t slash = folder.rfind('/');
        if (slash == std::string::npos)
            return ".";
        folder.resize(slash == 0 ? 1 : slash);
    }
    return folder;
}

std::string HomeFolder()
{
    const char* home = getenv("HOME");
    return home != nullptr && home[0] != '\0' ? home : AccountHome();
}

void SettleHome()
{
    std::string home = HomeFolder();
    if (home.empty())
        return;
    if (home[0] != '/') {
        char* start = getcwd(nullptr, 0);
        if (start == nullptr)
            return;  // left as it is: nothing better to make of it
        const std::string folder(start);
        free(start);
        home = folder + (folder == "/" ? "" : "/") + home;
    }
    setenv("HOME", home.c_str(), 1);
}

bool IsPrivateFolder(const std::string& path)
{
    struct stat st;
    return !path.empty() && path[0] == '/' && lstat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode) &&
           st.st_uid == geteuid() && (st.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}
