#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <archive_entry.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <set>
#include <string>
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

struct Outcome {
    int result = 0;
    std::vector<QString> texts;
    Pairs progress;
    std::vector<int> percent;  // what the dialog shows: current * 100 / total
    Lines log;
    std::vector<fs::path> cwd;  // the process's working folder, seen at each report
    fs::path cwd_after;         // the extracting thread's, once Extract returned
    long threads_left = 0;      // threads of the process Extract left behind
};

// The process's threads. One that ends meanwhile (the previous case's worker) is no concern.
std::set<std::string> Threads()
{
    std::set<std::string> threads;
    for (const auto& task : fs::directory_iterator("/proc/self/task"))
        threads.insert(task.path().filename());
    return threads;
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

    std::string make(const std::vector<Entry>& entries, int format = kPax, int filter = ARCHIVE_FILTER_NONE)
    {
        const std::string archive = tmp_.file("package" + std::to_string(archives_++) + ".tpk");
        EXPECT_TRUE(dwtest::WriteArchive(archive, entries, {format, filter}));
        return archive;
    }

    // Extract runs in a worker thread while this thread's event loop receives
    // the bridge's signals through queued connections, as the launcher does.
    Outcome run(const std::string& archive, const std::string& dest_folder)
    {
        const auto log_start = static_cast<std::streamoff>(fs::file_size(g_log));
        Outcome out;
        QObject receiver;
        QObject::connect(
            Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText, &receiver,
            [&out](QString text) { out.texts.push_back(text); }, Qt::QueuedConnection);
        QObject::connect(
            Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &receiver,
            [&out](int total, int current) {
                out.progress.emplace_back(total, current);
                out.percent.push_back(current * 100 / total);
                out.cwd.push_back(fs::current_path());
            },
            Qt::QueuedConnection);

        Extractor extractor;
        extractor.archive_path = archive.c_str();
        extractor.dest_path = dest_folder.c_str();
        extractor.writers = writers;
        QThread* worker = QThread::create([&] {
            const std::set<std::string> before = Threads();
            out.result = extractor.Extract();
            for (const std::string& thread : Threads())
                out.threads_left += before.count(thread) == 0;
            out.cwd_after = fs::current_path();
        });
        QEventLoop loop;
        // Queued behind the worker's reports, so every report is in when the loop ends.
        QObject::connect(worker, &QThread::finished, &loop, &QEventLoop::quit, Qt::QueuedConnection);
        // An extraction that blocks for good fails the run rather than hanging it.
        QTimer::singleShot(60000, &loop, &QEventLoop::quit);
        worker->start();
        loop.exec();
        if (!worker->isFinished()) {
            ADD_FAILURE() << "Extract still runs after a minute: " << archive;
            fflush(stdout);
            _exit(1);
        }
        worker->wait();
        delete worker;
        EXPECT_EQ(out.threads_left, 0);

        out.log = dwtest::LogLines(g_log, log_start);
        return out;
    }

    static std::string started(const std::string& archive, const std::string& dest_folder)
    {
        return "[DEBUG] extractor(#): decompress from '" + archive + "' to '" + dest_folder + "'";
    }

    dwtest::TempDir tmp_;
    const std::string dest = tmp_.file("dest");
    const std::string outside = tmp_.file("outside");
    const fs::path previous_cwd_ = fs::current_path();
    int archives_ = 0;
    // The parallel path unless a case asks otherwise, whatever this machine has.
    int writers = 3;
};

// One progress report per entry written; a ".." stops the extraction and
// the entries before it stay on disk (cleaning up is the caller's business).
struct WrittenRow : dwtest::Row {
    int format;
    int filter;
    std::vector<Entry> entries;
    std::vector<int> percent;  // one dialog value per entry written; fewer than entries: refused
};

const std::vector<Entry> kBundle = {{Entry::Folder, "Contents", ""},
                                    {Entry::File, "Contents/drift-ui",
                                     "\x7f"
                                     "ELF"},
                                    {Entry::File, "Contents/Info.plist", "<plist/>\n"},
                                    {Entry::Symlink, "Contents/current", "drift-ui"}};
