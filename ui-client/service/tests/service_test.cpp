// The service runs in a copy of service_driver placed in a fake bundle's
// Contents/MacOS, with HOME pointing into a fresh temporary folder; copies of
// fake_client play the per-user drift-ui. Results come back as the driver's
// output, the log file and what is on disk.
#include <archive.h>
#include <archive_entry.h>
#include <ftw.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;
// Relative path -> content; folders as "<dir>". Archives keep their order.
using Tree = std::map<std::string, std::string>;
using Entries = std::vector<std::pair<std::string, std::string>>;

const uid_t kNobody = 65534;

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

bool Exists(const std::string& path)
{
    return access(path.c_str(), F_OK) == 0;
}

void WriteFile(const std::string& path, const std::string& content, mode_t mode = 0644)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(QString::fromStdString(path)).path()));
    unlink(path.c_str());  // a running executable cannot be rewritten in place
    std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
    ASSERT_EQ(chmod(path.c_str(), mode), 0) << path;
}

Tree Snapshot(const std::string& root)
{
    Tree tree;
    QDirIterator it(QString::fromStdString(root),
                    QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const std::string path = it.next().toStdString();
        const std::string data = it.fileInfo().isDir() ? "<dir>" : ReadFile(path);
        // Binaries by their digest: a failure prints readable trees.
        tree[path.substr(root.size() + 1)] =
            data.size() < 256 ? data
                              : QCryptographicHash::hash(QByteArray::fromStdString(data),
                                                         QCryptographicHash::Sha1)
                                    .toHex()
                                    .toStdString();
    }
    return tree;
}

// cut_bytes > 0 drops that many bytes from the end, into an entry's data.
void WriteArchive(const std::string& path, const Entries& entries, off_t cut_bytes = 0)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(QString::fromStdString(path)).path()));
    archive* a = archive_write_new();
    archive_write_set_format_pax_restricted(a);
    ASSERT_EQ(archive_write_open_filename(a, path.c_str()), ARCHIVE_OK);
    for (const auto& [name, content] : entries) {
        archive_entry* entry = archive_entry_new();
        const bool dir = content == "<dir>";
        archive_entry_set_pathname(entry, name.c_str());
        archive_entry_set_filetype(entry, dir ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry, 0755);
        archive_entry_set_size(entry, dir ? 0 : static_cast<la_int64_t>(content.size()));
        ASSERT_EQ(archive_write_header(a, entry), ARCHIVE_OK);
        if (!dir)
            archive_write_data(a, content.data(), content.size());
        archive_entry_free(entry);
    }
    archive_write_close(a);
    archive_write_free(a);
    const qint64 size = QFileInfo(QString::fromStdString(path)).size();
    if (cut_bytes > 0) {
        ASSERT_EQ(truncate(path.c_str(), size - cut_bytes), 0);
    }
}

bool IsGone(pid_t pid)
{
    if (pid <= 0 || (kill(pid, 0) != 0 && errno == ESRCH))
        return true;
    // An orphan that ended may wait a moment for init to reap it.
    const std::string stat = ReadFile("/proc/" + std::to_string(pid) + "/stat");
    const size_t paren = stat.rfind(')');
    return paren != std::string::npos && paren + 2 < stat.size() && stat[paren + 2] == 'Z';
}

