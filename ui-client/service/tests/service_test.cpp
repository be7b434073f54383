// The service runs in a copy of service_driver placed in a fake bundle's
// Contents/MacOS, with HOME pointing into a fresh temporary folder; copies of
// fake_client play the per-user drift-ui. Results come back as the driver's
// output, the log file and what is on disk.
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>
#include <cctype>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <QDir>
#include <QFile>
#include <QProcess>

#include <gmock/gmock.h>

#include "named_rows.h"
#include "test_files.h"

namespace {

using dwtest::Entry;
using dwtest::Exists;
using dwtest::ProcessGone;
using dwtest::ReadFile;
using dwtest::Snapshot;
using dwtest::Tree;
using dwtest::WaitFor;
using dwtest::WriteFile;
using Lines = std::vector<std::string>;
using testing::Contains;

const uid_t kNobody = 65534;

bool ChownTree(const std::string& path, uid_t owner)
{
    bool ok = lchown(path.c_str(), owner, owner) == 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path))
        ok = lchown(entry.path().c_str(), owner, owner) == 0 && ok;
    return ok;
}

class ServiceTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(tmp_.ok());
        ASSERT_TRUE(WriteFile(bundle_ + "/Contents/MacOS/launcher", ReadFile(DW_SERVICE_DRIVER), 0755));
        ASSERT_TRUE(WriteFile(bundle_ + "/log/launcher.debug",
                              "service_debug=7\nextractor_debug=7\nfile_op_debug=7\n"));
        ASSERT_TRUE(std::filesystem::create_directories(home_));
        // For the driver and the clients.
        setenv("HOME", home_.c_str(), 1);
        setenv("DW_FAKE_CLIENT_MODE", "term", 1);
    }

    void TearDown() override
    {
        for (pid_t pid : started_)
            if (!ProcessGone(pid))
                kill(pid, SIGKILL);
    }

    // Runs the driver as the launcher would run (as another user when uid is
    // not 0), with a fresh log; its output.
    std::string Run(const QStringList& args, uid_t uid = 0)
    {
        unlink(log_.c_str());
        setenv("DW_DRIVER_UID", std::to_string(uid).c_str(), 1);
        QProcess driver;
        driver.start(QString::fromStdString(bundle_ + "/Contents/MacOS/launcher"),
                     QStringList{QString::fromStdString(log_)} + args);
        EXPECT_TRUE(driver.waitForFinished(120000));
        EXPECT_EQ(driver.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(driver.exitCode(), 0);
        return driver.readAllStandardOutput().trimmed().toStdString();
    }

    // The service's own lines of the last run at that level (a pattern: any).
    Lines ServiceLog(const std::string& level = "[A-Z]+") const
    {
        const std::regex own("\\[(" + level + ")\\] (drift-service|mac/mac-service)\\(#\\): .*");
        Lines lines = dwtest::LogLines(log_);
        lines.erase(std::remove_if(lines.begin(), lines.end(),
                                   [&](const std::string& line) { return !std::regex_match(line, own); }),
                    lines.end());
        return lines;
    }

    std::string Bak(int n) const { return app_ + "_tmp" + (n == 0 ? "" : std::to_string(n)); }
    std::string Package() const { return bundle_ + "/Contents/Resources/package/driftwell.tpk"; }

    // The new build, every entry 0755, its record last.
    static std::vector<Entry> NewPackage()
    {
        return {{Entry::Folder, "Contents", "", 0755},
                {Entry::Folder, "Contents/MacOS", "", 0755},
                {Entry::File, "Contents/MacOS/drift-ui", "new ui", 0755},
                {Entry::Folder, "Contents/Resources", "", 0755},
                {Entry::File, "Contents/Resources/new.txt", "new", 0755},
                {Entry::File, "Contents/Resources/INFO", "[Version]\nbuild_version=2\n", 0755}};
    }

    // The new build, or one that breaks off in a large file before its record.
    bool WritePackage(bool damaged) const
    {
        std::vector<Entry> package = NewPackage();
        if (damaged)
            package.insert(package.begin() + 3,
                           {Entry::File, "Contents/MacOS/big.bin", std::string(200000, 'x'), 0755});
        return dwtest::WriteArchive(Package(), package, {}, damaged ? -100000 : 0);
    }

    // An installed per-user copy of that build at app_ (or at another
    // folder); a negative build leaves out the record, as an extraction cut
    // short does, and 0 makes nothing.
    void InstallOldCopy(const std::string& at = "", int build = 1)
    {
        const std::string dir = at.empty() ? app_ : at;
        if (build == 0)
            return;
        ASSERT_TRUE(WriteFile(dir + "/Contents/MacOS/drift-ui", ReadFile(DW_FAKE_CLIENT), 0755));
        ASSERT_TRUE(WriteFile(dir + "/Contents/Resources/sub/deep.txt", "old " + at + std::to_string(build)));
        ASSERT_TRUE(build < 0 || WriteFile(dir + "/Contents/Resources/INFO",
                                           "[Version]\nbuild_version=" + std::to_string(build) + "\n"));
    }

    std::string Leftover(int n) const
    {
        return "[WARNING] drift-service(#): removing leftover backup '" + Bak(n) + "'";
    }

    pid_t PidInFile() const
    {
        const std::string text = ReadFile(pid_file_);
        return text.rfind("pid=", 0) == 0 ? std::atoi(text.c_str() + 4) : 0;
    }

    // Starts the installed drift-ui as the desktop would (through the
    // service's own launch, which keeps no child) and waits for its pid file.
    pid_t StartClient(const char* mode)
    {
        unlink(pid_file_.c_str());
        setenv("DW_FAKE_CLIENT_MODE", mode, 1);
        EXPECT_EQ(Run({"launch"}), "no children");
        pid_t pid = 0;
        WaitFor([&] { return (pid = PidInFile()) > 0; });
        started_.push_back(pid);
        return pid;
    }

    dwtest::TempDir tmp_;
    const std::string root_ = tmp_.path(), bundle_ = root_ + "/Bundle/Driftwell.app";
    // Not plain ASCII and with a blank: every path must come through byte for byte.
    const std::string home_ = root_ + "/h\xc3\xb6me \xe2\x82\xac", app_ = home_ + "/.Driftwell/Driftwell.app";
    const std::string pid_file_ = home_ + "/.Driftwell/ui.pid", log_ = root_ + "/service.log";
    std::vector<pid_t> started_;
};

