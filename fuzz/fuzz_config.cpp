// Fuzzes Config::read through a real file: whatever the bytes, read either
// takes the file whole, leaves nothing, or refuses one too large unread, and
// every stored entry obeys the format's character rules.
#include "config.h"
#include "fuzz_check.h"

#include <unistd.h>

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>

namespace {

std::string g_path;

void remove_file()
{
    unlink(g_path.c_str());
}

bool is_key(const ustring& key)
{
    for (size_t i = 0; i < key.length(); ++i) {
        const unsigned char c = static_cast<unsigned char>(key[i]);
        if (c > 127 || !(isalnum(c) || c == '-' || c == '.' || c == '_'))
            return false;
    }
    return true;
}

bool has_control(const ustring& value)
{
    for (size_t i = 0; i < value.length(); ++i) {
        const unsigned char c = static_cast<unsigned char>(value[i]);
        if (c < 32 || c == 127)
            return true;
    }
    return false;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    std::string pattern = (std::filesystem::temp_directory_path() / "fuzz_config.XXXXXX").string();
    const int fd = mkstemp(&pattern[0]);
    if (fd < 0) {
        perror("mkstemp");
        abort();
    }
    close(fd);
    g_path = pattern;
    atexit(remove_file);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // A new file each time: truncating one that has data makes ext4 flush it
    // on close, which slows fuzzing down to disk speed.
    unlink(g_path.c_str());
    FILE* f = fopen(g_path.c_str(), "wb");
    CHECK(f != nullptr);
    CHECK(fwrite(data, 1, size, f) == size);
    CHECK(fclose(f) == 0);

    Config config;
    config.entries[ustring("preset-key")] = ustring("1");
    const int rc = config.read(ustring(g_path.c_str()));
    if (rc != 0) {
        // A file too large to be a key-value file is refused unread.
        CHECK(rc == -1 && (config.entries.empty() || size > Config::kMaxFileSize));
        return 0;
    }
    CHECK(rc == 0 && config.entries.count(ustring("preset-key")) == 1);
    for (const auto& entry : config.entries) {
        CHECK(is_key(entry.first));
        CHECK(!has_control(entry.second));
        CHECK(strlen(entry.first.c_str()) == entry.first.length());
    }
    for (const auto& entry : config.entries)
        config.get_int(entry.first);  // existing keys: the map does not change
    config.get_int(ustring("pid"));
    CHECK(config.entries.count(ustring("pid")) == 1);
    return 0;
}