template <typename Done>
bool WaitFor(Done done)
{
    for (int i = 0; i < 600 && !done(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    return done();
}

uid_t g_owner = kNobody;

int ChownToOwner(const char* path, const struct stat*, int, struct FTW*)
{
    return lchown(path, g_owner, g_owner);
}

bool ChownTree(const std::string& path, uid_t owner)
{
    g_owner = owner;
    return nftw(path.c_str(), ChownToOwner, 16, FTW_PHYS) == 0;
}

// Runs the driver, as another user when uid is not 0.
class Driver : public QProcess {
public:
    explicit Driver(uid_t uid) : uid_(uid) {}

protected:
    void setupChildProcess() override
    {
        if (uid_ != 0 && (setgroups(0, nullptr) != 0 || setgid(uid_) != 0 || setuid(uid_) != 0))
            _exit(126);
    }

private:
    uid_t uid_;
};

class ServiceTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(tmp_.isValid());
        root_ = tmp_.path().toStdString();
        bundle_ = root_ + "/Bundle/Driftwell.app";
        // Not plain ASCII and with a blank: every path must come through byte for byte.
        home_ = root_ + "/h\xc3\xb6me \xe2\x82\xac";
        app_ = home_ + "/.Driftwell/Driftwell.app";
        pid_file_ = home_ + "/.Driftwell/ui.pid";
        log_ = root_ + "/service.log";
        no_pid_file_line_ = "[DEBUG] mac/mac-service(N): pid file '" + pid_file_ +
                            "' does not exist, no need to terminate";
        extract_line_ =
            "[INFO] drift-service(N): extract package: '" + Package() + "' -> '" + app_ + "'";
        WriteFile(bundle_ + "/Contents/MacOS/launcher", ReadFile(DW_SERVICE_DRIVER), 0755);
        WriteFile(bundle_ + "/log/launcher.debug",
                  "service_debug=7\nextractor_debug=7\nfile_op_debug=7\n");
        ASSERT_TRUE(QDir().mkpath(QString::fromStdString(home_)));
        // For the driver and the clients.
        setenv("HOME", home_.c_str(), 1);
        setenv("DW_FAKE_CLIENT_MODE", "term", 1);
    }

    void TearDown() override
    {
        for (pid_t pid : started_) {
            if (!IsGone(pid))
                kill(pid, SIGKILL);
        }
    }

    // Runs the driver as the launcher would run, with a fresh log; its output.
    std::string Run(const QStringList& args, uid_t uid = 0)
    {
        unlink(log_.c_str());
        Driver driver(uid);
        driver.start(QString::fromStdString(bundle_ + "/Contents/MacOS/launcher"),
                     QStringList{QString::fromStdString(log_)} + args);
        EXPECT_TRUE(driver.waitForFinished(120000));
        EXPECT_EQ(driver.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(driver.exitCode(), 0);
        return driver.readAllStandardOutput().trimmed().toStdString();
    }

    // The service's own lines of the last run, time stamp dropped, line number as N.
    Lines ServiceLog() const
    {
        Lines lines;
        std::istringstream in(ReadFile(log_));
        for (std::string line; std::getline(in, line);) {
            const size_t open = line.find('('), close = line.find("): ");
            if (close == std::string::npos)
                continue;
            const std::string head = line.substr(16, open - 16);  // after "%b %d %H:%M:%S "
            const std::string source = head.substr(head.find(' ') + 1);
            if (source == "drift-service" || source == "mac/mac-service")
                lines.push_back(head + "(N" + line.substr(close));
        }
        return lines;
    }

    std::string Bak(int n) const { return app_ + "_tmp" + (n == 0 ? "" : std::to_string(n)); }
    std::string Package() const { return bundle_ + "/Contents/Resources/package/driftwell.tpk"; }

    std::string BackupFailedLine(int n) const
    {
        return "[ERROR] drift-service(N): failed to backup app from '" + app_ + "' -> '" + Bak(n) +
               "'";
    }
    static Entries NewPackage()
    {
        return {{"Contents", "<dir>"},
                {"Contents/MacOS", "<dir>"},
                {"Contents/MacOS/drift-ui", "new ui"},
                {"Contents/Resources", "<dir>"},
                {"Contents/Resources/new.txt", "new"}};
    }

    // An installed per-user copy of that build at app_ (or at another
    // folder); a negative build leaves out the record, as an extraction cut
    // short does, and 0 makes nothing.
    void InstallOldCopy(const std::string& at = "", int build = 1)
    {
        const std::string dir = at.empty() ? app_ : at;
        if (build == 0)
            return;
        WriteFile(dir + "/Contents/MacOS/drift-ui", ReadFile(DW_FAKE_CLIENT), 0755);
        WriteFile(dir + "/Contents/Resources/sub/deep.txt", "old " + at + std::to_string(build));
        if (build > 0)
            WriteFile(dir + "/Contents/Resources/INFO",
                      "[Version]\nbuild_version=" + std::to_string(build) + "\n");
    }

    // Removes the per-user copy and every backup name.
    void ClearCopies()
    {
        for (int i = -1; i <= 9; ++i)
            QDir(QString::fromStdString(i < 0 ? app_ : Bak(i))).removeRecursively();
    }

    std::string Leftover(int n) const
    {
        return "[WARNING] drift-service(N): removing leftover backup '" + Bak(n) + "'";
    }

    // The service's warnings of the last run.
    Lines Warnings() const
    {
        Lines warnings;
        for (const std::string& line : ServiceLog()) {
            if (line.rfind("[WARNING]", 0) == 0)
                warnings.push_back(line);
        }
        return warnings;
    }

    pid_t PidInFile() const
    {
        const std::string text = ReadFile(pid_file_);
        return text.rfind("pid=", 0) == 0 ? std::atoi(text.c_str() + 4) : 0;
    }

    // Starts the installed drift-ui as the desktop would (through the
    // service's own launch) and waits for its pid file.
    pid_t StartClient(const char* mode)
    {
        unlink(pid_file_.c_str());
        setenv("DW_FAKE_CLIENT_MODE", mode, 1);
        Run({"launch"});
        pid_t pid = 0;
        WaitFor([&] { return (pid = PidInFile()) > 0; });
        started_.push_back(pid);
        return pid;
    }

    QTemporaryDir tmp_;
    std::string root_, bundle_, home_, app_, pid_file_, log_, no_pid_file_line_, extract_line_;
    std::vector<pid_t> started_;
};

// ---- upgrade decision ----------------------------------------------------

TEST_F(ServiceTest, DecidesOnBuildNumbersAndTheExecutable)
{
    const struct {
        const char* name;
        const char* target;  // bundle's INFO, nullptr: none
        const char* source;  // per-user INFO, nullptr: none
        bool executable;
        bool need;
        int source_number;  // as logged
        int target_number;
        Lines log;  // the whole service log, when given
    } rows[] = {
        {"first_installation", "[Version]\nbuild_version=5\n", nullptr, false, true, 0, 5,
         {"[INFO] drift-service(N): target_version = (, , 5, )",
          "[INFO] drift-service(N): source does not exist",
          "[DEBUG] mac/mac-service(N): Source version: ('', '')",
          "[DEBUG] mac/mac-service(N): Target version: ('5', '')",
          "[DEBUG] mac/mac-service(N): source version = 0, target version = 5"}},
        {"numbers_not_texts", "[Version]\nbuild_version=120\n", "[Version]\nbuild_version=1000\n",
         true, false, 1000, 120, {}},
        {"equal_builds_other_fields_differ",
         "[Version]\nmajor_version=9\nbuild_version=7\nicon_overlay_version=3\n",
         "[Version]\nmajor_version=1\nminor_version=2\nbuild_version=7\nicon_overlay_version=1\n",
         true, false, 7, 7,
         {"[INFO] drift-service(N): target_version = (9, , 7, 3)",
          "[INFO] drift-service(N): source_version = (1, 2, 7, 1)",
          "[DEBUG] mac/mac-service(N): Source version: ('7', '1')",
          "[DEBUG] mac/mac-service(N): Target version: ('7', '3')",
          "[DEBUG] mac/mac-service(N): source version = 7, target version = 7"}},
        {"negative_source_empty_target", "[Version]\nmajor_version=1\n",
         "[Version]\nbuild_version=-1\n", true, true, -1, 0, {}},
        {"digits_then_letters", "[Version]\nbuild_version=1234abc\n",
         "[Version]\nbuild_version=1233\n", true, true, 1233, 1234, {}},
        {"leading_letter", "[Version]\nbuild_version=abc\n", "[Version]\nbuild_version=1\n", true,
         false, 1, 0, {}},
        {"executable_missing_older_bundle", "[Version]\nbuild_version=1\n",
         "[Version]\nbuild_version=1000\n", false, true, 1000, 1, {}},
        {"keys_outside_the_group", "build_version=99\n[Other]\nbuild_version=98\n",
         "[Version]\nbuild_version=10\n", true, false, 10, 0, {}},
        {"no_bundle_record", nullptr, "[Version]\nbuild_version=10\n", true, false, 10, 0, {}},
        {"copy_without_record", "[Version]\nbuild_version=0\n", nullptr, true, true, 0, 0, {}},
    };
    // Without a build of its own the bundle upgrades nothing: worth a warning.
    const std::map<std::string, std::string> bundle_problems = {
        {"negative_source_empty_target", "has no build number"},
        {"digits_then_letters", "has a build number that is not a number"},
        {"leading_letter", "has a build number that is not a number"},
        {"keys_outside_the_group", "has no build number"},
        {"no_bundle_record", "cannot be read"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        QDir(QString::fromStdString(app_)).removeRecursively();
        unlink((bundle_ + "/Contents/Resources/INFO").c_str());
        if (row.target != nullptr)
            WriteFile(bundle_ + "/Contents/Resources/INFO", row.target);
        if (row.source != nullptr)
            WriteFile(app_ + "/Contents/Resources/INFO", row.source);
        if (row.executable)
            WriteFile(app_ + "/Contents/MacOS/drift-ui", "#!/bin/sh\n", 0755);

        EXPECT_EQ(Run({"decide"}), row.need ? "1" : "0");
        const Lines log = ServiceLog();
        const std::string decision = "[DEBUG] mac/mac-service(N): source version = " +
                                     std::to_string(row.source_number) + ", target version = " +
                                     std::to_string(row.target_number);
        EXPECT_NE(std::find(log.begin(), log.end(), decision), log.end());
        if (!row.log.empty()) {
            EXPECT_EQ(log, row.log);
        }
        const auto problem = bundle_problems.find(row.name);
        EXPECT_EQ(Warnings(), problem == bundle_problems.end()
                                  ? Lines{}
                                  : Lines{"[WARNING] drift-service(N): bundle version record '" +
                                          bundle_ + "/Contents/Resources/INFO' " + problem->second});
    }
}

// ---- stopping the client -------------------------------------------------

TEST_F(ServiceTest, StopSignalsOnlyAPidFileNamingTheClient)
{
    InstallOldCopy();
    const pid_t client = StartClient("term");
    ASSERT_GT(client, 0);
    const pid_t ended = fork();
    if (ended == 0)
        _exit(0);
    waitpid(ended, nullptr, 0);
    const pid_t other = fork();
    if (other == 0) {
        execlp("sleep", "sleep", "60", static_cast<char*>(nullptr));
        _exit(127);
    }
    // Until exec has happened the child still runs our test program.
    ASSERT_TRUE(WaitFor([&] {
        return ReadFile("/proc/" + std::to_string(other) + "/cmdline").rfind("sleep", 0) == 0;
    }));
    const std::string c = std::to_string(client), o = std::to_string(other);
    const auto unusable = [&](const std::string& why) {
        return Lines{"[WARNING] mac/mac-service(N): pid file '" + pid_file_ + "' is unusable: " + why,
                     "[NOTE] mac/mac-service(N): Failed to read pid file '" + pid_file_ +
                         "', not exist ?"};
    };
    const auto not_a_pid = [&](const std::string& text) {
        return unusable("pid '" + text + "' is not a process id");
    };
    const struct {
        const char* name;
        std::string text;  // empty: no pid file
        Lines log;
    } rows[] = {
        {"no_pid_file", "", {no_pid_file_line_}},
        {"stale", "pid=" + std::to_string(ended) + "\n", {}},
        {"reused_by_another_program", "pid=" + o + "\n",
         {"[NOTE] mac/mac-service(N): pid " + o + " is not the Driftwell UI, not signalled"}},
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
        if (!row.text.empty())
            WriteFile(pid_file_, row.text);
        EXPECT_LT(std::stoi(Run({"stop"})), 4000);  // no probes
        EXPECT_EQ(ServiceLog(), row.log);
        EXPECT_FALSE(IsGone(client));
        EXPECT_FALSE(Exists(home_ + "/sigterm-received"));
    }
    EXPECT_EQ(waitpid(other, nullptr, WNOHANG), 0) << "sleep was signalled";
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
}

TEST_F(ServiceTest, StopAsAnotherUserThanTheClient)
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
    EXPECT_EQ(ServiceLog(), Lines{"[NOTE] mac/mac-service(N): pid " + std::to_string(binary) +
                                  " is not the Driftwell UI, not signalled"});
    EXPECT_FALSE(IsGone(binary));

    // Script client of root: recognised through its command line, but it
    // refuses every signal; the whole sequence runs and fails.
    WriteFile(app_ + "/Contents/MacOS/drift-ui",
              "#!/bin/sh\necho pid=$$ > \"$HOME/.Driftwell/ui.pid\"\nwhile :; do sleep 1; done\n",
              0755);
    const pid_t script = StartClient("term");
    ASSERT_GT(script, 0);
    EXPECT_GE(std::stoi(Run({"stop"}, kNobody)), 4900);
    EXPECT_EQ(ServiceLog(), Lines{"[ERROR] mac/mac-service(N): kill: Operation not permitted (1)"});
    EXPECT_FALSE(IsGone(script));
}

TEST_F(ServiceTest, StopEndsTheClientBySigtermOrElseBySigkillAfterTheProbes)
{
    InstallOldCopy();
    for (const bool ignores : {false, true}) {
        SCOPED_TRACE(ignores ? "ignores SIGTERM" : "exits on SIGTERM");
        unlink((home_ + "/sigterm-received").c_str());
        const pid_t client = StartClient(ignores ? "ignore" : "term");
        ASSERT_GT(client, 0);
        // Blanks around the number are fine.
        WriteFile(pid_file_, "pid = '  " + std::to_string(client) + " '\n");
        const int elapsed_ms = std::stoi(Run({"stop"}));
        EXPECT_EQ(ServiceLog(), Lines{});
        EXPECT_TRUE(Exists(home_ + "/sigterm-received"));
        EXPECT_TRUE(WaitFor([&] { return IsGone(client); }));
        if (ignores)
            EXPECT_GE(elapsed_ms, 4900);  // five one-second probes first
        else
            EXPECT_LT(elapsed_ms, 4000);  // ended within the probes, no SIGKILL
    }
}

// ---- upgrade ---------------------------------------------------------------

// What interrupted runs leave: a partial copy (no record), the old copy under
// a backup name, stale backups in any of the ten names. None of it may block
// the upgrade, and a rollback only ever puts a complete copy in place.
TEST_F(ServiceTest, UpgradeRecoversWhatInterruptedRunsLeft)
{
    const std::string incomplete =
        "[WARNING] drift-service(N): removing incomplete copy '" + app_ + "'";
    const auto kept = [&](int n) {
        return "[WARNING] drift-service(N): no complete copy in place, '" + Bak(n) +
               "' is the old copy";
    };
    const auto restoring = [&](int n) {
        return "[WARNING] drift-service(N): restoring '" + Bak(n) + "'";
    };
    Lines all_leftovers;
    std::map<int, int> all_taken;
    for (int i = 0; i <= 9; ++i) {
        all_leftovers.push_back(Leftover(i));
        all_taken[i] = i % 2 == 0 ? 1 : -1;
    }
    const int kApp = 10;
    const struct {
        const char* name;
        int app;                     // build of the copy in place (as InstallOldCopy)
        std::map<int, int> backups;  // backup number -> build
        bool damaged;                // the package breaks off after drift-ui
        const char* result;
        int restored;  // -1: the new package in place; else what was at this backup (kApp: in place)
        Lines warnings;
        bool locked;  // the leftovers belong to root, the service runs as nobody
    } rows[] = {
        {"all_names_taken", 1, all_taken, false, "0", -1, all_leftovers, false},
        {"partial_copy_old_one_backed_up", -1, {{0, 1}}, false, "0", -1, {incomplete, kept(0)}, false},
        {"partial_copy_then_damaged_package", -1, {{0, 1}}, true, "-1", 0,
         {incomplete, kept(0), restoring(0)}, false},
        {"only_a_backup_then_damaged_package", 0, {{0, 1}}, true, "-1", 0,
         {kept(0), restoring(0)}, false},
        {"newest_complete_backup_restored", -1, {{0, 1}, {3, 5}, {4, -1}}, true, "-1", 3,
         {incomplete, kept(3), Leftover(0), Leftover(4), restoring(3)}, false},
        {"rollback_without_leftovers", 1, {}, true, "-1", kApp, {restoring(0)}, false},
        {"unremovable_leftovers", 1, all_taken, false, "-1", kApp, all_leftovers, true},
    };
    Entries damaged = NewPackage();
    damaged.insert(damaged.begin() + 3, {"Contents/MacOS/big.bin", std::string(200000, 'x')});
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        if (row.locked && geteuid() != 0)
            continue;  // root removes anything: needs root to run as another user
        ClearCopies();
        InstallOldCopy("", row.app);
        for (const auto& [number, build] : row.backups)
            InstallOldCopy(Bak(number), build);
        const Tree before = row.restored < 0 ? Tree()
                                             : Snapshot(row.restored == kApp ? app_ : Bak(row.restored));
        if (row.damaged)
            WriteArchive(Package(), damaged, 100000);
        else
            WriteArchive(Package(), NewPackage());
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
        EXPECT_EQ(Warnings(), row.warnings);
        const Entries package = NewPackage();
        EXPECT_EQ(Snapshot(app_), row.restored < 0 ? Tree(package.begin(), package.end()) : before);
        for (int i = 0; i <= 9; ++i)
            EXPECT_EQ(Exists(Bak(i)), row.locked) << Bak(i);
        if (row.locked) {
            const Lines log = ServiceLog();
            EXPECT_EQ(log.back(), BackupFailedLine(9) + " at max retries, exiting");
        }
        if (client > 0) {
            EXPECT_TRUE(WaitFor([&] { return IsGone(client); }));
        }
    }
}