// ---- upgrade decision ----------------------------------------------------

struct DecideRow : dwtest::Row {
    const char* target;  // bundle's INFO, nullptr: none
    const char* source;  // per-user INFO, nullptr: none
    bool executable, need;
    int source_number, target_number;  // as logged
    const char* problem;  // with the bundle's record: without a build of its own it upgrades nothing
    const char* log;      // the whole service log, a line feed after each line, when given
    // A build number warned about as negative or too large: it counts as none.
    const char* unusable_source = nullptr;
    const char* unusable_target = nullptr;
};

const DecideRow kDecideRows[] = {
    {"first_installation", "[Version]\nbuild_version=5\n", nullptr, false, true, 0, 5, nullptr,
     "[INFO] drift-service(#): target_version = (, , 5, )\n"
     "[INFO] drift-service(#): source does not exist\n"
     "[DEBUG] mac/mac-service(#): Source version: ('', '')\n"
     "[DEBUG] mac/mac-service(#): Target version: ('5', '')\n"
     "[DEBUG] mac/mac-service(#): source version = 0, target version = 5\n"},
    {"numbers_not_texts", "[Version]\nbuild_version=120\n", "[Version]\nbuild_version=1000\n", true, false,
     1000, 120, nullptr, nullptr},
    {"equal_builds_other_fields_differ",
     "[Version]\nmajor_version=9\nbuild_version=7\nicon_overlay_version=3\n",
     "[Version]\nmajor_version=1\nminor_version=2\nbuild_version=7\nicon_overlay_version=1\n", true, false, 7,
     7, nullptr,
     "[INFO] drift-service(#): target_version = (9, , 7, 3)\n"
     "[INFO] drift-service(#): source_version = (1, 2, 7, 1)\n"
     "[DEBUG] mac/mac-service(#): Source version: ('7', '1')\n"
     "[DEBUG] mac/mac-service(#): Target version: ('7', '3')\n"
     "[DEBUG] mac/mac-service(#): source version = 7, target version = 7\n"},
    {"negative_source_empty_target", "[Version]\nmajor_version=1\n", "[Version]\nbuild_version=-1\n", true,
     true, 0, 0, "has no build number", nullptr, "-1"},
    {"overflowing_target", "[Version]\nbuild_version=99999999999999999999\n", "[Version]\nbuild_version=1\n",
     true, false, 1, 0, nullptr, nullptr, nullptr, "99999999999999999999"},
    {"source_above_int_max", "[Version]\nbuild_version=5\n", "[Version]\nbuild_version=2147483648\n", true,
     true, 0, 5, nullptr, nullptr, "2147483648"},
    {"digits_then_letters", "[Version]\nbuild_version=1234abc\n", "[Version]\nbuild_version=1233\n", true,
     true, 1233, 1234, "has a build number that is not a number", nullptr},
    {"leading_letter", "[Version]\nbuild_version=abc\n", "[Version]\nbuild_version=1\n", true, false, 1, 0,
     "has a build number that is not a number", nullptr},
    {"executable_missing_older_bundle", "[Version]\nbuild_version=1\n", "[Version]\nbuild_version=1000\n",
     false, true, 1000, 1, nullptr, nullptr},
    {"keys_outside_the_group", "build_version=99\n[Other]\nbuild_version=98\n",
     "[Version]\nbuild_version=10\n", true, false, 10, 0, "has no build number", nullptr},
    {"no_bundle_record", nullptr, "[Version]\nbuild_version=10\n", true, false, 10, 0, "cannot be read",
     nullptr},
    {"copy_without_record", "[Version]\nbuild_version=0\n", nullptr, true, true, 0, 0, nullptr, nullptr},
};

