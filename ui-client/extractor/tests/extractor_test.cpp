#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QThread>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "archive_maker.h"
#include "extractor.h"
#include "log.h"
#include "notify_adapter.h"
#include "strtable.h"

namespace fs = std::filesystem;

namespace {

using Tree = std::map<std::string, std::string>;
using Pairs = std::vector<std::pair<int, int>>;

std::string read_file(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

void write_file(const std::string& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

// "file:<content>", long contents shortened to their size and hash.
std::string file_value(const std::string& content)
{
    if (content.size() <= 64)
        return "file:" + content;
    return "file:" + std::to_string(content.size()) + " bytes #" + std::to_string(std::hash<std::string>()(content));
}

// Relative path -> file_value, "dir" or "link:<target>"; links are not followed.
Tree tree(const std::string& root)
{
    Tree out;
    std::error_code ec;
    for (fs::recursive_directory_iterator it(root, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string rel = it->path().lexically_relative(root).string();
        if (it->is_symlink())
            out[rel] = "link:" + fs::read_symlink(it->path()).string();
        else if (it->is_directory())
            out[rel] = "dir";
        else
            out[rel] = file_value(read_file(it->path().string()));
    }
    return out;
}

ino_t inode(const std::string& path)
{
    struct stat st {};
    return lstat(path.c_str(), &st) == 0 ? st.st_ino : 0;
}

struct Outcome {
    int result = 0;
    std::vector<QString> texts;
    Pairs progress;
    std::vector<int> percent;  // what the dialog shows: current * 100 / total
    std::vector<std::string> log;
};

const QString kInitializing = "Driftwell is initializing...";

// Logger, string table and application object are process-wide: set up once.
class ExtractorTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char arg0[] = "extractor_test";
        static char* argv[] = {arg0, nullptr};
        app_ = new QCoreApplication(argc, argv);
        StrTable::InitStrTable();
        // The bridge belongs to the thread that first asks for it, as in the launcher.
        Notify_Adapter::GetInstance();
        log_dir_ = new QTemporaryDir;
        const std::string levels = log_dir_->filePath("launcher.debug").toStdString();
        write_file(levels, "extractor_debug = 7\n");
        log_path_ = log_dir_->filePath("launcher.log").toStdString();
        ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log_path_.c_str(), levels.c_str(), 50), 0);
    }

    static void TearDownTestSuite()
    {
        Logger::Destroy();
        delete log_dir_;
        delete app_;
    }

    void SetUp() override
    {
        ASSERT_TRUE(tmp_.isValid());
        ASSERT_TRUE(fs::create_directory(dest));
        log_start_ = read_file(log_path_).size();
    }

    std::string path(const std::string& name) const { return tmp_.filePath(name.c_str()).toStdString(); }

    std::string make(const std::vector<Entry>& entries, Packing packing = Packing::Tar,
                     const std::string& name = "package.tpk")
    {
        const std::string archive = path(name);
        EXPECT_TRUE(write_archive(archive, packing, entries));
        return archive;
    }