const std::vector<int> kQuarters = {25, 50, 75, 100};
const WrittenRow kWrittenRows[] = {
    {"tar", kPax, ARCHIVE_FILTER_NONE, kBundle, kQuarters},
    {"tar_gz", kPax, ARCHIVE_FILTER_GZIP, kBundle, kQuarters},
    {"tar_zst", kPax, ARCHIVE_FILTER_ZSTD, kBundle, kQuarters},
    {"zip", ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE, kBundle, kQuarters},
    {"seven_entries",
     kPax,
     ARCHIVE_FILTER_NONE,
     {{Entry::File, "1", "a"},
      {Entry::File, "2", "b"},
      {Entry::File, "3", "c"},
      {Entry::File, "4", "d"},
      {Entry::File, "5", "e"},
      {Entry::File, "6", "f"},
      {Entry::File, "7", "g"}},
     {14, 28, 42, 57, 71, 85, 100}},
    {"dotdot_entry",
     kPax,
     ARCHIVE_FILTER_NONE,
     {{Entry::File, "a", "1"},
      {Entry::File, "b", "2"},
      {Entry::File, "../outside/b", "3"},
      {Entry::File, "c", "4"}},
     {25, 50}},
    {"dotdot_hard_link_target",
     kPax,
     ARCHIVE_FILTER_NONE,
     {{Entry::File, "a", "package"}, {Entry::Hardlink, "h", "../outside/a"}},
     {50}},
};

class ExtractorWrites : public ExtractorTest, public testing::WithParamInterface<WrittenRow> {};

TEST_P(ExtractorWrites, ReportsEachEntryWrittenAndStopsAtADotDot)
{
    const WrittenRow& row = GetParam();
    const std::string archive = make(row.entries, row.format, row.filter);
    for (const int threads : {0, 3}) {
        SCOPED_TRACE(threads);
        fs::remove_all(dest);
        fs::create_directory(dest);
        writers = threads;
        const Outcome out = run(archive, dest);
        const size_t written = row.percent.size();
        EXPECT_EQ(out.result, written < row.entries.size() ? -1 : 0);
        EXPECT_EQ(out.texts, std::vector<QString>{kInitializing});
        Pairs progress;
        for (size_t done = 1; done <= written; ++done)
            progress.emplace_back(static_cast<int>(row.entries.size()), static_cast<int>(done));
        EXPECT_EQ(out.progress, progress);
        EXPECT_EQ(out.percent, row.percent);
        Lines log = {started(archive, dest)};
        if (written < row.entries.size())
            log.push_back("[ERROR] extractor(#): archive_read_extract2 failed: 'Path contains '..''");
        EXPECT_EQ(out.log, log);
        EXPECT_EQ(Snapshot(dest), dwtest::TreeOf({row.entries.begin(), row.entries.begin() + written}));
    }
}

INSTANTIATE_TEST_SUITE_P(Packages, ExtractorWrites, testing::ValuesIn(kWrittenRows), dwtest::RowName());

// A compressed package is counted on a thread of its own while the entries
// are written. The pairs still come in order, one per entry written, those
// written before the total was known included. A failure does not wait for
// the count: the pairs still waiting for a total are dropped. A package cut
// short is counted up to the entry it breaks off in.
struct CountRow : dwtest::Row {
    int filter;
    bool dotdot;  // a ".." entry second
    int total;
    int written;
    long long cut;  // the package cut to this size; 0: whole
    Lines errors;
    bool endless = false;  // a tail the count would read for hours
};

const int kMany = 302;
const std::string kCutShort = "[ERROR] extractor(#): archive_read_extract2, read handle: 'Truncated ";
const std::string kExtract2 = "[ERROR] extractor(#): archive_read_extract2 failed: ''";
const CountRow kCountRows[] = {
    {"tar_zst", ARCHIVE_FILTER_ZSTD, false, kMany, kMany, 0, {}},
    {"tar_gz", ARCHIVE_FILTER_GZIP, false, kMany, kMany, 0, {}},
    {"dotdot_tar_zst",
     ARCHIVE_FILTER_ZSTD,
     true,
     kMany + 1,
     1,
     0,
     {"[ERROR] extractor(#): archive_read_extract2 failed: 'Path contains '..''"}},
    {"truncated_tar", ARCHIVE_FILTER_NONE, false, 2, 1, 4 << 20, {kExtract2, kCutShort + "tar archive'"}},
    {"truncated_tar_zst", ARCHIVE_FILTER_ZSTD, false, 2, 1, 4 << 20, {kExtract2, kCutShort + "zstd input'"}},
    {"dotdot_before_an_endless_tail",
     ARCHIVE_FILTER_ZSTD,
     true,
     kMany + 1,
     1,
     0,
     {"[ERROR] extractor(#): archive_read_extract2 failed: 'Path contains '..''"},
     true},
};