class ServiceDecides : public ServiceTest, public testing::WithParamInterface<DecideRow> {};

TEST_P(ServiceDecides, OnBuildNumbersAndTheExecutable)
{
    const DecideRow& row = GetParam();
    ASSERT_TRUE(row.target == nullptr || WriteFile(bundle_ + "/Contents/Resources/INFO", row.target));
    ASSERT_TRUE(row.source == nullptr || WriteFile(app_ + "/Contents/Resources/INFO", row.source));
    ASSERT_TRUE(!row.executable || WriteFile(app_ + "/Contents/MacOS/drift-ui", "#!/bin/sh\n", 0755));

    EXPECT_EQ(Run({"decide"}), row.need ? "1" : "0");
    const Lines log = ServiceLog();
    EXPECT_THAT(log,
                Contains("[DEBUG] mac/mac-service(#): source version = " + std::to_string(row.source_number) +
                         ", target version = " + std::to_string(row.target_number)));
    std::string joined;
    for (const std::string& line : log)
        joined += line + "\n";
    if (row.log != nullptr) {
        EXPECT_EQ(joined, row.log);
    }
    Lines warnings;
    if (row.problem != nullptr)
        warnings.push_back("[WARNING] drift-service(#): bundle version record '" + bundle_ +
                           "/Contents/Resources/INFO' " + row.problem);
    for (const auto& [at, build] :
         {std::pair(app_, row.unusable_source), std::pair(bundle_, row.unusable_target)})
        if (build != nullptr)
            warnings.push_back("[WARNING] mac/mac-service(#): version record '" + at +
                               "/Contents/Resources/INFO' has build number '" + build +
                               "', negative or too large: it counts as having no build");
    EXPECT_EQ(ServiceLog("WARNING"), warnings);
}

INSTANTIATE_TEST_SUITE_P(Records, ServiceDecides, testing::ValuesIn(kDecideRows), dwtest::RowName());

// ---- stopping the client -------------------------------------------------

