// The loader knows the executable's path; the temporary folder is the user's
// own. Not compiled on the machines this was written on: checked against the
// SDK's documentation only.
#include "user_folders.h"

#include <mach-o/dyld.h>
#include <unistd.h>
#include <cstdint>
#include <cstdlib>

std::string ExecutablePath()
{
    uint32_t size = 0;
    _NSGetExecutablePath(nullptr, &size);  // fails, and says the size it needs
    std::vector<char> path(size + 1);
    if (_NSGetExecutablePath(path.data(), &size) != 0)
        return std::string();
    // The loader's path may hold links and "..": the real one is wanted.
    char* real = realpath(path.data(), nullptr);
    if (real == nullptr)
        return std::string();
    const std::string result(real);
    free(real);
    return result;
}

std::vector<std::string> PrivateLockFolders(const std::string& user_folder)
{
    std::vector<std::string> folders;
    char temp[1024];
    const size_t length = confstr(_CS_DARWIN_USER_TEMP_DIR, temp, sizeof temp);
    if (length > 1 && length <= sizeof temp) {
        std::string folder(temp);
        if (folder.size() > 1 && folder.back() == '/')
            folder.pop_back();
        if (IsPrivateFolder(folder))
            folders.push_back(folder);
    }
    folders.push_back(user_folder);
    return folders;
}
