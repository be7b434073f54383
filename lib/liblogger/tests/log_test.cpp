#include <gtest/gtest.h>
#include <pthread.h>

#include <atomic>
#include <cctype>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "log.h"
#include "test_files.h"

namespace {

// "%b %d %H:%M:%S " in the C locale, e.g. "Nov 16 20:37:07 ": always 16 bytes.
const size_t STAMP_LEN = 16;

bool has_stamp(const std::string& line)
{
    const std::string shape = "MMM 00 00:00:00 ";
    const std::string months = "JanFebMarAprMayJunJulAugSepOctNovDec";
    if (line.size() < STAMP_LEN)
        return false;
    const size_t month = months.find(line.substr(0, 3));
    if (month == std::string::npos || month % 3 != 0)
        return false;
    for (size_t i = 3; i < STAMP_LEN; ++i)
        if (shape[i] == '0' ? !isdigit(static_cast<unsigned char>(line[i])) : line[i] != shape[i])
            return false;
    return true;
}

std::vector<std::string> lines_of(const std::string& text)
{
    std::vector<std::string> lines;
    size_t start = 0;
    for (size_t nl; (nl = text.find('\n', start)) != std::string::npos; start = nl + 1)
        lines.push_back(text.substr(start, nl + 1 - start));
    if (start < text.size())
        lines.push_back(text.substr(start));
    return lines;
}

// Lines without their time stamps.
std::vector<std::string> messages_of(const std::string& path)
{
    std::vector<std::string> out;
    for (const std::string& line : lines_of(read_file(path)))
        out.push_back(line.substr(STAMP_LEN));
    return out;
}

void log_c(int level, const char* component, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    LogMSG_c(level, component, format, args);
    va_end(args);
}

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

    TempDir dir;
    const std::string log = dir.file("launcher.log");
};

TEST_F(LoggerTest, ThresholdsPerComponent)
{
    const struct {
        const char* name;
        const char* level_file;  // null: none
        std::vector<std::string> expected;
    } rows[] = {
        {"no_level_file", nullptr,
         {"3 launcher_debug\n", "4 launcher_debug\n", "3 service_debug\n", "4 service_debug\n",
          "3 extractor_debug\n", "4 extractor_debug\n", "3 unknown\n", "4 unknown\n"}},
        // default_component is not a fall-back for components missing from the map.
        {"level_file", "service_debug = 7\nextractor_debug=2\ndefault_component=7\n",
         {"3 launcher_debug\n", "4 launcher_debug\n", "3 service_debug\n", "4 service_debug\n",
          "5 service_debug\n", "6 service_debug\n", "7 service_debug\n", "3 unknown\n", "4 unknown\n"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        reset();
        std::string level_path;
        if (row.level_file != nullptr) {
            level_path = dir.file("launcher.debug");
            write_file(level_path, row.level_file);
        }
        std::remove(log.c_str());
        ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), level_path.c_str(), 50), 0);
        for (const char* component : {"launcher_debug", "service_debug", "extractor_debug", "unknown"})
            for (int level = Logger::LOG_ERROR; level <= Logger::LOG_DEBUG; ++level)
                Logger::LogMsg(static_cast<Logger::Level>(level), component, "%d %s\n", level, component);
        EXPECT_EQ(messages_of(log), row.expected);
    }
}