TEST_F(ServiceTest, StopSignalsOnlyAPidFileNamingTheClientAndEndsItBySigtermOrElseSigkill)
{
    InstallOldCopy();
    const pid_t client = StartClient("term");
    ASSERT_GT(client, 0);
    const pid_t ended = fork();
    if (ended == 0)
        _exit(0);
    waitpid(ended, nullptr, 0);
    QProcess sleeper;  // started once it runs sleep, no longer our test program
    sleeper.start("sleep", {"60"});
    ASSERT_TRUE(sleeper.waitForStarted());
    const pid_t other = static_cast<pid_t>(sleeper.processId());
    const std::string c = std::to_string(client), o = std::to_string(other);
    const auto unusable = [&](const std::string& why) {
        return Lines{"[WARNING] mac/mac-service(#): pid file '" + pid_file_ + "' is unusable: " + why,
                     "[NOTE] mac/mac-service(#): Failed to read pid file '" + pid_file_ + "', not exist ?"};
    };
    const auto not_a_pid = [&](const std::string& text) {
        return unusable("pid '" + text + "' is not a process id");
    };
    const struct {
        const char* name;
        std::string text;  // empty: no pid file
        Lines log;
    } rows[] = {
        {"no_pid_file",
         "",
         {"[DEBUG] mac/mac-service(#): pid file '" + pid_file_ + "' does not exist, no need to terminate"}},
        {"stale", "pid=" + std::to_string(ended) + "\n", {}},
        {"reused_by_another_program",
         "pid=" + o + "\n",
         {"[NOTE] mac/mac-service(#): pid " + o + " is not the Driftwell UI, not signalled"}},
        {"zero", "pid=0\n", not_a_pid("0")},
        {"negative", "pid=-1\n", not_a_pid("-1")},
        {"text", "pid=abc\n", not_a_pid("abc")},
        {"too_large", "pid=99999999999\n", not_a_pid("99999999999")},
        {"missing_key", "other=" + c + "\n", unusable("no pid entry")},
        {"trailing_junk", "pid=" + c + "abc\n", not_a_pid(c + "abc")},
        {"process_group", "pid=-" + c + "\n", not_a_pid("-" + c)},
        {"binary", "\x89PNG\r\n\x1a\npid=" + c + "\n", unusable("not a key-value file")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        unlink(pid_file_.c_str());
        ASSERT_TRUE(row.text.empty() || WriteFile(pid_file_, row.text));
        EXPECT_LT(std::stoi(Run({"stop"})), 4000);  // no probes
        EXPECT_EQ(ServiceLog(), row.log);
        EXPECT_FALSE(ProcessGone(client));
        EXPECT_FALSE(Exists(home_ + "/sigterm-received"));
    }
    EXPECT_FALSE(ProcessGone(other)) << "sleep was signalled";

    for (const bool ignores : {false, true}) {
        SCOPED_TRACE(ignores ? "ignores SIGTERM" : "exits on SIGTERM");
        unlink((home_ + "/sigterm-received").c_str());
        const pid_t target = ignores ? StartClient("ignore") : client;
        ASSERT_GT(target, 0);
        // Blanks around the number are fine.
        ASSERT_TRUE(WriteFile(pid_file_, "pid = '  " + std::to_string(target) + " '\n"));
        const int elapsed_ms = std::stoi(Run({"stop"}));
        EXPECT_EQ(ServiceLog(), ignores
                                    ? Lines{"[WARNING] mac/mac-service(#): pid " + std::to_string(target) +
                                            " did not end within 5 seconds of SIGTERM, sending SIGKILL"}
                                    : Lines{});
        EXPECT_TRUE(Exists(home_ + "/sigterm-received"));
        EXPECT_TRUE(WaitFor([&] { return ProcessGone(target); }));
        if (ignores)
            EXPECT_GE(elapsed_ms, 4900);  // five one-second probes first
        else
            EXPECT_LT(elapsed_ms, 4000);  // ended within the probes, no SIGKILL
    }
}

// A client that outlives SIGKILL (here one that refuses it, as one stuck in
// the kernel does for a while) is waited for five seconds more, said in
// WARNING lines, and then left: StopService returns and the upgrade goes on.
TEST_F(ServiceTest, StopAsAnotherUserThanTheClientGivesUpAfterTheBoundSoThatTheUpgradeGoesOn)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "needs root to run the service as another user than the client";
    // Binary client of root: its image cannot be inspected by nobody, so it
    // does not count as the client.
    InstallOldCopy();
    const pid_t binary = StartClient("term");
    ASSERT_GT(binary, 0);
    ASSERT_TRUE(ChownTree(root_, kNobody));
    Run({"stop"}, kNobody);
    EXPECT_EQ(ServiceLog(), Lines{"[NOTE] mac/mac-service(#): pid " + std::to_string(binary) +
                                  " is not the Driftwell UI, not signalled"});
    EXPECT_FALSE(ProcessGone(binary));

    // Script client of root: recognised through its command line, but it
    // refuses every signal; the whole sequence runs and fails.
    ASSERT_TRUE(WriteFile(app_ + "/Contents/MacOS/drift-ui",
                          "#!/bin/sh\necho pid=$$ > \"$HOME/.Driftwell/ui.pid\"\nwhile :; do sleep 1; done\n",
                          0755));
    const pid_t script = StartClient("term");
    ASSERT_GT(script, 0);
    EXPECT_GE(std::stoi(Run({"stop"}, kNobody)), 9900);
    const std::string s = std::to_string(script);
    const std::string refused = "[ERROR] mac/mac-service(#): kill: Operation not permitted (1)";
    EXPECT_EQ(ServiceLog(), (Lines{refused,
                                   "[WARNING] mac/mac-service(#): pid " + s +
                                       " did not end within 5 seconds of SIGTERM, sending SIGKILL",
                                   refused,
                                   "[WARNING] mac/mac-service(#): pid " + s +
                                       " still runs 5 seconds after SIGKILL, going on beside it"}));
    EXPECT_FALSE(ProcessGone(script));
}

