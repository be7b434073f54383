// Fuzzes Extractor::Extract over arbitrary archive bytes. Whatever the input,
// the result is 0 or -1 and nothing is written outside the destination: the
// two folders around it keep their listings, and the working directory, a
// decoy folder beside the destination, keeps its one file unchanged. Inside
// it there are only files, folders and links.
#include "extractor.h"
#include "fuzz_check.h"
#include "log.h"
#include "strtable.h"
#include "test_files.h"

#include <archive.h>
#include <archive_entry.h>

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cctype>
#include <cstdio>
#include <filesystem>
#include <set>
#include <string>
#include <system_error>

namespace fs = std::filesystem;

namespace {

// root/{log/, box/{package, dest, outside/decoy}}; the extraction runs in outside.
std::string g_root, g_box, g_package, g_dest, g_outside;
const char kDecoy[] = "not to be touched";

using Names = std::set<std::string>;

Names names(const std::string& folder)
{
    Names out;
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec))
        out.insert(it->path().filename().string());
    return out;
}

// Names what is there when it is not what should be.
void check_names(const std::string& folder, const Names& expected)
{
    const Names found = names(folder);
    if (found == expected)
        return;
    fprintf(stderr, "%s holds:", folder.c_str());
    for (const std::string& name : found)
        fprintf(stderr, " '%s'", name.c_str());
    fprintf(stderr, "\n");
    CHECK(found == expected);
}

// An archive may leave folders without write or search permission; give them
// back before removing (root needs it not, anyone else does).
void remove_tree(const std::string& path)
{
    std::error_code ec;
    for (fs::recursive_directory_iterator it(path, ec), end; !ec && it != end; it.increment(ec))
        if (it->is_directory(ec) && !it->is_symlink(ec))
            fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ec);
    fs::permissions(path, fs::perms::owner_all, fs::perm_options::add, ec);
    fs::remove_all(path, ec);
    CHECK(!ec);
}

void remove_root()
{
    remove_tree(g_root);
}

// No device node, FIFO or socket made it into the tree.
void check_kinds(const std::string& folder)
{
    std::error_code ec;
    for (fs::recursive_directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        const fs::file_type type = it->symlink_status(ec).type();
        const bool plain = type == fs::file_type::regular || type == fs::file_type::directory ||
                           type == fs::file_type::symlink;
        if (!plain)
            fprintf(stderr, "%s is a special file\n", it->path().c_str());
        CHECK(plain);
    }
}

// libarchive is not instrumented: libFuzzer sees only our code, which takes
// the same few paths for most inputs. What the library made of an input is
// turned into features of its own (libFuzzer's extra counters), so an input
// that reaches another format, filter, entry kind or error of the library is
// kept and mutated further.
__attribute__((used, section("__libfuzzer_extra_counters"))) uint8_t g_counters[1 << 14];

void feature(uint32_t kind, uint32_t value)
{
    g_counters[((kind + 1) * 0x9E3779B1u ^ value * 0x85EBCA77u) % sizeof(g_counters)] = 1;
}

// Messages differ by their numbers too; only the words tell the checks apart.
uint32_t words_hash(const char* text)
{
    uint32_t h = 2166136261u;
    for (; text != nullptr && *text; ++text)
        if (!isdigit(static_cast<unsigned char>(*text)))
            h = (h ^ static_cast<unsigned char>(*text)) * 16777619u;
    return h;
}