// Zstd frames of 4 GiB that the decoder skips, holes on disk, between the
// first 4 MiB of tar and the rest: 4 TiB to read before the count is through.
std::string WithEndlessTail(const std::string& path, const std::string& head, const std::string& rest)
{
    const int fd = open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
    const off_t kFrame = off_t(1) << 32;
    const unsigned char skipped[8] = {0x50, 0x2a, 0x4d, 0x18, 0xf8, 0xff, 0xff, 0xff};  // magic, 4 GiB - 8
    bool ok = fd >= 0 && pwrite(fd, head.data(), head.size(), 0) == static_cast<ssize_t>(head.size());
    const off_t tail = static_cast<off_t>(head.size());
    for (off_t i = 0; i < 1024; ++i)
        ok = ok && pwrite(fd, skipped, sizeof skipped, tail + i * kFrame) == sizeof skipped;
    ok = ok &&
         pwrite(fd, rest.data(), rest.size(), tail + 1024 * kFrame) == static_cast<ssize_t>(rest.size());
    return close(fd) == 0 && ok ? path : "";
}

class ExtractorCounts : public ExtractorTest, public testing::WithParamInterface<CountRow> {};

TEST_P(ExtractorCounts, CountsBesideTheExtraction)
{
    const CountRow& row = GetParam();
    // Enough data that the count is still going when the first entry is written.
    std::mt19937 random(7);
    std::string bulk(8 << 20, '\0');
    for (char& c : bulk)
        c = static_cast<char>(random());
    std::vector<Entry> entries = {{Entry::File, "first", "1"}, {Entry::File, "bulk", bulk}};
    for (int i = 0; i < kMany - 2; ++i)
        entries.push_back({Entry::File, "f" + std::to_string(i), std::to_string(i)});
    if (row.dotdot)
        entries.insert(entries.begin() + 1, {Entry::File, "../outside/a", "x"});
    std::string archive = make(entries, kPax, row.filter);
    if (row.cut > 0)
        fs::resize_file(archive, static_cast<uintmax_t>(row.cut));
    if (row.endless) {
        const std::string tar = dwtest::ReadFile(make(entries));
        const auto zst = [&](size_t from, size_t size) {
            return dwtest::ReadFile(make({{Entry::File, "raw", tar.substr(from, size)}}, ARCHIVE_FORMAT_RAW,
                                         ARCHIVE_FILTER_ZSTD));
        };
        archive = WithEndlessTail(archive, zst(0, 4 << 20), zst(4 << 20, std::string::npos));
        ASSERT_FALSE(archive.empty());
    }
    const Outcome out = run(archive, dest);
    EXPECT_EQ(out.result, row.errors.empty() ? 0 : -1);
    Pairs progress;
    for (int done = 1; done <= row.written; ++done)
        progress.emplace_back(row.total, done);
    // After a failure, whether the total came in time is a race.
    if (!row.errors.empty())
        progress.resize(std::min(progress.size(), out.progress.size()));
    EXPECT_EQ(out.progress, progress);
    Lines log = {started(archive, dest)};
    log.insert(log.end(), row.errors.begin(), row.errors.end());
    EXPECT_EQ(out.log, log);
    // The entry cut short stays as far as it was written.
    EXPECT_EQ(Snapshot(dest).size(), static_cast<size_t>(row.written + (row.cut > 0)));
    EXPECT_EQ(dwtest::ReadFile(dest + "/first"), "1");
}

INSTANTIATE_TEST_SUITE_P(Packages, ExtractorCounts, testing::ValuesIn(kCountRows), dwtest::RowName());