// ---- upgrade ---------------------------------------------------------------

// What interrupted runs leave: a partial copy (no record), the old copy under
// a backup name, stale backups in any of the ten names. None of it may block
// the upgrade, and a rollback only ever puts a complete copy in place.
const int kApp = 10;
const std::map<int, int> kAllTaken = {{0, 1},  {1, -1}, {2, 1},  {3, -1}, {4, 1},
                                      {5, -1}, {6, 1},  {7, -1}, {8, 1},  {9, -1}};

struct UpgradeRow : dwtest::Row {
    int app;                     // build of the copy in place (as InstallOldCopy)
    std::map<int, int> backups;  // backup number -> build
    bool damaged;                // the package breaks off after drift-ui
    const char* result;
    int restored;  // -1: the new package in place; else what was at this backup (kApp: in place)
    // The warnings in words: "incomplete", "keptN", "leftoverN", "restoringN",
    // "leftovers" (all ten names).
    const char* warnings;
    bool locked;  // the leftovers belong to root, the service runs as nobody
};

const UpgradeRow kUpgradeRows[] = {
    {"all_names_taken", 1, kAllTaken, false, "0", -1, "leftovers", false},
    {"partial_copy_old_one_backed_up", -1, {{0, 1}}, false, "0", -1, "incomplete kept0", false},
    {"partial_copy_then_damaged_package", -1, {{0, 1}}, true, "-1", 0, "incomplete kept0 restoring0", false},
    {"only_a_backup_then_damaged_package", 0, {{0, 1}}, true, "-1", 0, "kept0 restoring0", false},
    {"newest_complete_backup_restored",
     -1,
     {{0, 1}, {3, 5}, {4, -1}},
     true,
     "-1",
     3,
     "incomplete kept3 leftover0 leftover4 restoring3",
     false},
    {"rollback_without_leftovers", 1, {}, true, "-1", kApp, "restoring0", false},
    {"unremovable_leftovers", 1, kAllTaken, false, "-1", kApp, "leftovers", true},
};