// Reads the headers as the extractor does (its formats: all but mtree).
void library_features(const std::string& path)
{
    archive* a = archive_read_new();
    archive_read_support_filter_all(a);
    for (auto support :
         {archive_read_support_format_7zip, archive_read_support_format_ar, archive_read_support_format_cab,
          archive_read_support_format_cpio, archive_read_support_format_empty,
          archive_read_support_format_iso9660, archive_read_support_format_lha,
          archive_read_support_format_rar, archive_read_support_format_rar5, archive_read_support_format_tar,
          archive_read_support_format_warc, archive_read_support_format_xar, archive_read_support_format_zip})
        support(a);
    int r = archive_read_open_filename(a, path.c_str(), 10240);
    archive_entry* entry = nullptr;
    for (uint32_t n = 0; r == ARCHIVE_OK && n < 64; ++n) {
        r = archive_read_next_header(a, &entry);
        feature(0, static_cast<uint32_t>(archive_format(a)));
        feature(1, n << 8 | static_cast<uint32_t>(r & 0xff));
        if (r == ARCHIVE_OK || r == ARCHIVE_WARN) {
            feature(2, archive_entry_filetype(entry));
            feature(3, (archive_entry_hardlink(entry) != nullptr) |
                           (archive_entry_symlink(entry) != nullptr) << 1 |
                           archive_entry_size_is_set(entry) << 2);
            const la_ssize_t got = archive_read_data_skip(a);
            feature(4, static_cast<uint32_t>(got));
            r = r == ARCHIVE_WARN ? ARCHIVE_OK : r;
        }
    }
    for (int i = 0; i < archive_filter_count(a); ++i)
        feature(5, static_cast<uint32_t>(i << 16 | archive_filter_code(a, i)));
    feature(6, words_hash(archive_error_string(a)));
    archive_read_free(a);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // A few bytes of zstd can stand for gigabytes: no file grows past 16 MiB
    // (the first run ignores the signal, once libFuzzer has set its handlers,
    // so that a longer write just fails).
    const struct rlimit limit = {16 << 20, 16 << 20};
    CHECK(setrlimit(RLIMIT_FSIZE, &limit) == 0);

    std::string pattern = (fs::temp_directory_path() / "fuzz_extract.XXXXXX").string();
    CHECK(mkdtemp(&pattern[0]) != nullptr);
    g_root = pattern;
    g_box = g_root + "/box";
    CHECK(mkdir((g_root + "/log").c_str(), 0755) == 0);
    CHECK(Logger::Initialize(Logger::LOG_TYPE_FILE, ustring((g_root + "/log/launcher.log").c_str()),
                             ustring((g_root + "/log/launcher.debug").c_str()), 2) == 0);
    g_package = g_box + "/package";
    g_dest = g_box + "/dest";
    g_outside = g_box + "/outside";
    CHECK(mkdir(g_box.c_str(), 0755) == 0 && mkdir(g_outside.c_str(), 0755) == 0);
    dwtest::WriteFile(g_outside + "/decoy", kDecoy);
    atexit(remove_root);
    StrTable::InitStrTable();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool ignoring = signal(SIGXFSZ, SIG_IGN) != SIG_ERR;
    CHECK(ignoring);
    unlink(g_package.c_str());
    FILE* f = fopen(g_package.c_str(), "wb");
    CHECK(f != nullptr);
    CHECK(fwrite(data, 1, size, f) == size);
    CHECK(fclose(f) == 0);
    CHECK(mkdir(g_dest.c_str(), 0755) == 0);
    library_features(g_package);

    // Only for the extraction: libFuzzer keeps relative paths (corpus, crash
    // files) that mean the folder it was started in.
    const int started_in = open(".", O_RDONLY | O_DIRECTORY);
    CHECK(started_in >= 0 && chdir(g_outside.c_str()) == 0);
    Extractor extractor;
    extractor.archive_path = ustring(g_package.c_str());
    extractor.dest_path = ustring(g_dest.c_str());
    // The writer threads' path, whatever this machine has: the one that must
    // give the same result as the entries written in order.
    extractor.writers = 2;
    const int rc = extractor.Extract();
    CHECK(fchdir(started_in) == 0 && close(started_in) == 0);
    CHECK(rc == 0 || rc == -1);

    check_names(g_root, {"box", "log"});
    check_names(g_box, {"dest", "outside", "package"});
    check_names(g_outside, {"decoy"});
    CHECK(dwtest::ReadFile(g_outside + "/decoy") == kDecoy);
    check_kinds(g_dest);
    remove_tree(g_dest);
    return 0;
}