TEST_F(ServiceTest, FailedFirstInstallationKeepsThePartialCopy)
{
    Entries package = NewPackage();
    package.push_back({"../escape", "out"});
    WriteArchive(Package(), package);

    EXPECT_EQ(Run({"upgrade"}), "-1");
    EXPECT_EQ(ServiceLog(),
              (Lines{extract_line_, "[ERROR] drift-service(N): Failed to extract package, and no "
                                    "old installation to rollback"}));
    package.pop_back();
    EXPECT_EQ(Snapshot(app_), Tree(package.begin(), package.end()));
}

// ---- launching the client ------------------------------------------------

TEST_F(ServiceTest, LaunchFailsWithoutAUsableExecutable)
{
    for (const bool present : {false, true}) {
        SCOPED_TRACE(present ? "not executable" : "missing");
        if (present)
            WriteFile(app_ + "/Contents/MacOS/drift-ui", ReadFile(DW_FAKE_CLIENT), 0644);
        Run({"launch"});
        EXPECT_EQ(ServiceLog(), Lines{"[ERROR] mac/mac-service(N): Failed to launch Driftwell UI"});
        EXPECT_FALSE(Exists(pid_file_));
    }
}

TEST_F(ServiceTest, LaunchStartsTheClientDetachedAndOnlyOnce)
{
    InstallOldCopy();
    EXPECT_EQ(Run({"launch"}), "no children");
    EXPECT_EQ(ServiceLog(), Lines{});
    ASSERT_TRUE(WaitFor([&] { return PidInFile() > 0; }));
    const pid_t client = PidInFile();
    started_.push_back(client);
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
TEST_F(ServiceTest, RemoveAgedFoldersAndLeftoversOfACurrentCopy)
{
    const std::string aged = home_ + "/.Driftwell/app";
    WriteFile(bundle_ + "/Contents/Resources/INFO", "[Version]\nbuild_version=2\n");
    const struct {
        const char* name;
        bool aged;
        int app;  // build of the copy in place (as InstallOldCopy)
        bool removed;
    } rows[] = {
        {"current_copy", true, 2, true},
        {"newer_copy", false, 3, true},
        {"older_copy", true, 1, false},
        {"partial_copy", false, -1, false},
        {"no_copy", false, 0, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ClearCopies();
        if (row.aged)
            WriteFile(aged + "/sub/file", "x");
        InstallOldCopy("", row.app);
        InstallOldCopy(Bak(0), 1);
        InstallOldCopy(Bak(7), -1);
        Run({"remove-aged"});
        Lines expected = {"[INFO] drift-service(N): removing aged app folder " + aged};
        if (row.removed) {
            expected.push_back(Leftover(0));
            expected.push_back(Leftover(7));
        }
        EXPECT_EQ(ServiceLog(), expected);
        EXPECT_FALSE(Exists(aged));
        EXPECT_EQ(Exists(Bak(0)), !row.removed);
        EXPECT_EQ(Exists(Bak(7)), !row.removed);
    }
}

TEST_F(ServiceTest, CopyPathCopiesTreesAndAnUnlistableFolderAsAnEmptyOne)
{
    const std::string src = root_ + "/src";
    WriteFile(src + "/a.txt", "a");
    WriteFile(src + "/sub/deeper/b.txt", "bb");
    WriteFile(src + "/locked/hidden.txt", "h");
    ASSERT_EQ(chmod((src + "/locked").c_str(), 0300), 0);
    // Root lists any folder: run the service as nobody instead.
    uid_t uid = 0;
    if (geteuid() == 0) {
        ASSERT_TRUE(ChownTree(root_, kNobody));
        uid = kNobody;
    }
    const std::string dst = root_ + "/copy";
    EXPECT_EQ(Run({"copy", QString::fromStdString(src), QString::fromStdString(dst)}, uid), "0");
    chmod((src + "/locked").c_str(), 0700);
    EXPECT_EQ(Snapshot(dst), (Tree{{"a.txt", "a"},
                                   {"locked", "<dir>"},
                                   {"sub", "<dir>"},
                                   {"sub/deeper", "<dir>"},
                                   {"sub/deeper/b.txt", "bb"}}));
    const Lines log = ServiceLog();
    EXPECT_NE(std::find(log.begin(), log.end(),
                        "[WARNING] drift-service(N): FSCopyPath: failed to create handle  for src '" +
                            src + "/locked' failed"),
              log.end());
}

}  // namespace
