#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <numeric>
#include <regex>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "log.h"
#include "named_rows.h"
#include "test_files.h"
#include "thread_folder.h"

namespace {

using dwtest::LogLines;
using dwtest::ReadFile;
using dwtest::WriteFile;
using Lines = std::vector<std::string>;

// The logger's state is process-wide: every test starts from the start values.
class LoggerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.ok());
        reset();
    }
    void TearDown() override { reset(); }

    static void reset()
    {
        // After a failed Initialize the type is FILE on a console stream, which
        // Destroy would close.
        if (Logger::log_fp == stderr || Logger::log_fp == stdout)
            Logger::log_type = Logger::LOG_TYPE_STDOUT;
        Logger::Destroy();
        Logger::log_level.clear();
        Logger::log_type = Logger::LOG_TYPE_STDOUT;
        Logger::log_fp = stderr;
        Logger::log_path.clear();
        Logger::log_size = -1;
        Logger::rotate_cnt = 50;
    }

    std::string archive(int k) const { return log + "_" + std::to_string(k); }

    // The log and its archives (put in files), each line a whole
    // "[WARNING] <tag><writer>_<i>(#): <payload>" and each (writer, i) once, count of them in all.
    void whole_lines(char tag, const std::string& payload, size_t count,
                     std::vector<std::string>& files) const
    {
        std::set<std::pair<int, int>> seen;
        size_t total = 0;
        const std::string format = std::string("[WARNING] ") + tag + "%d_%d(#): %n";
        for (int k = -1; k < 0 || std::filesystem::exists(archive(k)); ++k) {
            const std::string f = files.emplace_back(k < 0 ? log : archive(k));
            const std::string text = ReadFile(f);
            EXPECT_TRUE(text.empty() || text.back() == '\n') << f;
            for (const std::string& line : LogLines(f)) {
                ++total;
                int w = -1, i = -1, text_start = 0;
                ASSERT_EQ(sscanf(line.c_str(), format.c_str(), &w, &i, &text_start), 2) << f << ": " << line;
                ASSERT_EQ(line.substr(text_start), payload) << f << ": " << line;
                seen.insert({w, i});
            }
        }
        EXPECT_EQ(total, count);
        EXPECT_EQ(seen.size(), count);
    }

    dwtest::TempDir dir;
    const std::string log = dir.file("launcher.log");
};

// A level file sets the thresholds of the components it names;
// default_component is no fall-back for the others. A malformed file leaves
// the defaults; a level that is not a number reads as get_int has it (0
// silences even errors). Either way a warning says so.
struct ThresholdRow : dwtest::Row {
    const char* level_file;  // null: none
    const char* warning;     // null: none
    const char* thresholds;  // a digit each for launcher_debug, service_debug, extractor_debug, unknown
};

const ThresholdRow kThresholdRows[] = {
    {"no_level_file", nullptr, nullptr, "4444"},
    {"level_file", "service_debug = 7\nextractor_debug=2\ndefault_component=7\n", nullptr, "4724"},
    {"malformed", "\177ELF\001 launcher_debug = 7\n[section]\n", "' is malformed, default levels apply",
     "4444"},
    {"not_a_number", "launcher_debug = loud\n", "': level of 'launcher_debug' is not a number, read as 0",
     "0444"},
    {"digits_then_letters", "launcher_debug = 6x\n",
     "': level of 'launcher_debug' is not a number, read as 6", "6444"},
};

class LoggerThresholds : public LoggerTest, public testing::WithParamInterface<ThresholdRow> {};

TEST_P(LoggerThresholds, WritesTimeStampAndCallerTextUpToEachComponentsThreshold)
{
    const ThresholdRow& row = GetParam();
    const std::string level_path = row.level_file ? dir.file("launcher.debug") : "";
    ASSERT_TRUE(!row.level_file || WriteFile(level_path, row.level_file));
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), level_path.c_str(), 50), 0);
    Lines expected, announced;  // announced: what Writes said would be written
    const char* components[] = {"launcher_debug", "service_debug", "extractor_debug", "unknown"};
    for (int c = 0; c < 4; ++c)
        for (int level = Logger::LOG_ERROR; level <= Logger::LOG_DEBUG; ++level) {
            const std::string line = std::to_string(level) + " " + components[c];
            if (level <= row.thresholds[c] - '0')
                expected.push_back(line);
            if (Logger::Writes(static_cast<Logger::Level>(level), components[c]))
                announced.push_back(line);
            Logger::LogMsg(static_cast<Logger::Level>(level), components[c], "%d %s\n", level, components[c]);
        }
    EXPECT_EQ(announced, expected);
    if (row.warning)
        expected.insert(expected.begin(), "[WARNING] log(#): level file '" + level_path + row.warning);
    EXPECT_EQ(LogLines(log), expected);
    // Each line after its "%b %d %H:%M:%S " stamp, in the C locale.
    const std::regex stamped("([A-Z][a-z]{2} \\d\\d \\d\\d:\\d\\d:\\d\\d [^\\n]*\\n)+");
    EXPECT_TRUE(std::regex_match(ReadFile(log), stamped)) << ReadFile(log);
}