class ServiceUpgrades : public ServiceTest, public testing::WithParamInterface<UpgradeRow> {
protected:
    Lines ExpectedWarnings(const std::string& words) const
    {
        Lines lines;
        std::istringstream in(words);
        for (std::string word; in >> word;) {
            const int n = isdigit(word.back()) ? word.back() - '0' : 0;
            if (word == "incomplete")
                lines.push_back("[WARNING] drift-service(#): removing incomplete copy '" + app_ + "'");
            else if (word == "leftovers")
                for (int i = 0; i <= 9; ++i)
                    lines.push_back(Leftover(i));
            else if (word.rfind("leftover", 0) == 0)
                lines.push_back(Leftover(n));
            else if (word.rfind("kept", 0) == 0)
                lines.push_back("[WARNING] drift-service(#): no complete copy in place, '" + Bak(n) +
                                "' is the old copy");
            else
                lines.push_back("[WARNING] drift-service(#): restoring '" + Bak(n) + "'");
        }
        return lines;
    }
};

TEST_P(ServiceUpgrades, RecoversWhatInterruptedRunsLeft)
{
    const UpgradeRow& row = GetParam();
    if (row.locked && geteuid() != 0)
        GTEST_SKIP() << "root removes anything: needs root to run as another user";
    InstallOldCopy("", row.app);
    for (const auto& [number, build] : row.backups)
        InstallOldCopy(Bak(number), build);
    const Tree before = row.restored < 0 ? Tree() : Snapshot(row.restored == kApp ? app_ : Bak(row.restored));
    ASSERT_TRUE(WritePackage(row.damaged));
    pid_t client = 0;
    if (row.app > 0 && !row.locked) {
        ASSERT_GT(client = StartClient("term"), 0);
    }
    if (row.locked) {
        ASSERT_TRUE(ChownTree(root_, kNobody));
        for (const auto& [number, build] : row.backups)
            ASSERT_TRUE(ChownTree(Bak(number), 0));
    }

    EXPECT_EQ(Run({"upgrade"}, row.locked ? kNobody : 0), row.result);
    EXPECT_EQ(ServiceLog("WARNING"), ExpectedWarnings(row.warnings));
    EXPECT_EQ(Snapshot(app_), row.restored < 0 ? dwtest::TreeOf(NewPackage()) : before);
    for (int i = 0; i <= 9; ++i)
        EXPECT_EQ(Exists(Bak(i)), row.locked) << Bak(i);
    if (row.locked) {
        const Lines log = ServiceLog();
        EXPECT_EQ(log.back(), "[ERROR] drift-service(#): failed to backup app from '" + app_ + "' -> '" +
                                  Bak(9) + "' at max retries, exiting");
        for (int i = 0; i <= 9; ++i)
            EXPECT_THAT(log, Contains("[ERROR] drift-service(#): failed to remove leftover backup '" +
                                      Bak(i) + "': Permission denied"));
    }
    if (client > 0) {
        EXPECT_TRUE(WaitFor([&] { return ProcessGone(client); }));
    }
}

INSTANTIATE_TEST_SUITE_P(Leftovers, ServiceUpgrades, testing::ValuesIn(kUpgradeRows), dwtest::RowName());

TEST_F(ServiceTest, FailedFirstInstallationKeepsThePartialCopy)
{
    std::vector<Entry> package = NewPackage();
    package.insert(package.end() - 1, {Entry::File, "../escape", "out", 0755});
    ASSERT_TRUE(dwtest::WriteArchive(Package(), package));

    EXPECT_EQ(Run({"upgrade"}), "-1");
    EXPECT_EQ(
        ServiceLog(),
        (Lines{"[INFO] drift-service(#): extract package: '" + Package() + "' -> '" + app_ + "'",
               "[ERROR] drift-service(#): Failed to extract package, and no old installation to rollback"}));
    package.erase(package.end() - 2, package.end());
    EXPECT_EQ(Snapshot(app_), dwtest::TreeOf(package));
}

