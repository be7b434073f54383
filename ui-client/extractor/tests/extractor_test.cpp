#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <archive_entry.h>
#ifdef __linux__
#include <sched.h>
#endif
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "extractor.h"
#include "log.h"
#include "named_rows.h"
#include "notify_adapter.h"
#include "strtable.h"
#include "test_files_qt.h"

namespace fs = std::filesystem;
using dwtest::Entry;
using dwtest::Snapshot;
using dwtest::Tree;

namespace {

using Pairs = std::vector<std::pair<int, int>>;
using Lines = std::vector<std::string>;

const int kPax = ARCHIVE_FORMAT_TAR_PAX_RESTRICTED;
const QString kInitializing = "Driftwell is initializing...";
const std::string kDotDot = "[ERROR] extractor(#): archive_read_extract2 failed: 'Path contains '..''";
const std::string kUnlink = "[ERROR] extractor(#): archive_read_extract2 failed: 'Could not unlink'";

struct Outcome {
    int result = 0;
    std::vector<QString> texts;
    Pairs progress;
    Lines log;
    std::vector<fs::path> cwd;     // the process's working folder, seen at each report
    std::vector<fs::path> inside;  // the extracting thread's, at each report
    fs::path cwd_after;            // the extracting thread's, once Extract returned
    long threads_left = 0;         // threads of the process Extract left behind
};

// The process's threads. One that ends meanwhile (the previous case's worker) is no concern.
std::set<std::string> Threads()
{
    std::set<std::string> threads;
    for (const auto& task : fs::directory_iterator("/proc/self/task"))
        threads.insert(task.path().filename());
    return threads;
}

// A container's system call filter may refuse a thread a working folder of
// its own; the extractor then names the entries by absolute path.
bool ThreadsMayHaveAFolder()
{
#ifdef __linux__
    bool allowed = false;
    std::thread([&] { allowed = unshare(CLONE_FS) == 0; }).join();
    return allowed;
#else
    return true;
#endif
}

// The log of a run that got as far as naming its package: that line, then the errors.
Lines Logged(const std::string& archive, const std::string& dest_folder, const Lines& errors)
{
    Lines log = {"[DEBUG] extractor(#): decompress from '" + archive + "' to '" + dest_folder + "'"};
    log.insert(log.end(), errors.begin(), errors.end());
    return log;
}

// The pairs (total, 1) ... (total, done).
Pairs Upto(size_t total, size_t done)
{
    Pairs pairs;
    for (size_t i = 1; i <= done; ++i)
        pairs.emplace_back(static_cast<int>(total), static_cast<int>(i));
    return pairs;
}

// Logger, string table and application object are process-wide: set up once.
dwtest::TempDir g_log_dir;
const std::string g_log = g_log_dir.file("launcher.log");

class ExtractorEnvironment : public testing::Environment {
    void SetUp() override
    {
        dwtest::EnsureCoreApplication();
        StrTable::InitStrTable();
        // The bridge belongs to the thread that first asks for it, as in the launcher.
        Notify_Adapter::GetInstance();
        const std::string levels = g_log_dir.file("launcher.debug");
        dwtest::WriteFile(levels, "extractor_debug = 7\n");
        ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, g_log.c_str(), levels.c_str(), 50), 0);
    }
    void TearDown() override { Logger::Destroy(); }
};
testing::Environment* const g_environment = testing::AddGlobalTestEnvironment(new ExtractorEnvironment);

