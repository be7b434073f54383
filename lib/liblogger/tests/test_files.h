// Fresh temporary folders and whole-file helpers for the logger tests.
#ifndef LOGGER_TEST_FILES_H
#define LOGGER_TEST_FILES_H

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

class TempDir {
public:
    TempDir() : path_((std::filesystem::temp_directory_path() / "logger-test-XXXXXX").string())
    {
        if (mkdtemp(path_.data()) == nullptr)
            path_.clear();
    }
    ~TempDir()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    bool ok() const { return !path_.empty(); }
    std::string file(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

inline void write_file(const std::string& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

inline std::string read_file(const std::string& path)
{
    std::ostringstream out;
    out << std::ifstream(path, std::ios::binary).rdbuf();
    return out.str();
}

#endif