// Gone while the extraction ran, so there is nothing to go back to.
TEST_F(ServiceTest, RollbackWithoutACompleteBackupSaysWhatStays)
{
    InstallOldCopy();
    ASSERT_TRUE(WritePackage(true));
    EXPECT_EQ(Run({"upgrade-losing-backup"}), "-1");
    EXPECT_EQ(ServiceLog("WARNING"),
              Lines{"[WARNING] drift-service(#): no complete backup to restore ('" + Bak(0) +
                    "' is not one), the partial new copy '" + app_ + "' stays"});
    EXPECT_EQ(ReadFile(app_ + "/Contents/MacOS/drift-ui"), "new ui");
}

TEST_F(ServiceTest, LinkInABackupNameIsRemovedNeverFollowed)
{
    const std::string elsewhere = root_ + "/elsewhere";
    InstallOldCopy("", -1);
    InstallOldCopy(elsewhere, 5);
    const Tree there = Snapshot(elsewhere);
    ASSERT_EQ(symlink(elsewhere.c_str(), Bak(0).c_str()), 0);
    ASSERT_TRUE(WritePackage(true));
    EXPECT_EQ(Run({"upgrade"}), "-1");
    EXPECT_EQ(ServiceLog("WARNING"),
              (Lines{"[WARNING] drift-service(#): removing incomplete copy '" + app_ + "'",
                     "[WARNING] drift-service(#): backup name '" + Bak(0) +
                         "' is a symbolic link, removing the link"}));
    EXPECT_FALSE(Exists(Bak(0)));
    EXPECT_FALSE(std::filesystem::is_symlink(app_));
    EXPECT_EQ(Snapshot(elsewhere), there);
}

// The package's record disagrees with the bundle's: every launch reinstalls.
TEST_F(ServiceTest, InstalledBuildBelowTheBundlesIsSaid)
{
    ASSERT_TRUE(WriteFile(bundle_ + "/Contents/Resources/INFO", "[Version]\nbuild_version=5\n"));
    ASSERT_TRUE(WritePackage(false));
    EXPECT_EQ(Run({"upgrade"}), "0");
    EXPECT_EQ(ServiceLog("WARNING"),
              Lines{"[WARNING] drift-service(#): the new copy has build 2, below the bundle's 5: its "
                    "package's version record disagrees with the bundle's, every launch will "
                    "install it again"});
}

// ---- launching the client ------------------------------------------------

TEST_F(ServiceTest, LaunchNeedsAnExecutableAndStartsTheClientDetachedAndOnlyOnce)
{
    const struct {
        const char* name;
        std::string data;
        int mode;
    } clients[] = {{"missing", "", 0},
                   {"not executable", ReadFile(DW_FAKE_CLIENT), 0644},
                   {"not a program", "no\n", 0755}};
    for (const auto& c : clients) {
        SCOPED_TRACE(c.name);
        ASSERT_TRUE(c.mode == 0 || WriteFile(app_ + "/Contents/MacOS/drift-ui", c.data, c.mode));
        Run({"launch"});
        EXPECT_EQ(ServiceLog(), Lines{"[ERROR] mac/mac-service(#): Failed to launch Driftwell UI"});
        EXPECT_FALSE(Exists(pid_file_));
    }
    InstallOldCopy();
    const pid_t client = StartClient("term");
    ASSERT_GT(client, 0);
    EXPECT_EQ(ServiceLog(), Lines{});
    EXPECT_EQ(getsid(client), client) << "session leader";
    // Nothing of the launcher's reaches the client: no descriptor, no folder.
    const QString proc = "/proc/" + QString::number(client);
    const QStringList fds =
        QDir(proc + "/fd").entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    EXPECT_EQ(fds.join(' ').toStdString(), "0 1 2");
    for (const char* fd : {"/fd/0", "/fd/1", "/fd/2"})
        EXPECT_EQ(QFile::symLinkTarget(proc + fd), "/dev/null") << fd;
    EXPECT_EQ(QFile::symLinkTarget(proc + "/cwd"), "/");

    // Already running: a second client would have replaced the pid file by now.
    EXPECT_EQ(Run({"launch"}), "no children");
    EXPECT_EQ(ServiceLog(), Lines{});
    std::this_thread::sleep_for(std::chrono::seconds(1));
    EXPECT_EQ(PidInFile(), client);
}

