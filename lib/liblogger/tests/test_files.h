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
    TempDir()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "logger-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) != nullptr)
            path_ = pattern;
    }
    ~TempDir()
    {
        std::error_code ignored;
        if (!path_.empty())
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
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

inline bool exists(const std::string& path) { return std::filesystem::exists(path); }

#endif