// Every case runs in the working directory "outside", beside the destination;
// it holds a decoy "a" and must look the same afterwards.
class ExtractorTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(fs::create_directory(dest));
        ASSERT_TRUE(fs::create_directory(outside));
        dwtest::WriteFile(outside + "/a", "working directory");
        fs::current_path(outside);
    }

    void TearDown() override
    {
        fs::current_path(previous_cwd_);
        EXPECT_EQ(Snapshot(outside), (Tree{{"a", "working directory"}}));
    }

    std::string make(const std::vector<Entry>& entries, int format = kPax, int filter = ARCHIVE_FILTER_NONE,
                     long long cut = 0)
    {
        const std::string archive = tmp_.file("package" + std::to_string(archives_++) + ".tpk");
        EXPECT_TRUE(dwtest::WriteArchive(archive, entries, {format, filter}, cut));
        return archive;
    }

    // Extract runs in a worker thread while this thread's event loop receives
    // the bridge's signals through queued connections, as the launcher does.
    Outcome run(const std::string& archive, const std::string& dest_folder)
    {
        const auto log_start = static_cast<std::streamoff>(fs::file_size(g_log));
        Outcome out;
        // The context of the queued connections: this thread's.
        QEventLoop loop;
        QObject::connect(
            Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText, &loop,
            [&out](QString text) { out.texts.push_back(text); }, Qt::QueuedConnection);
        QObject::connect(
            Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &loop,
            [&out](int total, int current) {
                out.progress.emplace_back(total, current);
                out.cwd.push_back(fs::current_path());
            },
            Qt::QueuedConnection);
        QObject::connect(
            Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &loop,
            [&out](int, int) { out.inside.push_back(fs::current_path()); }, Qt::DirectConnection);

        Extractor extractor;
        extractor.archive_path = archive.c_str();
        extractor.dest_path = dest_folder.c_str();
        extractor.writers = writers;
        const std::unique_ptr<QThread> worker(QThread::create([&] {
            const std::set<std::string> before = Threads();
            out.result = extractor.Extract();
            for (const std::string& thread : Threads())
                out.threads_left += before.count(thread) == 0;
            out.cwd_after = fs::current_path();
        }));
        // Queued behind the worker's reports, so every report is in when the loop ends.
        QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit, Qt::QueuedConnection);
        // An extraction that blocks for good fails the run rather than hanging it.
        QTimer::singleShot(60000, &loop, &QEventLoop::quit);
        worker->start();
        loop.exec();
        if (!worker->isFinished()) {
            ADD_FAILURE() << "Extract still runs after a minute: " << archive;
            fflush(stdout);
            _exit(1);
        }
        EXPECT_EQ(out.threads_left, 0);

        out.log = dwtest::LogLines(g_log, log_start);
        return out;
    }

    dwtest::TempDir tmp_;
    const std::string dest = tmp_.file("dest");
    const std::string outside = tmp_.file("outside");
    const fs::path previous_cwd_ = fs::current_path();
    int archives_ = 0;
    // The parallel path unless a case asks otherwise, whatever this machine has.
    int writers = 3;
};

// Regular files are written on several threads, with the result of writing
// the entries one after the other: each row runs on the calling thread alone
// and with writers, behind enough files to keep the writers busy, so that
// what follows meets them in flight. One progress report per entry written;
// a failure (a ".." stops the extraction) leaves the entries before it on
// disk. The version record is written after every other entry, wherever the
// package puts it and however it spells its path; of two records the later
// one wins, as it would on disk.
struct WrittenRow : dwtest::Row {
    std::vector<Entry> entries;  // behind the busy files
    Tree tree = {};              // what they leave, unless TreeOf(the ones written) shows it
    Lines errors = {};
    size_t written = 0;  // entries written before the failure
    bool racy = false;   // it fails while writers are busy: their pairs may not all go out
    int format = kPax;
};

const int kBusy = 24;
const std::string kBig(2 << 20, 'o');
const std::string kInfo = "[Version]\nbuild_version = 7\n";
const Entry kRecord = {Entry::File, "Contents/Resources/INFO", kInfo, 0600};
const Entry kClient = {Entry::File, "Contents/MacOS/drift-ui", "x", 0755};
const std::vector<Entry> kBundle = {{Entry::Folder, "Contents", ""},
                                    {Entry::File, "Contents/drift-ui", "\177ELF"},
                                    {Entry::File, "Contents/Info.plist", "<plist/>\n"},
                                    {Entry::Symlink, "Contents/current", "drift-ui"}};