    // Extract runs in a worker thread while this thread's event loop receives
    // the bridge's signals through queued connections, as the launcher does.
    Outcome run(const std::string& archive, const std::string& dest_folder)
    {
        Outcome out;
        QObject receiver;
        QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText, &receiver,
                         [&out](QString text) { out.texts.push_back(text); }, Qt::QueuedConnection);
        QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &receiver,
                         [&out](int total, int current) {
                             out.progress.emplace_back(total, current);
                             out.percent.push_back(current * 100 / total);
                         },
                         Qt::QueuedConnection);

        Extractor extractor;
        extractor.archive_path = archive.c_str();
        extractor.dest_path = dest_folder.c_str();
        QThread* worker = QThread::create([&] { out.result = extractor.Extract(); });
        QEventLoop loop;
        // Queued behind the worker's reports, so every report is in when the loop ends.
        QObject::connect(worker, &QThread::finished, &loop, &QEventLoop::quit, Qt::QueuedConnection);
        worker->start();
        loop.exec();
        worker->wait();
        delete worker;
        out.log = new_log_lines();
        return out;
    }

    // Lines logged since SetUp, without time stamps and with "extractor(#)"
    // in place of the source line.
    std::vector<std::string> new_log_lines() const
    {
        std::vector<std::string> lines;
        std::istringstream in(read_file(log_path_).substr(log_start_));
        for (std::string line; std::getline(in, line);) {
            std::string text = line.size() > 16 ? line.substr(16) : line;  // "%b %d %H:%M:%S "
            const size_t open = text.find("] extractor(");
            const size_t close = text.find(')', open);
            if (open != std::string::npos && close != std::string::npos)
                text.replace(open + 12, close - open - 12, "#");
            lines.push_back(text);
        }
        return lines;
    }

    std::string started(const std::string& archive, const std::string& dest_folder) const
    {
        return "[DEBUG] extractor(#): decompress from '" + archive + "' to '" + dest_folder + "'";
    }

    static Pairs pairs(int total, int count)
    {
        Pairs out;
        for (int i = 1; i <= count; ++i)
            out.emplace_back(total, i);
        return out;
    }

    QTemporaryDir tmp_;
    const std::string dest = path("dest");
    size_t log_start_ = 0;

    static QCoreApplication* app_;
    static QTemporaryDir* log_dir_;
    static std::string log_path_;
};

QCoreApplication* ExtractorTest::app_ = nullptr;
QTemporaryDir* ExtractorTest::log_dir_ = nullptr;
std::string ExtractorTest::log_path_;