// The version record is written after every other entry, wherever the
// package puts it and however it spells its path: a copy cut short never
// has one. Two records: the later one wins, as it would on disk.
TEST_F(ExtractorTest, WritesTheVersionRecordLast)
{
    std::mt19937 random(7);
    std::string bulk(1 << 20, '\0');
    for (char& c : bulk)
        c = static_cast<char>(random());
    const std::string info = "[Version]\nbuild_version = 7\n";
    const std::vector<Entry> first = {{Entry::File, "./Contents/Resources/INFO", info, 0600},
                                      {Entry::File, "Contents/MacOS/drift-ui", "x", 0755},
                                      {Entry::File, "Contents/bulk", bulk}};
    const Tree bundle = {{"Contents", "<dir>"},
                         {"Contents/Resources", "<dir>"},
                         {"Contents/Resources/INFO", info},
                         {"Contents/MacOS", "<dir>"},
                         {"Contents/MacOS/drift-ui", "x"},
                         {"Contents/bulk", dwtest::Shown(bulk)}};
    const struct {
        const char* name;
        std::vector<Entry> entries;
        long long cut;
        Lines errors;
        Tree tree;  // when it succeeds
    } rows[] = {
        {"record_first", first, 0, {}, bundle},
        {"record_first_cut_short", first, 512 << 10, {kExtract2, kCutShort + "tar archive'"}, {}},
        {"two_records",
         {{Entry::File, "Contents/Resources/INFO", "old", 0600},
          {Entry::File, "Contents/Resources/INFO.txt", "not the record"},
          {Entry::File, "/Contents//Resources/./INFO", info, 0600}},
         0,
         {},
         {{"Contents", "<dir>"},
          {"Contents/Resources", "<dir>"},
          {"Contents/Resources/INFO", info},
          {"Contents/Resources/INFO.txt", "not the record"}}},
        // Written as a copy: the link has no target until the record is there.
        {"hard_link_to_the_record",
         {first[0], {Entry::Hardlink, "Contents/copy", "Contents/Resources/INFO"}},
         0,
         {},
         {{"Contents", "<dir>"},
          {"Contents/Resources", "<dir>"},
          {"Contents/Resources/INFO", info},
          {"Contents/copy", info}}},
        {"record_too_big",
         {{Entry::File, "Contents/Resources/INFO", std::string((64 << 10) + 1, 'i')}, first[1]},
         0,
         {"[ERROR] extractor(#): entry 'Contents/Resources/INFO' is over 65536 bytes, too big for a version "
          "record"},
         {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        fs::remove_all(dest);
        fs::create_directory(dest);
        const std::string archive = make(row.entries);
        if (row.cut > 0)
            fs::resize_file(archive, static_cast<uintmax_t>(row.cut));
        const Outcome out = run(archive, dest);
        Lines log = {started(archive, dest)};
        log.insert(log.end(), row.errors.begin(), row.errors.end());
        EXPECT_EQ(out.log, log);
        const std::string record = dest + "/Contents/Resources/INFO";
        if (!row.errors.empty()) {
            EXPECT_EQ(out.result, -1);
            EXPECT_FALSE(dwtest::Exists(record));
            continue;
        }
        EXPECT_EQ(out.result, 0);
        EXPECT_EQ(Snapshot(dest), row.tree);
        EXPECT_EQ(fs::status(record).permissions(), fs::perms(0600));
        Pairs progress;
        for (size_t done = 1; done <= row.entries.size(); ++done)
            progress.emplace_back(static_cast<int>(row.entries.size()), static_cast<int>(done));
        EXPECT_EQ(out.progress, progress);
    }
}

TEST_F(ExtractorTest, FailsBeforeWritingAnything)
{
    const std::string empty = make({});
    const std::string missing = tmp_.file("missing.tpk");
    // The manifest's entry names the decoy "a" of the working directory.
    const std::string mtree = make({{Entry::File, "a", "working directory"}}, ARCHIVE_FORMAT_MTREE);
    // Names that stand for the destination folder itself.
    const std::string unnamed = make({{Entry::File, "", "x"}});
    const std::string dots = make({{Entry::Symlink, "/./", "elsewhere"}});
    // Compressed, so counted beside the extraction, which finds the same nothing.
    const std::string empty_zst = make({}, kPax, ARCHIVE_FILTER_ZSTD);
    // The first header reads with a warning (a damaged pax record) in both
    // passes: the extraction's failed header is told, the count not waited for.
    std::string pax = dwtest::ReadFile(make({{Entry::File, std::string(150, 'n'), "x"}}));
    pax.replace(512, 3, "999");
    const std::string damaged_zst = make({{Entry::File, "raw", pax}}, ARCHIVE_FORMAT_RAW,
                                         ARCHIVE_FILTER_ZSTD);
    const std::string itself = "[ERROR] extractor(#): entry '";
    const std::string refused = "' would take the place of the destination folder";
    const std::string failed = "[ERROR] extractor(#): Failed to calculate total file numbers, ret: ";
    const std::string invalid = "[ERROR] extractor(#): Invalid Argument";
    const struct {
        const char* name;
        std::string archive;
        std::string dest_folder;
        std::vector<QString> texts;
        Lines log;
    } rows[] = {
        {"empty_archive", empty, dest, {kInitializing}, {started(empty, dest), failed + "0"}},
        {"empty_tar_zst", empty_zst, dest, {kInitializing}, {started(empty_zst, dest), failed + "0"}},
        {"damaged_first_header_zst",
         damaged_zst,
         dest,
         {kInitializing},
         {started(damaged_zst, dest), "[ERROR] extractor(#): archive_read_next_header failed: 'Ignoring "
                                      "malformed pax extended attribute'"}},
        // Count's failed open is the only one: Extract does not try again.
        {"missing_archive",
         missing,
         dest,
         {kInitializing},
         {started(missing, dest),
          "[ERROR] extractor(#): archive_read_open_filename failed: 'Failed to open '" + missing +
              "': No such file or directory'",
          failed + "-1"}},
        {"mtree_manifest",
         mtree,
         dest,
         {kInitializing},
         {started(mtree, dest),
          "[ERROR] extractor(#): '" + mtree +
              "' is an mtree manifest, refused: a package carries its own files",
          failed + "-1"}},
        {"unnamed_entry", unnamed, dest, {kInitializing}, {started(unnamed, dest), itself + refused}},
        {"dots_and_slashes", dots, dest, {kInitializing}, {started(dots, dest), itself + "/./" + refused}},
        {"empty_archive_path", "", dest, {}, {invalid}},
        {"empty_dest_path", empty, "", {}, {invalid}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Outcome out = run(row.archive, row.dest_folder);
        EXPECT_EQ(out.result, -1);
        EXPECT_EQ(out.texts, row.texts);
        EXPECT_TRUE(out.progress.empty());
        EXPECT_EQ(out.log, row.log);
        EXPECT_TRUE(fs::is_directory(fs::symlink_status(dest)));
        EXPECT_TRUE(Snapshot(dest).empty());
    }
}

// What is not a regular file, folder or link. As the package it would block
// the reader or never end; as an entry it has no place in a copy (as root the
// writer made device nodes). Refused at once, and nothing is written.
TEST_F(ExtractorTest, RefusesSpecialFiles)
{
    const std::string fifo = tmp_.file("fifo.tpk");
    const std::string zero = tmp_.file("zero.tpk");
    ASSERT_EQ(mkfifo(fifo.c_str(), 0644), 0);
    fs::create_symlink("/dev/zero", zero);
    const std::string failed = "[ERROR] extractor(#): Failed to calculate total file numbers, ret: -1";
    const auto package = [](const std::string& path) {
        return "[WARNING] extractor(#): '" + path + "' is not a regular file, refused";
    };
    const auto entry = [](const char* name, const char* kind) {
        return "[WARNING] extractor(#): entry '" + std::string(name) + "' is " + kind +
               ", refused: a package holds only files, folders and links";
    };
    const struct {
        const char* name;
        std::string archive;
        Lines log;
    } rows[] = {
        {"fifo_package", fifo, {package(fifo), failed}},
        {"dev_zero_package", zero, {package(zero), failed}},
        {"char_device_entry",
         make({{Entry::File, "c", "", AE_IFCHR | 0644}}),
         {entry("c", "a character device")}},
        {"block_device_entry",
         make({{Entry::File, "b", "", AE_IFBLK | 0644}}),
         {entry("b", "a block device")}},
        {"fifo_entry", make({{Entry::File, "p", "", AE_IFIFO | 0644}}), {entry("p", "a FIFO")}},
        // Only cpio stores a socket.
        {"socket_entry",
         make({{Entry::File, "s", "", AE_IFSOCK | 0644}}, ARCHIVE_FORMAT_CPIO_SVR4_NOCRC),
         {entry("s", "a socket")}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        fs::remove_all(dest);
        fs::create_directory(dest);
        const Outcome out = run(row.archive, dest);
        EXPECT_EQ(out.result, -1);
        Lines log = {started(row.archive, dest)};
        log.insert(log.end(), row.log.begin(), row.log.end());
        EXPECT_EQ(out.log, log);
        EXPECT_TRUE(out.progress.empty());
        EXPECT_TRUE(fs::is_empty(dest));
    }
}

TEST_F(ExtractorTest, ReplacesFilesKeepsFoldersAndWritesNothingOutside)
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
}

TEST_F(ExtractorTest, WritesIntoADestinationThatDoesNotExistYet)
{
    // No folder to make the thread's own: the entries go by absolute path.
    const std::string fresh = tmp_.file("fresh/app");
    const Outcome out = run(make({{Entry::Folder, "dir", ""}, {Entry::File, "dir/f", "x"}}), fresh);
    EXPECT_EQ(out.result, 0);
    EXPECT_EQ(Snapshot(fresh), (Tree{{"dir", "<dir>"}, {"dir/f", "x"}}));
    EXPECT_EQ(out.cwd_after, outside);
}

// Regular files are written on several threads, with the result of writing
// the entries one after the other: each row runs on the calling thread alone
// and with writers, behind enough files to keep the writers busy, so that
// what follows meets them in flight.
TEST_F(ExtractorTest, WritesOnSeveralThreadsAsInThePackagesOrder)
{
    std::vector<Entry> busy;
    for (int i = 0; i < 24; ++i)
        busy.push_back({Entry::File, "busy" + std::to_string(i), std::string(256 << 10, 'b')});
    const std::string big(2 << 20, 'o');
    const std::string info = "[Version]\nbuild_version = 7\n";
    const struct {
        const char* name;
        std::vector<Entry> entries;  // behind busy
        Tree tree;                   // what they leave in the destination
        std::string error = {};
    } rows[] = {
        {"hard_link_to_a_file_in_flight",
         {{Entry::File, "a", big}, {Entry::Hardlink, "h", "a"}},
         {{"a", dwtest::Shown(big)}, {"h", dwtest::Shown(big)}}},
        {"file_through_a_link_just_made",
         {{Entry::Symlink, "lnk", outside}, {Entry::File, "lnk/file", "x"}},
         {{"lnk", "<dir>"}, {"lnk/file", "x"}}},
        {"link_over_a_folder_in_flight",
         {{Entry::File, "d/f", big}, {Entry::Symlink, "d", outside}},
         {{"d", "<dir>"}, {"d/f", dwtest::Shown(big)}},
         "[ERROR] extractor(#): archive_read_extract2 failed: 'Could not unlink'"},
        {"files_in_a_folder_just_made",
         {{Entry::Folder, "dir", "", 0700}, {Entry::File, "dir/f", "x"}},
         {{"dir", "<dir>"}, {"dir/f", "x"}}},
        {"same_path_twice", {{Entry::File, "same", big}, {Entry::File, "/./same", "new"}}, {{"same", "new"}}},
        // A writer fails: nothing more is handed out, and the record, first in
        // the package, is not written.
        {"file_over_a_full_folder",
         {{Entry::File, "Contents/Resources/INFO", info}, {Entry::File, "full", "x"}},
         {},
         "[ERROR] extractor(#): archive_read_extract2 failed: 'Could not unlink'"},
    };
    for (const auto& row : rows) {
        std::vector<Entry> entries = busy;
        entries.insert(entries.end(), row.entries.begin(), row.entries.end());
        const std::string archive = make(entries);
        for (const int threads : {0, 3}) {
            SCOPED_TRACE(std::string(row.name) + (threads ? " on writers" : " in order"));
            fs::remove_all(dest);
            dwtest::WriteFile(dest + "/full/keep", "kept");
            writers = threads;
            const Outcome out = run(archive, dest);
            EXPECT_EQ(out.result, row.error.empty() ? 0 : -1);
            Lines log = {started(archive, dest)};
            if (!row.error.empty())
                log.push_back(row.error);
            EXPECT_EQ(out.log, log);
            // One pair per entry finished, done rising by one, all of them on success.
            for (size_t i = 0; i < out.progress.size(); ++i)
                EXPECT_EQ(out.progress[i], std::make_pair(static_cast<int>(entries.size()), int(i + 1)));
            if (row.error.empty()) {
                EXPECT_EQ(out.progress.size(), entries.size());
            }
            Tree tree = Snapshot(dest);
            for (const Entry& entry : busy)
                tree.erase(entry.name);
            tree.erase("full");
            tree.erase("full/keep");
            EXPECT_EQ(tree, row.tree);
        }
    }
}

}  // namespace