const WrittenRow kWrittenRows[] = {
    {"tar", kBundle},
    {"zip", kBundle, {}, {}, 0, false, ARCHIVE_FORMAT_ZIP},
    {"dotdot_entry",
     {{Entry::File, "a", "1"},
      {Entry::File, "b", "2"},
      {Entry::File, "../outside/b", "3"},
      {Entry::File, "c", "4"}},
     {},
     {kDotDot},
     2},
    {"dotdot_hard_link_target",
     {{Entry::File, "a", "package"}, {Entry::Hardlink, "h", "../outside/a"}},
     {},
     {kDotDot},
     1},
    {"hard_link_to_a_file_in_flight", {{Entry::File, "a", kBig}, {Entry::Hardlink, "h", "a"}}},
    {"file_through_a_link_just_made",
     {{Entry::Symlink, "lnk", "../outside"}, {Entry::File, "lnk/file", "x"}},
     {{"lnk", "<dir>"}, {"lnk/file", "x"}}},
    {"link_over_a_folder_in_flight",
     {{Entry::File, "d/f", kBig}, {Entry::Symlink, "d", "../outside"}},
     {},
     {kUnlink},
     1},
    {"files_in_a_folder_just_made", {{Entry::Folder, "dir", "", 0700}, {Entry::File, "dir/f", "x"}}},
    {"same_path_twice", {{Entry::File, "same", kBig}, {Entry::File, "/./same", "new"}}, {{"same", "new"}}},
    // A writer fails: nothing more is handed out, and the record, first in
    // the package, is not written.
    {"file_over_a_full_folder", {kRecord, {Entry::File, "full", "x"}}, {}, {kUnlink}, 0, true},
    {"record_first", {kRecord, kClient}},
    {"two_records",
     {{Entry::File, "Contents/Resources/INFO", "old", 0600},
      {Entry::File, "Contents/Resources/INFO.txt", "not the record"},
      {Entry::File, "/Contents//Resources/./INFO", kInfo, 0600}},
     {{"Contents", "<dir>"},
      {"Contents/Resources", "<dir>"},
      {"Contents/Resources/INFO", kInfo},
      {"Contents/Resources/INFO.txt", "not the record"}}},
    // Written as a copy: the link has no target until the record is there.
    {"hard_link_to_the_record", {kRecord, {Entry::Hardlink, "Contents/copy", "Contents/Resources/INFO"}}},
    {"record_too_big",
     {{Entry::File, "Contents/Resources/INFO", std::string((64 << 10) + 1, 'i')}, kClient},
     {},
     {"[ERROR] extractor(#): entry 'Contents/Resources/INFO' is over 65536 bytes, too big for a version "
      "record"},
     0,
     true},
};

class ExtractorWrites : public ExtractorTest, public testing::WithParamInterface<WrittenRow> {};

TEST_P(ExtractorWrites, AsInThePackagesOrder)
{
    const WrittenRow& row = GetParam();
    std::vector<Entry> entries;
    for (int i = 0; i < kBusy; ++i)
        entries.push_back({Entry::File, "busy" + std::to_string(i), std::string(256 << 10, 'b')});
    entries.insert(entries.end(), row.entries.begin(), row.entries.end());
    const std::string archive = make(entries, row.format);
    const size_t written = row.errors.empty() ? row.entries.size() : row.written;
    for (const int threads : {0, 3}) {
        SCOPED_TRACE(threads ? "on writers" : "in order");
        fs::remove_all(dest);
        dwtest::WriteFile(dest + "/full/keep", "kept");
        writers = threads;
        const Outcome out = run(archive, dest);
        EXPECT_EQ(out.result, row.errors.empty() ? 0 : -1);
        EXPECT_EQ(out.texts, std::vector<QString>{kInitializing});
        EXPECT_EQ(out.log, Logged(archive, dest, row.errors));
        Pairs progress = Upto(entries.size(), kBusy + written);
        if (row.racy && threads > 0)
            progress.resize(std::min(progress.size(), out.progress.size()));
        EXPECT_EQ(out.progress, progress);
        // The busy files and the full folder are no row's business.
        Tree tree = Snapshot(dest);
        for (auto it = tree.begin(); it != tree.end();)
            it = it->first.rfind("busy", 0) == 0 || it->first.rfind("full", 0) == 0 ? tree.erase(it) : ++it;
        EXPECT_EQ(tree, row.tree.empty()
                            ? dwtest::TreeOf({row.entries.begin(), row.entries.begin() + written})
                            : row.tree);
        const std::string record = dest + "/Contents/Resources/INFO";
        EXPECT_TRUE(!dwtest::Exists(record) || fs::status(record).permissions() == fs::perms(0600));
    }
}