TEST_F(ExtractorTest, ProgressReachesTheDialogOncePerEntry)
{
    const struct {
        const char* name;
        std::vector<Entry> entries;
        std::vector<int> percent;
    } rows[] = {
        {"four_entries",
         {{Entry::Folder, "d", ""}, {Entry::File, "d/a", "1"}, {Entry::File, "b", "22"}, {Entry::File, "d/c", ""}},
         {25, 50, 75, 100}},
        {"seven_entries",
         {{Entry::File, "1", "a"}, {Entry::File, "2", "b"}, {Entry::File, "3", "c"}, {Entry::File, "4", "d"},
          {Entry::File, "5", "e"}, {Entry::File, "6", "f"}, {Entry::File, "7", "g"}},
         {14, 28, 42, 57, 71, 85, 100}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        fs::remove_all(dest);
        fs::create_directory(dest);
        log_start_ = read_file(log_path_).size();
        const std::string archive = make(row.entries);
        const int n = static_cast<int>(row.entries.size());

        const Outcome out = run(archive, dest);
        EXPECT_EQ(out.result, 0);
        EXPECT_EQ(out.texts, std::vector<QString>{kInitializing});
        EXPECT_EQ(out.progress, pairs(n, n));
        EXPECT_EQ(out.percent, row.percent);
        EXPECT_EQ(out.log, std::vector<std::string>{started(archive, dest)});
        Tree expected;
        for (const Entry& e : row.entries)
            expected[e.name] = e.kind == Entry::Folder ? "dir" : "file:" + e.data;
        EXPECT_EQ(tree(dest), expected);
    }
}

TEST_F(ExtractorTest, FailsBeforeWritingAnything)
{
    const std::string empty = make({}, Packing::Tar, "empty.tpk");
    const std::string missing = path("missing.tpk");
    const std::string text = path("notes.txt");
    write_file(text, "not an archive\n");
    const std::string failed = "[ERROR] extractor(#): Failed to calculate total file numbers, ret: ";
    const std::string invalid = "[ERROR] extractor(#): Invalid Argument";
    const struct {
        const char* name;
        std::string archive;
        std::string dest_folder;
        std::vector<QString> texts;
        std::vector<std::string> log;
    } rows[] = {
        {"empty_archive", empty, dest, {kInitializing}, {started(empty, dest), failed + "0"}},
        // Count's failed open is the only one: Extract does not try again.
        {"not_an_archive", text, dest, {kInitializing},
         {started(text, dest), "[ERROR] extractor(#): archive_read_open_filename failed: 'Unrecognized archive format'",
          failed + "-1"}},
        {"missing_archive", missing, dest, {kInitializing},
         {started(missing, dest),
          "[ERROR] extractor(#): archive_read_open_filename failed: 'Failed to open '" + missing + "''",
          failed + "-1"}},
        {"empty_archive_path", "", dest, {}, {invalid}},
        {"empty_dest_path", empty, "", {}, {invalid}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        log_start_ = read_file(log_path_).size();
        const Outcome out = run(row.archive, row.dest_folder);
        EXPECT_EQ(out.result, -1);
        EXPECT_EQ(out.texts, row.texts);
        EXPECT_TRUE(out.progress.empty());
        EXPECT_EQ(out.log, row.log);
        EXPECT_TRUE(tree(dest).empty());
    }
}

TEST_F(ExtractorTest, DotDotEntryStopsWithEarlierEntriesOnDisk)
{
    const std::string archive = make({{Entry::File, "a", "1"},
                                      {Entry::File, "b", "2"},
                                      {Entry::File, "../escaped", "3"},
                                      {Entry::File, "c", "4"}});
    const Outcome out = run(archive, dest);
    EXPECT_EQ(out.result, -1);
    EXPECT_EQ(out.progress, pairs(4, 2));
    EXPECT_EQ(out.log, (std::vector<std::string>{
                           started(archive, dest),
                           "[ERROR] extractor(#): archive_read_extract2 failed: 'Path contains '..''"}));
    EXPECT_EQ(tree(dest), (Tree{{"a", "file:1"}, {"b", "file:2"}}));
    EXPECT_FALSE(fs::exists(path("escaped")));
}

TEST_F(ExtractorTest, TruncatedArchiveStopsWithEarlierEntriesOnDisk)
{
    const std::string big(200000, 'x');
    const std::string archive = make({{Entry::File, "a", "1"}, {Entry::File, "big", big}});
    fs::resize_file(archive, 100000);  // inside big's data
    const Outcome out = run(archive, dest);
    EXPECT_EQ(out.result, -1);
    EXPECT_EQ(out.progress, pairs(2, 1));
    ASSERT_EQ(out.log.size(), 2u);
    EXPECT_EQ(out.log[1].rfind("[ERROR] extractor(#): archive_read_extract2 failed: '", 0), 0u) << out.log[1];
    EXPECT_EQ(read_file(dest + "/a"), "1");
    // The cut entry stays as far as it got; cleaning up is the caller's business.
    EXPECT_TRUE(fs::exists(dest + "/big"));
    EXPECT_NE(read_file(dest + "/big"), big);
}

TEST_F(ExtractorTest, ReplacesFilesAndKeepsFolders)
{
    // dest/f shares its inode with a file outside: replacing means unlinking,
    // so the outside file must keep its content.
    const std::string outside = path("outside");
    write_file(outside, "old");
    fs::create_hard_link(outside, dest + "/f");
    fs::create_directory(dest + "/dir");
    write_file(dest + "/dir/keep", "kept");

    const std::string archive =
        make({{Entry::Folder, "dir", ""}, {Entry::File, "dir/new", "n"}, {Entry::File, "f", "new"}});
    const Outcome out = run(archive, dest);
    EXPECT_EQ(out.result, 0);
    EXPECT_EQ(tree(dest), (Tree{{"dir", "dir"}, {"dir/keep", "file:kept"}, {"dir/new", "file:n"}, {"f", "file:new"}}));
    EXPECT_EQ(read_file(outside), "old");
}

TEST_F(ExtractorTest, HardLinksResolveInsideTheDestination)
{
    // A target left as stored would resolve against the working directory,
    // which holds a file of the same name.
    const std::string cwd = path("cwd");
    fs::create_directory(cwd);
    write_file(cwd + "/a", "working directory");
    const fs::path previous = fs::current_path();
    fs::current_path(cwd);

    const std::string linked =
        make({{Entry::File, "a", "package"}, {Entry::Hardlink, "sub/h", "a"}}, Packing::Tar, "1.tpk");
    const Outcome good = run(linked, dest);
    EXPECT_EQ(good.result, 0);
    EXPECT_EQ(tree(dest), (Tree{{"a", "file:package"}, {"sub", "dir"}, {"sub/h", "file:package"}}));
    EXPECT_EQ(inode(dest + "/a"), inode(dest + "/sub/h"));
    EXPECT_NE(inode(cwd + "/a"), inode(dest + "/sub/h"));

    fs::remove_all(dest);
    fs::create_directory(dest);
    log_start_ = read_file(log_path_).size();
    const std::string escaping =
        make({{Entry::File, "a", "package"}, {Entry::Hardlink, "h", "../cwd/a"}}, Packing::Tar, "2.tpk");
    const Outcome bad = run(escaping, dest);
    fs::current_path(previous);
    EXPECT_EQ(bad.result, -1);
    EXPECT_EQ(bad.progress, pairs(2, 1));
    EXPECT_EQ(bad.log, (std::vector<std::string>{
                           started(escaping, dest),
                           "[ERROR] extractor(#): archive_read_extract2 failed: 'Path contains '..''"}));
    EXPECT_EQ(tree(dest), (Tree{{"a", "file:package"}}));
    EXPECT_EQ(read_file(cwd + "/a"), "working directory");
    EXPECT_EQ(tree(cwd), (Tree{{"a", "file:working directory"}}));
}

TEST_F(ExtractorTest, NothingLandsOutsideTheDestination)
{
    const std::string outside = path("outside");
    fs::create_directory(outside);
    // The link is replaced by a folder rather than followed.
    const Outcome out = run(make({{Entry::Symlink, "lnk", outside},
                                  {Entry::File, "lnk/file", "x"},
                                  {Entry::File, "/abs/y", "y"}}),
                            dest);
    EXPECT_EQ(out.result, 0);
    EXPECT_EQ(tree(dest), (Tree{{"lnk", "dir"}, {"lnk/file", "file:x"}, {"abs", "dir"}, {"abs/y", "file:y"}}));
    EXPECT_TRUE(tree(outside).empty());
}

TEST_F(ExtractorTest, DestinationReachedThroughASymlinkKeepsTheLink)
{
    const std::string via = path("via");
    fs::create_directory_symlink(dest, via);
    const Outcome out = run(make({{Entry::File, "a", "1"}}), via);
    EXPECT_EQ(out.result, 0);
    EXPECT_TRUE(fs::is_symlink(via));
    EXPECT_EQ(tree(dest), (Tree{{"a", "file:1"}}));
}

TEST_F(ExtractorTest, EveryPackingExtracts)
{
    const std::vector<Entry> entries = {
        {Entry::Folder, "Contents", ""},
        {Entry::Folder, "Contents/MacOS", ""},
        {Entry::File, "Contents/MacOS/drift-ui", std::string(70000, '\x7f') + "ELF"},
        {Entry::File, "Contents/Info.plist", "<plist/>\n"},
        {Entry::Symlink, "Contents/current", "MacOS/drift-ui"},
    };
    const Tree expected = {{"Contents", "dir"},
                           {"Contents/MacOS", "dir"},
                           {"Contents/MacOS/drift-ui", file_value(entries[2].data)},
                           {"Contents/Info.plist", "file:<plist/>\n"},
                           {"Contents/current", "link:MacOS/drift-ui"}};
    const struct {
        const char* name;
        Packing packing;
    } rows[] = {{"tar", Packing::Tar}, {"tar_gz", Packing::TarGz}, {"tar_zst", Packing::TarZst}, {"zip", Packing::Zip}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        fs::remove_all(dest);
        fs::create_directory(dest);
        const Outcome out = run(make(entries, row.packing, row.name), dest);
        EXPECT_EQ(out.result, 0);
        EXPECT_EQ(out.progress, pairs(5, 5));
        EXPECT_EQ(tree(dest), expected);
    }
}

}  // namespace