TEST_F(LoggerTest, LineFormatAndCounting)
{
    write_file(log, "earlier run\n");
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), "", 50), 0);
    EXPECT_EQ(Logger::log_size, 0);  // what the file held before is not counted

    int old_state = -1;
    pthread_setcancelstate(PTHREAD_CANCEL_ENABLE, &old_state);
    Logger::LogMsg(Logger::LOG_WARNING, "launcher_debug", "[WARNING] launcher(%d): running\n", 57);
    log_c(Logger::LOG_ERROR, "service_debug", "[ERROR] drift-service(%d): via %s\n", 9, "C");
    log_c(Logger::LOG_DEBUG, "service_debug", "[DEBUG] drift-service(%d): dropped\n", 10);
    int state = -1;
    pthread_setcancelstate(old_state, &state);
    EXPECT_EQ(state, PTHREAD_CANCEL_ENABLE);

    const std::vector<std::string> lines = lines_of(read_file(log));
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], "earlier run\n");
    EXPECT_TRUE(has_stamp(lines[1])) << lines[1];
    EXPECT_EQ(lines[1].substr(STAMP_LEN), "[WARNING] launcher(57): running\n");
    EXPECT_TRUE(has_stamp(lines[2])) << lines[2];
    EXPECT_EQ(lines[2].substr(STAMP_LEN), "[ERROR] drift-service(9): via C\n");
    EXPECT_EQ(Logger::log_size, static_cast<int>(lines[1].size() + lines[2].size()));
}

TEST_F(LoggerTest, FailedInitializeKeepsStreamButAppliesLevels)
{
    write_file(dir.file("launcher.debug"), "service_debug=7\n");
    EXPECT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, "", dir.file("launcher.debug").c_str(), 4), -1);
    EXPECT_EQ(Logger::log_level["service_debug"], 7);
    EXPECT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, dir.file("no/such/dir.log").c_str(), "", 4), -1);
    EXPECT_EQ(Logger::log_type, Logger::LOG_TYPE_FILE);
    EXPECT_EQ(Logger::log_fp, stderr);
    EXPECT_EQ(Logger::rotate_cnt, 50);

    testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::LOG_DEBUG, "service_debug", "[DEBUG] x(%d): to stderr\n", 1);
    const std::string err = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(has_stamp(err)) << err;
    EXPECT_EQ(err.substr(STAMP_LEN), "[DEBUG] x(1): to stderr\n");
    EXPECT_EQ(Logger::log_size, -1);  // no counting, so no rotation
}

TEST_F(LoggerTest, ConsoleSyslogAndDestroy)
{
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_STDOUT, log.c_str(), "", 4), 0);
    EXPECT_EQ(Logger::log_fp, stdout);
    EXPECT_TRUE(Logger::log_path.empty());
    testing::internal::CaptureStdout();
    Logger::LogMsg(Logger::LOG_ERROR, "c", "[ERROR] c(%d): out\n", 2);
    EXPECT_EQ(testing::internal::GetCapturedStdout().substr(STAMP_LEN), "[ERROR] c(2): out\n");
    EXPECT_FALSE(exists(log));

    // An unknown type writes the bare message to standard error.
    Logger::log_type = static_cast<Logger::Type>(9);
    testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::LOG_ERROR, "c", "[ERROR] c(%d): bare\n", 3);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "[ERROR] c(3): bare\n");

    // Written at priority 3 whatever the level; only exercised, the system log is not inspected.
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_SYSLOG, "", "", 4), 0);
    EXPECT_EQ(Logger::log_fp, nullptr);
    Logger::LogMsg(Logger::LOG_WARNING, "c", "[WARNING] log_test(%d): syslog\n", 4);
    Logger::Destroy();
    EXPECT_EQ(Logger::log_type, Logger::LOG_TYPE_SYSLOG);
    EXPECT_EQ(Logger::log_size, -1);

    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), "", 4), 0);
    Logger::Destroy();
    EXPECT_EQ(Logger::log_type, Logger::LOG_TYPE_STDERR);
    EXPECT_EQ(Logger::log_fp, stdout);
    EXPECT_EQ(Logger::log_size, -1);
    EXPECT_EQ(Logger::rotate_cnt, 32);
    EXPECT_TRUE(Logger::log_path.empty());
}