INSTANTIATE_TEST_SUITE_P(Packages, ExtractorWrites, testing::ValuesIn(kWrittenRows), dwtest::RowName());

// A compressed package is counted on a thread of its own while the entries
// are written. The pairs still come in order, one per entry written, those
// written before the total was known included. A failure does not wait for
// the count: the pairs still waiting for a total are dropped. A package cut
// short is counted up to the entry it breaks off in, and the version record
// it holds before that is never written.
struct CountRow : dwtest::Row {
    int filter;
    int total;
    int written;
    long long cut;  // the package cut to this size; 0: whole
    Lines errors;
    bool endless = false;  // a ".." second, before a tail the count would read for hours
};

const int kMany = 302;
const std::string kCutShort = "[ERROR] extractor(#): archive_read_extract2, read handle: 'Truncated ";
const std::string kExtract2 = "[ERROR] extractor(#): archive_read_extract2 failed: ''";
const CountRow kCountRows[] = {
    {"tar_zst", ARCHIVE_FILTER_ZSTD, kMany, kMany, 0, {}},
    {"tar_gz", ARCHIVE_FILTER_GZIP, kMany, kMany, 0, {}},
    {"truncated_tar", ARCHIVE_FILTER_NONE, 3, 1, 4 << 20, {kExtract2, kCutShort + "tar archive'"}},
    {"truncated_tar_zst", ARCHIVE_FILTER_ZSTD, 3, 1, 4 << 20, {kExtract2, kCutShort + "zstd input'"}},
    {"dotdot_before_an_endless_tail", ARCHIVE_FILTER_ZSTD, kMany + 1, 1, 0, {kDotDot}, true},
};

class ExtractorCounts : public ExtractorTest, public testing::WithParamInterface<CountRow> {};

TEST_P(ExtractorCounts, CountsBesideTheExtraction)
{
    const CountRow& row = GetParam();
    // Enough data that the count is still going when the first entry is written.
    std::mt19937 random(7);
    std::string bulk(8 << 20, '\0');
    std::generate(bulk.begin(), bulk.end(), std::ref(random));
    std::vector<Entry> entries = {{Entry::File, "first", "1"}, kRecord, {Entry::File, "bulk", bulk}};
    for (int i = 0; i < kMany - 3; ++i)
        entries.push_back({Entry::File, "f" + std::to_string(i), std::to_string(i)});
    if (row.endless)
        entries.insert(entries.begin() + 1, {Entry::File, "../outside/a", "x"});
    const std::string archive = make(entries, kPax, row.filter, row.cut);
    if (row.endless) {
        // Zstd frames of 4 GiB that the decoder skips, holes on disk, between the
        // first 4 MiB of tar and the rest: 4 TiB to read before the count is through.
        const std::string tar = dwtest::ReadFile(make(entries));
        const auto zst = [&](size_t from, size_t size) {
            return dwtest::ReadFile(make({{Entry::File, "raw", tar.substr(from, size)}}, ARCHIVE_FORMAT_RAW,
                                         ARCHIVE_FILTER_ZSTD));
        };
        const std::string head = zst(0, 4 << 20);
        std::ofstream out(archive, std::ios::binary | std::ios::trunc);
        out << head;
        const char skipped[8] = {0x50, 0x2a, 0x4d, 0x18, '\xf8', '\xff', '\xff', '\xff'};  // magic, 4 GiB - 8
        for (std::streamoff i = 0; i < 1024; ++i)
            out.seekp(static_cast<std::streamoff>(head.size()) + (i << 32)).write(skipped, sizeof skipped);
        out.seekp(static_cast<std::streamoff>(head.size()) + (1024LL << 32))
            << zst(4 << 20, std::string::npos);
        out.close();
        ASSERT_TRUE(out.good());
    }
    const Outcome out = run(archive, dest);
    EXPECT_EQ(out.result, row.errors.empty() ? 0 : -1);
    Pairs progress = Upto(row.total, row.written);
    // After a failure, whether the total came in time is a race.
    if (!row.errors.empty())
        progress.resize(std::min(progress.size(), out.progress.size()));
    EXPECT_EQ(out.progress, progress);
    EXPECT_EQ(out.log, Logged(archive, dest, row.errors));
    // The entry cut short stays as far as it was written; the record and its
    // two folders come with success only.
    EXPECT_EQ(Snapshot(dest).size(), row.written + (row.cut > 0) + (row.errors.empty() ? 2u : 0u));
    EXPECT_EQ(dwtest::Exists(dest + "/Contents/Resources/INFO"), row.errors.empty());
    EXPECT_EQ(dwtest::ReadFile(dest + "/first"), "1");
    if (row.errors.empty()) {
        Extractor walk;
        walk.archive_path = archive.c_str();
        walk.dest_path = dest.c_str();
        EXPECT_EQ(walk.Count(), row.total);
        fflush(stdout);  // GoogleTest's own lines stay out
        testing::internal::CaptureStdout();
        EXPECT_EQ(walk.List(), 0);
        const std::string names = testing::internal::GetCapturedStdout();
        EXPECT_EQ(std::count(names.begin(), names.end(), '\n'), row.total);
        EXPECT_EQ(names.substr(0, 6), "first\n");
    }
}