INSTANTIATE_TEST_SUITE_P(Levels, LoggerThresholds, testing::ValuesIn(kThresholdRows), dwtest::RowName());

TEST_F(LoggerTest, InitializeWithoutLogPathFailsButAppliesTheLevelFile)
{
    WriteFile(dir.file("launcher.debug"), "service_debug=7\n");
    EXPECT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, "", dir.file("launcher.debug").c_str(), 4), -1);
    EXPECT_EQ(Logger::log_level["service_debug"], 7);
    EXPECT_EQ(Logger::log_fp, stderr);
}

TEST_F(LoggerTest, RotatesOnlyPastOneMebibyteKeepingRotateCountFiles)
{
    for (int k = 0; k < 4; ++k)
        WriteFile(archive(k), "archive " + std::to_string(k) + "\n");
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), "", 4), 0);

    // 1,024 lines of 1,024 bytes reach exactly 1 MiB, which does not rotate yet.
    auto line = [](int i) {
        std::string text = "[WARNING] log_test(#): " + std::to_string(i) + " ";
        return text + std::string(1024 - strlen("Nov 16 20:37:07 ") - 1 - text.size(), 'x');
    };
    for (int i = 1; i <= 1024; ++i)
        Logger::LogMsg(Logger::LOG_WARNING, "c", "%s\n", line(i).c_str());
    EXPECT_EQ(ReadFile(archive(0)), "archive 0\n");

    Logger::LogMsg(Logger::LOG_WARNING, "c", "%s\n", line(1025).c_str());
    const Lines rotated = LogLines(archive(0));
    ASSERT_EQ(rotated.size(), 1025u);
    EXPECT_EQ(rotated.back(), line(1025));  // the crossing line is whole in archive 0
    EXPECT_EQ(ReadFile(archive(1)), "archive 0\n");
    EXPECT_EQ(ReadFile(archive(2)), "archive 1\n");
    EXPECT_FALSE(std::filesystem::exists(archive(3)));

    Logger::LogMsg(Logger::LOG_WARNING, "c", "[WARNING] log_test(%d): next\n", 1026);
    EXPECT_EQ(LogLines(log), Lines{"[WARNING] log_test(#): next"});
    EXPECT_EQ(Logger::log_size, static_cast<int>(ReadFile(log).size()));
}

TEST_F(LoggerTest, FailedRotationStopsLogging)
{
    // A non-empty folder where archive 0 belongs can be neither removed nor replaced.
    std::filesystem::create_directory(archive(0));
    WriteFile(archive(0) + "/keep", "");
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), "", 1), 0);
    Logger::LogMsg(Logger::LOG_WARNING, "c", "[WARNING] log_test(%d): before\n", 1);

    EXPECT_EQ(Logger::Rotate(), -1);
    Logger::LogMsg(Logger::LOG_ERROR, "c", "[ERROR] log_test(%d): lost\n", 2);
    EXPECT_EQ(LogLines(log), Lines{"[WARNING] log_test(#): before"});
}

// The log's name is never followed: a link there, to a file elsewhere or to
// nothing, gives way to the log itself and what it named stays as it was. So
// does a FIFO (read here, so that the unfixed open cannot block).
struct PlantedRow : dwtest::Row {
    const char* theirs;  // the file a link names, null: none
    bool fifo;           // instead of a link
};

const PlantedRow kPlantedRows[] = {
    {"link_to_a_file", "theirs\n", false},
    {"dangling_link", nullptr, false},
    {"fifo", nullptr, true},
};

class LoggerPlanted : public LoggerTest, public testing::WithParamInterface<PlantedRow> {};

TEST_P(LoggerPlanted, ALinkOrSpecialFileAtTheLogsNameIsReplacedNotFollowed)
{
    const std::string theirs = dir.file("theirs");
    const PlantedRow& row = GetParam();
    ASSERT_TRUE(!row.theirs || WriteFile(theirs, row.theirs));
    // The reader's descriptor, or 0 for a link.
    const int reader = !row.fifo                        ? symlink(theirs.c_str(), log.c_str())
                       : mkfifo(log.c_str(), 0600) == 0 ? open(log.c_str(), O_RDONLY | O_NONBLOCK)
                                                        : -1;
    ASSERT_GE(reader, 0);
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), "", 50), 0);
    Logger::LogMsg(Logger::LOG_WARNING, "c", "[WARNING] log_test(%d): here\n", 1);
    if (reader > 0)
        close(reader);
    struct stat st;
    ASSERT_EQ(lstat(log.c_str(), &st), 0);
    EXPECT_TRUE(S_ISREG(st.st_mode));
    EXPECT_EQ(LogLines(log),
              (Lines{"[WARNING] log(#): '" + log +
                         "' was a link or a special file; replaced by the log, nothing it named "
                         "was touched",
                     "[WARNING] log_test(#): here"}));
    EXPECT_EQ(dwtest::Exists(theirs) ? ReadFile(theirs) : "<nothing>", row.theirs ? row.theirs : "<nothing>");
}