// ---- aged folder and copying ---------------------------------------------

// The aged folder goes on every launch; the backup names only once the copy
// in place is complete and current (an upgrade cut short after its extraction
// needs none on the next launch).
struct AgedRow : dwtest::Row {
    bool aged;
    int app;  // build of the copy in place (as InstallOldCopy)
    bool removed;
};

const AgedRow kAgedRows[] = {
    {"current_copy", true, 2, true},    {"newer_copy", false, 3, true}, {"older_copy", true, 1, false},
    {"partial_copy", false, -1, false}, {"no_copy", false, 0, false},
};

class ServiceRemovesAged : public ServiceTest, public testing::WithParamInterface<AgedRow> {};

TEST_P(ServiceRemovesAged, FoldersAndLeftoversOfACurrentCopy)
{
    const AgedRow& row = GetParam();
    const std::string aged = home_ + "/.Driftwell/app";
    ASSERT_TRUE(WriteFile(bundle_ + "/Contents/Resources/INFO", "[Version]\nbuild_version=2\n"));
    ASSERT_TRUE(!row.aged || WriteFile(aged + "/sub/file", "x"));
    InstallOldCopy("", row.app);
    InstallOldCopy(Bak(0), 1);
    InstallOldCopy(Bak(7), -1);
    Run({"remove-aged"});
    Lines expected = {"[INFO] drift-service(#): removing aged app folder " + aged};
    if (row.removed)
        expected.insert(expected.end(), {Leftover(0), Leftover(7)});
    EXPECT_EQ(ServiceLog(), expected);
    EXPECT_FALSE(Exists(aged));
    EXPECT_EQ(Exists(Bak(0)), !row.removed);
    EXPECT_EQ(Exists(Bak(7)), !row.removed);
}

INSTANTIATE_TEST_SUITE_P(Copies, ServiceRemovesAged, testing::ValuesIn(kAgedRows), dwtest::RowName());

TEST_F(ServiceTest, CopyPathCopiesTreesAndAnUnlistableFolderAsAnEmptyOne)
{
    const std::string src = root_ + "/src";
    ASSERT_TRUE(WriteFile(src + "/a.txt", "a"));
    ASSERT_TRUE(WriteFile(src + "/sub/deeper/b.txt", "bb"));
    ASSERT_TRUE(WriteFile(src + "/locked/hidden.txt", "h"));
    ASSERT_EQ(chmod((src + "/locked").c_str(), 0300), 0);
    // Root lists any folder: run the service as nobody instead.
    uid_t uid = 0;
    if (geteuid() == 0) {
        ASSERT_TRUE(ChownTree(root_, kNobody));
        uid = kNobody;
    }
    const auto copy = [&](const std::string& to) {
        return Run({"copy", QString::fromStdString(src), QString::fromStdString(to)}, uid);
    };
    // The destination's parents are made as needed.
    const std::string dst = root_ + "/new/parents/copy";
    EXPECT_EQ(copy(dst), "0");
    chmod((src + "/locked").c_str(), 0700);
    EXPECT_EQ(Snapshot(dst), (Tree{{"a.txt", "a"},
                                   {"locked", "<dir>"},
                                   {"sub", "<dir>"},
                                   {"sub/deeper", "<dir>"},
                                   {"sub/deeper/b.txt", "bb"}}));
    EXPECT_THAT(ServiceLog(),
                Contains("[WARNING] drift-service(#): FSCopyPath: failed to create handle  for src '" + src +
                         "/locked' failed"));
    // Below a regular file no folder can be made.
    EXPECT_EQ(copy(src + "/a.txt/copy"), "-1");
    EXPECT_THAT(ServiceLog(),
                Contains("[ERROR] drift-service(#): FSCopyPath: failed to create dest folder '" + src +
                         "/a.txt/copy'"));
}

}  // namespace