INSTANTIATE_TEST_SUITE_P(Packages, ExtractorCounts, testing::ValuesIn(kCountRows), dwtest::RowName());

// Nothing is written, no progress reported. What is not a regular file,
// folder or link is refused at once: as the package it would block the reader
// or never end; as an entry it has no place in a copy (as root the writer
// made device nodes).
TEST_F(ExtractorTest, FailsBeforeWritingAnything)
{
    const std::string missing = tmp_.file("missing.tpk");
    const std::string fifo = tmp_.file("fifo.tpk");
    const std::string zero = tmp_.file("zero.tpk");
    ASSERT_EQ(mkfifo(fifo.c_str(), 0644), 0);
    fs::create_symlink("/dev/zero", zero);
    // The manifest's entry names the decoy "a" of the working directory.
    const std::string mtree = make({{Entry::File, "a", "working directory"}}, ARCHIVE_FORMAT_MTREE);
    // The first header reads with a warning (a damaged pax record) in both
    // passes: the extraction's failed header is told, the count not waited for.
    std::string pax = dwtest::ReadFile(make({{Entry::File, std::string(150, 'n'), "x"}}));
    pax.replace(512, 3, "999");
    const std::string itself = "[ERROR] extractor(#): entry '";
    const std::string refused = "' would take the place of the destination folder";
    const std::string failed = "[ERROR] extractor(#): Failed to calculate total file numbers, ret: ";
    const Lines invalid = {"[ERROR] extractor(#): Invalid Argument"};
    const auto package = [](const std::string& path) {
        return "[WARNING] extractor(#): '" + path + "' is not a regular file, refused";
    };
    // A package of one entry "x" of the given type, and what the log says of such an entry.
    const auto special = [&](int type, int format = kPax) {
        return make({{Entry::File, "x", "", type}}, format);
    };
    const auto entry = [](const std::string& kind) {
        return "[WARNING] extractor(#): entry 'x' is " + kind +
               ", refused: a package holds only files, folders and links";
    };
    const struct {
        const char* name;
        std::string archive;
        Lines errors;
    } rows[] = {
        {"empty_archive", make({}), {failed + "0"}},
        // Compressed, so counted beside the extraction, which finds the same nothing.
        {"empty_tar_zst", make({}, kPax, ARCHIVE_FILTER_ZSTD), {failed + "0"}},
        {"damaged_first_header_zst",
         make({{Entry::File, "raw", pax}}, ARCHIVE_FORMAT_RAW, ARCHIVE_FILTER_ZSTD),
         {"[ERROR] extractor(#): archive_read_next_header failed: 'Ignoring malformed pax extended "
          "attribute'"}},
        // Count's failed open is the only one: Extract does not try again.
        {"missing_archive",
         missing,
         {"[ERROR] extractor(#): archive_read_open_filename failed: 'Failed to open '" + missing +
              "': No such file or directory'",
          failed + "-1"}},
        {"mtree_manifest",
         mtree,
         {"[ERROR] extractor(#): '" + mtree +
              "' is an mtree manifest, refused: a package carries its own files",
          failed + "-1"}},
        // Names that stand for the destination folder itself.
        {"unnamed_entry", make({{Entry::File, "", "x"}}), {itself + refused}},
        {"dots_and_slashes", make({{Entry::Symlink, "/./", "elsewhere"}}), {itself + "/./" + refused}},
        {"fifo_package", fifo, {package(fifo), failed + "-1"}},
        {"dev_zero_package", zero, {package(zero), failed + "-1"}},
        {"char_device_entry", special(AE_IFCHR), {entry("a character device")}},
        {"block_device_entry", special(AE_IFBLK), {entry("a block device")}},
        {"fifo_entry", special(AE_IFIFO), {entry("a FIFO")}},
        // Only cpio stores a socket.
        {"socket_entry", special(AE_IFSOCK, ARCHIVE_FORMAT_CPIO_SVR4_NOCRC), {entry("a socket")}},
        {"empty_archive_path", "", invalid},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Outcome out = run(row.archive, dest);
        const bool named = row.errors != invalid;
        EXPECT_EQ(out.result, -1);
        EXPECT_EQ(out.texts, named ? std::vector<QString>{kInitializing} : std::vector<QString>{});
        EXPECT_TRUE(out.progress.empty());
        EXPECT_EQ(out.log, named ? Logged(row.archive, dest, row.errors) : invalid);
        EXPECT_TRUE(fs::is_directory(fs::symlink_status(dest)));
        EXPECT_TRUE(Snapshot(dest).empty());
    }
    // Refused as the empty package path, before anything else.
    EXPECT_EQ(run(make({}), "").log, invalid);
}