INSTANTIATE_TEST_SUITE_P(Names, LoggerPlanted, testing::ValuesIn(kPlantedRows), dwtest::RowName());

// Threads in working folders of their own, as the extractor's thread works in
// the destination: a log named relative to the process's folder must not
// follow them there, and no line is lost or torn across the rotations.
TEST_F(LoggerTest, ThreadsInFoldersOfTheirOwnLoseOrTearNoLineAcrossRotations)
{
    const std::filesystem::path start = std::filesystem::current_path();
    std::filesystem::current_path(dir.path());
    const bool initialized = Logger::Initialize(Logger::LOG_TYPE_FILE, "launcher.log", "", 50) == 0;
    std::filesystem::current_path(start);
    ASSERT_TRUE(initialized);
    ASSERT_TRUE(std::filesystem::create_directory(dir.file("elsewhere")));

    const int threads = 8;
    const int per_thread = 4000;  // about 3.7 MB: three rotations
    const std::string payload(96, 'p');
    std::atomic<bool> go{false};
    std::atomic<int> entered{0};
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t)
        workers.emplace_back([&, t] {
            ThreadFolder folder(dir.file("elsewhere").c_str());
            entered += folder.entered();
            while (!go)
                std::this_thread::yield();
            for (int i = 0; i < per_thread; ++i)
                Logger::LogMsg(Logger::LOG_WARNING, "c", "[WARNING] t%d_%d(0): %s\n", t, i, payload.c_str());
        });
    go = true;
    for (std::thread& w : workers)
        w.join();

    std::vector<std::string> files;
    whole_lines('t', payload, threads * per_thread, files);
    EXPECT_GE(files.size(), 4u);
    if (entered < threads)
        GTEST_SKIP() << "this system gives no thread a working folder of its own";
    EXPECT_TRUE(std::filesystem::is_empty(dir.file("elsewhere")));
}

// Several launchers append to one log, each with a logger of its own: one
// writing through rotations while refused second launchers add a line each,
// and four rotating at the same moment. Whoever rotates, the log and each
// archive held at most 1 MiB before their last line.
struct SharingRow : dwtest::Row {
    std::vector<int> lines;  // per process
    int stagger_ms;          // between the starts
};

const SharingRow kSharingRows[] = {
    {"refused_launchers", {30000, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}, 10},
    {"four_rotating", {15000, 15000, 15000, 15000}, 0},
};

class LoggerProcesses : public LoggerTest, public testing::WithParamInterface<SharingRow> {};

TEST_P(LoggerProcesses, SharingTheLogLoseNoLineAndRotateByItsRealSize)
{
    const SharingRow& row = GetParam();
    std::vector<FILE*> writers;
    for (size_t w = 0; w < row.lines.size(); ++w) {
        const std::string command = std::string(LOG_WRITER) + " " + log + " 50 w" + std::to_string(w) + " " +
                                    std::to_string(row.lines[w]);
        writers.push_back(popen(command.c_str(), "r"));
        std::this_thread::sleep_for(std::chrono::milliseconds(row.stagger_ms));
    }
    for (FILE* p : writers)
        EXPECT_EQ(pclose(p), 0);

    std::vector<std::string> files;
    whole_lines('w', std::string(80, 'p'), std::accumulate(row.lines.begin(), row.lines.end(), size_t{0}),
                files);
    const auto entries = std::distance(std::filesystem::directory_iterator(dir.path()), {});
    EXPECT_EQ(static_cast<size_t>(entries), files.size()) << "names beside the log and its archives";
    for (const std::string& f : files) {
        const std::string text = ReadFile(f);
        const size_t last_line = text.size() - text.rfind('\n', text.size() - 2) - 1;  // npos: the whole
        EXPECT_LE(text.size() - last_line, 1048576u) << f;
        if (f != log) {
            EXPECT_GT(text.size(), 1048576u) << f;
        }
    }
}
INSTANTIATE_TEST_SUITE_P(Writers, LoggerProcesses, testing::ValuesIn(kSharingRows), dwtest::RowName());

}  // namespace