TEST_F(LoggerTest, RotationPastOneMebibyte)
{
    for (int k = 0; k < 4; ++k)
        write_file(archive(k), "archive " + std::to_string(k) + "\n");
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), "", 4), 0);

    // 1,024 lines of 1,024 bytes reach exactly 1 MiB, which does not rotate yet.
    auto line = [](int i) {
        std::string text = "[WARNING] log_test(" + std::to_string(i) + "): ";
        return text + std::string(1024 - STAMP_LEN - 1 - text.size(), 'x') + "\n";
    };
    for (int i = 1; i <= 1024; ++i)
        Logger::LogMsg(Logger::LOG_WARNING, "c", "%s", line(i).c_str());
    EXPECT_EQ(Logger::log_size, 1048576);
    EXPECT_EQ(read_file(archive(0)), "archive 0\n");

    Logger::LogMsg(Logger::LOG_WARNING, "c", "%s", line(1025).c_str());
    EXPECT_EQ(Logger::log_size, 0);
    const std::vector<std::string> rotated = messages_of(archive(0));
    ASSERT_EQ(rotated.size(), 1025u);
    EXPECT_EQ(rotated.back(), line(1025));  // the crossing line is whole in archive 0
    EXPECT_EQ(read_file(archive(1)), "archive 0\n");
    EXPECT_EQ(read_file(archive(2)), "archive 1\n");
    EXPECT_FALSE(exists(archive(3)));
    EXPECT_EQ(read_file(log), "");

    Logger::LogMsg(Logger::LOG_WARNING, "c", "[WARNING] log_test(%d): next\n", 1026);
    EXPECT_EQ(messages_of(log), std::vector<std::string>{"[WARNING] log_test(1026): next\n"});
    EXPECT_EQ(Logger::log_size, static_cast<int>(read_file(log).size()));
}

TEST_F(LoggerTest, FailedRotationStopsLogging)
{
    // A non-empty folder where archive 0 belongs can be neither removed nor replaced.
    std::filesystem::create_directory(archive(0));
    write_file(archive(0) + "/keep", "");
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), "", 1), 0);
    Logger::LogMsg(Logger::LOG_WARNING, "c", "[WARNING] log_test(%d): before\n", 1);

    EXPECT_EQ(Logger::Rotate(), -1);
    EXPECT_EQ(Logger::log_fp, nullptr);
    Logger::LogMsg(Logger::LOG_ERROR, "c", "[ERROR] log_test(%d): lost\n", 2);
    EXPECT_EQ(messages_of(log), std::vector<std::string>{"[WARNING] log_test(1): before\n"});
}

TEST_F(LoggerTest, ThreadsLoseNoLineAcrossRotations)
{
    const int threads = 8;
    const int per_thread = 4000;  // about 3.7 MB: three rotations
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), "", 50), 0);

    const std::string payload(96, 'p');
    std::atomic<bool> go{false};
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t)
        workers.emplace_back([&, t] {
            while (!go)
                std::this_thread::yield();
            for (int i = 0; i < per_thread; ++i)
                Logger::LogMsg(Logger::LOG_WARNING, "c", "[WARNING] t%d(%d): %s\n", t, i, payload.c_str());
        });
    go = true;
    for (std::thread& w : workers)
        w.join();

    std::vector<std::string> files{log};
    for (int k = 0; exists(archive(k)); ++k)
        files.push_back(archive(k));
    EXPECT_GE(files.size(), 4u);

    std::set<std::pair<int, int>> seen;
    size_t total = 0;
    for (const std::string& f : files)
        for (const std::string& line : lines_of(read_file(f))) {
            ++total;
            int t = -1, i = -1, text_start = 0;
            ASSERT_TRUE(has_stamp(line)) << f << ": " << line;
            ASSERT_EQ(sscanf(line.c_str() + STAMP_LEN, "[WARNING] t%d(%d): %n", &t, &i, &text_start), 2) << line;
            ASSERT_EQ(line.substr(STAMP_LEN + text_start), payload + "\n") << f << ": " << line;
            seen.insert({t, i});
        }
    EXPECT_EQ(total, static_cast<size_t>(threads * per_thread));
    EXPECT_EQ(seen.size(), static_cast<size_t>(threads * per_thread));
}

}  // namespace