TEST_F(ExtractorTest, ReplacesFilesKeepsFoldersAndWritesNothingOutsideTheDestination)
{
    // The destination is reached through a symlink, which must stay one.
    const std::string via = tmp_.file("via");
    fs::create_directory_symlink(dest, via);
    // dest/f shares its inode with the decoy: replacing must unlink, not overwrite.
    fs::create_hard_link(outside + "/a", dest + "/f");
    dwtest::WriteFile(dest + "/dir/keep", "kept");
    // "lnk" is replaced by a folder rather than followed; the hard link's
    // target "a", left as stored, would be the decoy in the working directory.
    // The package is named relative to the working directory, which the
    // extracting thread leaves for the destination and the others never do.
    const Outcome out = run(fs::relative(make({{Entry::Folder, "./", ""},
                                               {Entry::Folder, "dir", ""},
                                               {Entry::File, "dir/new", "n"},
                                               {Entry::File, "f", "new"},
                                               {Entry::Symlink, "lnk", outside},
                                               {Entry::File, "lnk/file", "x"},
                                               {Entry::File, "/abs/y", "y"},
                                               {Entry::File, "a", "package"},
                                               {Entry::Hardlink, "sub/h", "a"}}))
                                .string(),
                            via);
    EXPECT_EQ(out.result, 0);
    EXPECT_EQ(out.cwd, std::vector<fs::path>(9, outside));
    EXPECT_EQ(out.inside, std::vector<fs::path>(9, ThreadsMayHaveAFolder() ? dest : outside));
    EXPECT_EQ(out.cwd_after, outside);
    EXPECT_TRUE(fs::is_symlink(via));
    EXPECT_EQ(Snapshot(dest), (Tree{{"dir", "<dir>"},
                                    {"dir/keep", "kept"},
                                    {"dir/new", "n"},
                                    {"f", "new"},
                                    {"lnk", "<dir>"},
                                    {"lnk/file", "x"},
                                    {"abs", "<dir>"},
                                    {"abs/y", "y"},
                                    {"a", "package"},
                                    {"sub", "<dir>"},
                                    {"sub/h", "package"}}));
    EXPECT_TRUE(fs::equivalent(dest + "/a", dest + "/sub/h"));

    // A destination that does not exist yet is no folder to make the thread's
    // own: the entries go by absolute path.
    const std::string fresh = tmp_.file("fresh/app");
    const Outcome made = run(make({{Entry::Folder, "dir", ""}, {Entry::File, "dir/f", "x"}}), fresh);
    EXPECT_EQ(made.result, 0);
    EXPECT_EQ(Snapshot(fresh), (Tree{{"dir", "<dir>"}, {"dir/f", "x"}}));
    EXPECT_EQ(made.inside, std::vector<fs::path>(2, outside));
    EXPECT_EQ(made.cwd_after, outside);
}

}  // namespace
