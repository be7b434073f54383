// The service runs in a copy of service_driver placed in a fake bundle's
// Contents/MacOS, with HOME pointing into a fresh temporary folder; copies of
// fake_client play the per-user drift-ui. Results come back as the driver's
// output, the log file and what is on disk.
#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <ftw.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

extern char** environ;

namespace {

using Lines = std::vector<std::string>;
// Relative path -> content; folders as "<dir>".
using Tree = std::map<std::string, std::string>;

const uid_t kNobody = 65534;

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

long MaxPid()
{
    return std::stol(ReadFile("/proc/sys/kernel/pid_max"));
}

bool Exists(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
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
    QDirIterator it(QString::fromStdString(root), QDir::AllEntries | QDir::Hidden | QDir::System |
                                                      QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const std::string path = it.next().toStdString();
        tree[path.substr(root.size() + 1)] =
            it.fileInfo().isDir() ? std::string("<dir>") : ReadFile(path);
    }
    return tree;
}

struct Entry {
    std::string name;
    std::string content;  // "<dir>" makes a folder
    mode_t mode;
};

Tree TreeOf(const std::vector<Entry>& entries)
{
    Tree tree;
    for (const Entry& e : entries)
        tree[e.name] = e.content;
    return tree;
}

// cut_bytes > 0 drops that many bytes from the end, into an entry's data.
void WriteArchive(const std::string& path, const std::vector<Entry>& entries, bool gzip,
                  off_t cut_bytes = 0)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(QString::fromStdString(path)).path()));
    archive* a = archive_write_new();
    archive_write_set_format_pax_restricted(a);
    if (gzip)
        archive_write_add_filter_gzip(a);
    ASSERT_EQ(archive_write_open_filename(a, path.c_str()), ARCHIVE_OK);
    for (const Entry& e : entries) {
        archive_entry* entry = archive_entry_new();
        const bool dir = e.content == "<dir>";
        archive_entry_set_pathname(entry, e.name.c_str());
        archive_entry_set_filetype(entry, dir ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry, e.mode);
        archive_entry_set_size(entry, dir ? 0 : static_cast<la_int64_t>(e.content.size()));
        ASSERT_EQ(archive_write_header(a, entry), ARCHIVE_OK);
        if (!dir)
            archive_write_data(a, e.content.data(), e.content.size());
        archive_entry_free(entry);
    }
    archive_write_close(a);
    archive_write_free(a);
    struct stat st;
    if (cut_bytes > 0 && stat(path.c_str(), &st) == 0) {
        ASSERT_EQ(truncate(path.c_str(), st.st_size - cut_bytes), 0);
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

bool WaitFor(const std::function<bool()>& done, int seconds = 30)
{
    for (int i = 0; i < seconds * 20; ++i) {
        if (done())
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return done();
}

int ChownToNobody(const char* path, const struct stat*, int, struct FTW*)
{
    return lchown(path, kNobody, kNobody);
}

struct DriverResult {
    int status = -1;
    std::map<std::string, std::string> values;
};

class ServiceTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(tmp_.isValid());
        root_ = tmp_.path().toStdString();
        bundle_ = root_ + "/Bundle/Driftwell.app";
        home_ = root_ + "/home";
        app_ = home_ + "/.Driftwell/Driftwell.app";
        pid_file_ = home_ + "/.Driftwell/ui.pid";
        log_ = root_ + "/service.log";
        client_bytes_ = ReadFile(DW_FAKE_CLIENT);
        WriteFile(bundle_ + "/Contents/MacOS/launcher", ReadFile(DW_SERVICE_DRIVER), 0755);
        WriteFile(bundle_ + "/log/launcher.debug",
                  "service_debug=7\nextractor_debug=7\nfile_op_debug=7\n");
        ASSERT_TRUE(QDir().mkpath(QString::fromStdString(home_)));
    }

    void TearDown() override
    {
        for (pid_t pid : started_) {
            if (pid > 0 && !IsGone(pid))
                kill(pid, SIGKILL);
        }
    }

    // Runs the driver as the launcher would run; a fresh log per run.
    DriverResult Run(const Lines& args, const Lines& env = {}, uid_t uid = 0)
    {
        unlink(log_.c_str());
        Lines argv_text = {bundle_ + "/Contents/MacOS/launcher", log_};
        argv_text.insert(argv_text.end(), args.begin(), args.end());
        Lines env_text = {"HOME=" + home_};
        for (char** e = environ; *e != nullptr; ++e) {
            if (strncmp(*e, "HOME=", 5) != 0)
                env_text.push_back(*e);
        }
        env_text.insert(env_text.end(), env.begin(), env.end());
        std::vector<char*> argv, envp;
        for (std::string& s : argv_text)
            argv.push_back(&s[0]);
        for (std::string& s : env_text)
            envp.push_back(&s[0]);
        argv.push_back(nullptr);
        envp.push_back(nullptr);

        DriverResult result;
        int out[2];
        if (pipe(out) != 0)
            return result;
        const pid_t pid = fork();
        if (pid == 0) {
            dup2(out[1], STDOUT_FILENO);
            close(out[0]);
            close(out[1]);
            if (uid != 0 && (setgroups(0, nullptr) != 0 || setgid(uid) != 0 || setuid(uid) != 0))
                _exit(126);
            execve(argv[0], argv.data(), envp.data());
            _exit(127);
        }
        close(out[1]);
        std::string text;
        char buf[4096];
        ssize_t n;
        while ((n = read(out[0], buf, sizeof buf)) > 0 || (n < 0 && errno == EINTR))
            text.append(buf, n > 0 ? static_cast<size_t>(n) : 0);
        close(out[0]);
        waitpid(pid, &result.status, 0);
        std::istringstream lines(text);
        std::string line;
        while (std::getline(lines, line)) {
            const size_t eq = line.find('=');
            if (eq != std::string::npos)
                result.values[line.substr(0, eq)] = line.substr(eq + 1);
        }
        return result;
    }

    // The service's own lines of the last run, time stamp dropped, line number as N.
    Lines ServiceLog() const
    {
        Lines lines;
        std::istringstream in(ReadFile(log_));
        std::string line;
        while (std::getline(in, line)) {
            line = line.size() > 16 ? line.substr(16) : std::string();  // "%b %d %H:%M:%S "
            const size_t source = line.find("] ") + 2;
            const size_t open = line.find('(');
            const size_t close = line.find("): ");
            if (source < 2 || open == std::string::npos || close == std::string::npos ||
                open > close)
                continue;
            const std::string name = line.substr(source, open - source);
            if (name == "drift-service" || name == "mac/mac-service")
                lines.push_back(line.substr(0, open) + "(N" + line.substr(close));
        }
        return lines;
    }

    std::string Bak(int n) const { return app_ + "_tmp" + (n == 0 ? "" : std::to_string(n)); }

    void WriteBundleInfo(const std::string& text)
    {
        WriteFile(bundle_ + "/Contents/Resources/INFO", text);
    }

    std::string Package() const { return bundle_ + "/Contents/Resources/package/driftwell.tpk"; }

    std::vector<Entry> NewPackage() const
    {
        return {{"Contents", "<dir>", 0755},
                {"Contents/MacOS", "<dir>", 0755},
                {"Contents/MacOS/drift-ui", client_bytes_, 0755},
                {"Contents/Resources", "<dir>", 0755},
                {"Contents/Resources/INFO", "[Version]\nbuild_version=2000\n", 0644},
                {"Contents/Resources/new.txt", "new", 0644}};
    }

    // An installed per-user copy at app_ (or at another folder).
    void InstallOldCopy(const std::string& at = "")
    {
        const std::string dir = at.empty() ? app_ : at;
        WriteFile(dir + "/Contents/MacOS/drift-ui", client_bytes_, 0755);
        WriteFile(dir + "/Contents/Resources/INFO", "[Version]\nbuild_version=1\n");
        WriteFile(dir + "/Contents/Resources/sub/deep.txt", "old " + at);
    }

    // Starts the installed drift-ui as an orphan in its own session, as the
    // desktop would, and waits for its pid file.
    pid_t StartClient(const char* mode, const std::string& exe = "")
    {
        const std::string path = exe.empty() ? app_ + "/Contents/MacOS/drift-ui" : exe;
        unlink(pid_file_.c_str());
        const std::string home = "HOME=" + home_;
        char* argv[] = {const_cast<char*>(path.c_str()), const_cast<char*>(mode), nullptr};
        char* envp[] = {const_cast<char*>(home.c_str()), nullptr};
        const pid_t middle = fork();
        if (middle == 0) {
            if (fork() == 0) {
                setsid();
                execve(argv[0], argv, envp);
                _exit(127);
            }
            _exit(0);
        }
        waitpid(middle, nullptr, 0);
        pid_t pid = 0;
        WaitFor([&] {
            const std::string text = ReadFile(pid_file_);
            pid = text.rfind("pid=", 0) == 0 ? std::atoi(text.c_str() + 4) : 0;
            return pid > 0;
        });
        started_.push_back(pid);
        return pid;
    }

    Lines LogOf(const DriverResult& r)
    {
        EXPECT_EQ(r.status, 0);
        return ServiceLog();
    }

    QTemporaryDir tmp_;
    std::string root_, bundle_, home_, app_, pid_file_, log_, client_bytes_;
    std::vector<pid_t> started_;
};

// ---- upgrade decision ----------------------------------------------------

struct DecisionRow {
    const char* name;
    const char* target;  // bundle's INFO, nullptr: none
    const char* source;  // per-user INFO, nullptr: none
    bool executable;
    bool need;
    int source_number;  // as logged
    int target_number;
    Lines lines;          // the whole service log, when given
};

TEST_F(ServiceTest, DecidesOnBuildNumbersAndTheExecutable)
{
    const std::vector<DecisionRow> rows = {
        {"first_installation", "[Version]\nbuild_version=5\n", nullptr, false, true, 0, 5,
         {"[INFO] drift-service(N): target_version = (, , 5, )",
          "[INFO] drift-service(N): source does not exist",
          "[DEBUG] mac/mac-service(N): Source version: ('', '')",
          "[DEBUG] mac/mac-service(N): Target version: ('5', '')",
          "[DEBUG] mac/mac-service(N): source version = 0, target version = 5"}},
        {"newer_bundle",
         "[Version]\nmajor_version=2\nminor_version=1\nbuild_version=1001\nicon_overlay_version=4\n",
         "[Version]\nmajor_version=2\nminor_version=0\nbuild_version=1000\nicon_overlay_version=3\n",
         true, true, 1000, 1001,
         {"[INFO] drift-service(N): target_version = (2, 1, 1001, 4)",
          "[INFO] drift-service(N): source_version = (2, 0, 1000, 3)",
          "[DEBUG] mac/mac-service(N): Source version: ('1000', '3')",
          "[DEBUG] mac/mac-service(N): Target version: ('1001', '4')",
          "[DEBUG] mac/mac-service(N): source version = 1000, target version = 1001"}},
        {"numbers_not_texts", "[Version]\nbuild_version=120\n", "[Version]\nbuild_version=1000\n",
         true, false, 1000, 120, {}},
        {"equal_builds_other_fields_differ",
         "[Version]\nmajor_version=9\nbuild_version=7\nicon_overlay_version=3\n",
         "[Version]\nmajor_version=1\nbuild_version=7\nicon_overlay_version=1\n", true, false,
         7, 7, {}},
        {"negative_source_empty_target", "[Version]\nmajor_version=1\n",
         "[Version]\nbuild_version=-1\n", true, true, -1, 0, {}},
        {"digits_then_letters", "[Version]\nbuild_version=1234abc\n",
         "[Version]\nbuild_version=1233\n", true, true, 1233, 1234, {}},
        {"digits_then_letters_equal", "[Version]\nbuild_version=1234abc\n",
         "[Version]\nbuild_version=1234\n", true, false, 1234, 1234, {}},
        {"leading_letter", "[Version]\nbuild_version=abc\n", "[Version]\nbuild_version=1\n", true,
         false, 1, 0, {}},
        {"executable_missing_older_bundle", "[Version]\nbuild_version=1\n",
         "[Version]\nbuild_version=1000\n", false, true, 1000, 1, {}},
        {"keys_outside_the_group", "build_version=99\n[Other]\nbuild_version=98\n",
         "[Version]\nbuild_version=10\n", true, false, 10, 0, {}},
        {"no_bundle_record", nullptr, "[Version]\nbuild_version=10\n", true, false, 10, 0, {}},
    };
    for (const DecisionRow& row : rows) {
        SCOPED_TRACE(row.name);
        QDir(QString::fromStdString(app_)).removeRecursively();
        unlink((bundle_ + "/Contents/Resources/INFO").c_str());
        if (row.target != nullptr)
            WriteBundleInfo(row.target);
        if (row.source != nullptr)
            WriteFile(app_ + "/Contents/Resources/INFO", row.source);
        if (row.executable)
            WriteFile(app_ + "/Contents/MacOS/drift-ui", "#!/bin/sh\n", 0755);

        const DriverResult r = Run({"decide"});
        ASSERT_EQ(r.status, 0);
        EXPECT_EQ(r.values.at("need"), row.need ? "1" : "0");
        const Lines log = ServiceLog();
        const std::string decision = "[DEBUG] mac/mac-service(N): source version = " +
                                     std::to_string(row.source_number) + ", target version = " +
                                     std::to_string(row.target_number);
        EXPECT_NE(std::find(log.begin(), log.end(), decision), log.end());
        if (!row.lines.empty()) {
            EXPECT_EQ(log, row.lines);
        }
        if (std::string(row.name) == "keys_outside_the_group") {
            EXPECT_EQ(r.values.at("target"), "|||");
        }
    }
}

TEST_F(ServiceTest, PathsFollowHomeAndBundle)
{
    home_ = root_ + "/h\xc3\xb6me \xe2\x82\xac";
    ASSERT_TRUE(QDir().mkpath(QString::fromStdString(home_)));
    const DriverResult r = Run({"paths"});
    ASSERT_EQ(r.status, 0);
    char bundle[PATH_MAX];
    ASSERT_NE(realpath(bundle_.c_str(), bundle), nullptr);
    const std::map<std::string, std::string> expected = {
        {"user", home_},
        {"root", bundle},
        {"resources", std::string(bundle) + "/Contents/Resources"},
        {"user_install", home_ + "/.Driftwell"},
        {"user_app", home_ + "/.Driftwell/Driftwell.app"},
        {"user_data", home_ + "/.Driftwell/data"},
        {"app_path", home_ + "/.Driftwell/Driftwell.app"},
        {"timeout", "10000"},
    };
    EXPECT_EQ(r.values, expected);
}

// ---- stopping the client -------------------------------------------------

TEST_F(ServiceTest, StopSignalsOnlyAPidFileNamingTheClient)
{
    InstallOldCopy();
    const pid_t client = StartClient("term");
    ASSERT_GT(client, 0);
    const std::string c = std::to_string(client);
    const std::string note =
        "[NOTE] mac/mac-service(N): Failed to read pid file '" + pid_file_ + "', not exist ?";
    const struct {
        const char* name;
        std::string text;
    } rows[] = {
        {"zero", "pid=0\n"},
        {"negative", "pid=-1\n"},
        {"text", "pid=abc\n"},
        {"too_large", "pid=99999999999\n"},
        {"above_pid_max", "pid=" + std::to_string(MaxPid() + 1) + "\n"},
        {"empty", "pid=''\n"},
        {"missing_key", "other=" + c + "\n"},
        {"malformed_file", "pid " + c + "\n"},
        {"trailing_junk", "pid=" + c + "abc\n"},
        {"plus_sign", "pid=+" + c + "\n"},
        {"process_group", "pid=-" + c + "\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        WriteFile(pid_file_, row.text);
        EXPECT_EQ(LogOf(Run({"stop"})), Lines{note});
        EXPECT_FALSE(IsGone(client));
        EXPECT_FALSE(Exists(home_ + "/sigterm-received"));
    }
}

TEST_F(ServiceTest, StopWithoutPidFileOrWithAStaleOneSignalsNothing)
{
    InstallOldCopy();
    EXPECT_EQ(LogOf(Run({"stop"})),
              Lines{"[DEBUG] mac/mac-service(N): pid file '" + pid_file_ +
                    "' does not exist, no need to terminate"});

    const pid_t ended = fork();
    if (ended == 0)
        _exit(0);
    waitpid(ended, nullptr, 0);
    WriteFile(pid_file_, "pid=" + std::to_string(ended) + "\n");
    const DriverResult r = Run({"stop"});
    EXPECT_EQ(LogOf(r), Lines{});
    EXPECT_LT(std::stoi(r.values.at("elapsed_ms")), 4000);  // no probes
}

TEST_F(ServiceTest, StopLeavesAReusedPidAlone)
{
    InstallOldCopy();
    const pid_t other = fork();
    if (other == 0) {
        execlp("sleep", "sleep", "60", static_cast<char*>(nullptr));
        _exit(127);
    }
    // Until exec has happened the child still runs our test program.
    ASSERT_TRUE(WaitFor([&] {
        return ReadFile("/proc/" + std::to_string(other) + "/cmdline").rfind("sleep", 0) == 0;
    }));
    WriteFile(pid_file_, "pid=" + std::to_string(other) + "\n");
    EXPECT_EQ(LogOf(Run({"stop"})),
              Lines{"[NOTE] mac/mac-service(N): pid " + std::to_string(other) +
                    " is not the Driftwell UI, not signalled"});
    int status;
    EXPECT_EQ(waitpid(other, &status, WNOHANG), 0) << "sleep was signalled";
    kill(other, SIGKILL);
    waitpid(other, &status, 0);
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
    ASSERT_EQ(nftw(root_.c_str(), ChownToNobody, 16, FTW_PHYS), 0);
    EXPECT_EQ(LogOf(Run({"stop"}, {}, kNobody)),
              Lines{"[NOTE] mac/mac-service(N): pid " + std::to_string(binary) +
                    " is not the Driftwell UI, not signalled"});
    EXPECT_FALSE(IsGone(binary));

    // Script client of root: recognised through its command line, but it
    // refuses every signal; the whole sequence runs and fails.
    const std::string script = app_ + "/Contents/MacOS/drift-ui";
    WriteFile(script, "#!/bin/sh\necho pid=$$ > \"$HOME/.Driftwell/ui.pid\"\n"
                      "while :; do sleep 1; done\n", 0755);
    const pid_t client = StartClient("term");
    ASSERT_GT(client, 0);
    const DriverResult r = Run({"stop"}, {}, kNobody);
    EXPECT_EQ(LogOf(r), Lines{"[ERROR] mac/mac-service(N): kill: Operation not permitted (1)"});
    EXPECT_GE(std::stoi(r.values.at("elapsed_ms")), 4900);
    EXPECT_FALSE(IsGone(client));
}

TEST_F(ServiceTest, StopEndsAClientThatHonoursSigterm)
{
    InstallOldCopy();
    const pid_t client = StartClient("term");
    ASSERT_GT(client, 0);
    // Blanks around the number are fine.
    WriteFile(pid_file_, "pid = '  " + std::to_string(client) + " '\n");
    const DriverResult r = Run({"stop"});
    EXPECT_EQ(LogOf(r), Lines{});
    EXPECT_TRUE(Exists(home_ + "/sigterm-received"));
    EXPECT_TRUE(WaitFor([&] { return IsGone(client); }));
    EXPECT_LT(std::stoi(r.values.at("elapsed_ms")), 4000);  // ended within the probes
}

TEST_F(ServiceTest, StopKillsAClientThatIgnoresSigterm)
{
    InstallOldCopy();
    const pid_t client = StartClient("ignore");
    ASSERT_GT(client, 0);
    const DriverResult r = Run({"stop"});
    EXPECT_EQ(LogOf(r), Lines{});
    EXPECT_TRUE(Exists(home_ + "/sigterm-received"));
    EXPECT_TRUE(WaitFor([&] { return IsGone(client); }));
    EXPECT_GE(std::stoi(r.values.at("elapsed_ms")), 4900);  // five one-second probes first
}

// ---- upgrade ---------------------------------------------------------------

TEST_F(ServiceTest, UpgradeStopsClientAndUsesTheFirstFreeBackupName)
{
    InstallOldCopy();
    InstallOldCopy(Bak(0));
    InstallOldCopy(Bak(5));
    const Tree leftover5 = Snapshot(Bak(5));
    WriteArchive(Package(), NewPackage(), true);
    const pid_t client = StartClient("term");
    ASSERT_GT(client, 0);

    const DriverResult r = Run({"upgrade"});
    EXPECT_EQ(r.values.at("result"), "0");
    EXPECT_EQ(ServiceLog(),
              (Lines{"[DEBUG] mac/mac-service(N): local appdata exist",
                     "[ERROR] drift-service(N): failed to backup app from '" + app_ + "' -> '" +
                         Bak(0) + "'",
                     "[INFO] drift-service(N): extract package: '" + Package() + "' -> '" + app_ +
                         "'",
                     "[INFO] drift-service(N): user installation is ready, removing backup app"}));
    EXPECT_TRUE(Exists(home_ + "/sigterm-received"));
    EXPECT_TRUE(WaitFor([&] { return IsGone(client); }));
    EXPECT_EQ(Snapshot(app_), TreeOf(NewPackage()));
    EXPECT_FALSE(Exists(Bak(0)));
    EXPECT_FALSE(Exists(Bak(1)));
    EXPECT_EQ(Snapshot(Bak(5)), leftover5);
}

TEST_F(ServiceTest, FirstInstallationRemovesALeftoverBackupZero)
{
    InstallOldCopy(Bak(0));
    WriteArchive(Package(), NewPackage(), false);
    const DriverResult r = Run({"upgrade"});
    EXPECT_EQ(r.values.at("result"), "0");
    EXPECT_EQ(ServiceLog(),
              (Lines{"[INFO] drift-service(N): extract package: '" + Package() + "' -> '" + app_ +
                         "'",
                     "[INFO] drift-service(N): user installation is ready, removing backup app"}));
    EXPECT_EQ(Snapshot(app_), TreeOf(NewPackage()));
    EXPECT_FALSE(Exists(Bak(0)));
}

TEST_F(ServiceTest, UpgradeGivesUpWhenAllBackupNamesAreTaken)
{
    InstallOldCopy();
    Lines expected = {"[DEBUG] mac/mac-service(N): local appdata exist",
                      "[DEBUG] mac/mac-service(N): pid file '" + pid_file_ +
                          "' does not exist, no need to terminate"};
    for (int i = 0; i <= 9; ++i) {
        InstallOldCopy(Bak(i));
        expected.push_back("[ERROR] drift-service(N): failed to backup app from '" + app_ +
                           "' -> '" + Bak(i) + "'");
    }
    expected.push_back("[ERROR] drift-service(N): failed to backup app from '" + app_ + "' -> '" +
                       Bak(9) + "' at max retries, exiting");
    const Tree before = Snapshot(home_);
    WriteArchive(Package(), NewPackage(), false);

    const DriverResult r = Run({"upgrade"});
    EXPECT_EQ(r.values.at("result"), "-1");
    EXPECT_EQ(ServiceLog(), expected);
    EXPECT_EQ(Snapshot(home_), before);
}

TEST_F(ServiceTest, FailedExtractionPutsTheOldCopyBack)
{
    std::vector<Entry> dotdot = NewPackage();
    dotdot.insert(dotdot.begin() + 3, {"../escape", "out", 0644});
    std::vector<Entry> big = NewPackage();
    big.insert(big.begin() + 3, {"Contents/MacOS/big.bin", std::string(200000, 'x'), 0644});
    const struct {
        const char* name;
        std::vector<Entry> entries;
        off_t cut_bytes;
    } rows[] = {{"dotdot_entry", dotdot, 0}, {"truncated_archive", big, 100000}};

    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        for (const auto& dir : {app_, Bak(0)})
            QDir(QString::fromStdString(dir)).removeRecursively();
        InstallOldCopy();
        const Tree before = Snapshot(app_);
        WriteArchive(Package(), row.entries, false, row.cut_bytes);

        const DriverResult r = Run({"upgrade"});
        EXPECT_EQ(r.values.at("result"), "-1");
        EXPECT_EQ(ServiceLog(),
                  (Lines{"[DEBUG] mac/mac-service(N): local appdata exist",
                         "[DEBUG] mac/mac-service(N): pid file '" + pid_file_ +
                             "' does not exist, no need to terminate",
                         "[INFO] drift-service(N): extract package: '" + Package() + "' -> '" +
                             app_ + "'",
                         "[ERROR] drift-service(N): Failed to extract package, rollback to old "
                         "installation"}));
        EXPECT_EQ(Snapshot(app_), before);
        EXPECT_FALSE(Exists(Bak(0)));
        EXPECT_FALSE(Exists(home_ + "/.Driftwell/escape"));
    }
}

TEST_F(ServiceTest, FailedFirstInstallationKeepsThePartialCopy)
{
    std::vector<Entry> entries = NewPackage();
    entries.push_back({"../escape", "out", 0644});
    WriteArchive(Package(), entries, false);
    const DriverResult r = Run({"upgrade"});
    EXPECT_EQ(r.values.at("result"), "-1");
    EXPECT_EQ(ServiceLog(),
              (Lines{"[INFO] drift-service(N): extract package: '" + Package() + "' -> '" + app_ +
                         "'",
                     "[ERROR] drift-service(N): Failed to extract package, and no old "
                     "installation to rollback"}));
    entries.pop_back();
    EXPECT_EQ(Snapshot(app_), TreeOf(entries));
}

// ---- launching the client ------------------------------------------------

TEST_F(ServiceTest, LaunchFailsWithoutAUsableExecutable)
{
    const struct {
        const char* name;
        mode_t mode;  // 0: no executable at all
    } rows[] = {{"missing", 0}, {"not_executable", 0644}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        if (row.mode != 0)
            WriteFile(app_ + "/Contents/MacOS/drift-ui", client_bytes_, row.mode);
        const DriverResult r = Run({"launch"});
        EXPECT_EQ(r.status, 0);
        EXPECT_EQ(ServiceLog(), Lines{"[ERROR] mac/mac-service(N): Failed to launch Driftwell UI"});
        EXPECT_FALSE(Exists(home_ + "/client-starts"));
    }
}

TEST_F(ServiceTest, LaunchStartsTheClientDetached)
{
    InstallOldCopy();
    const DriverResult r = Run({"launch"}, {"DW_FAKE_CLIENT_MODE=term"});
    EXPECT_EQ(ServiceLog(), Lines{});
    EXPECT_EQ(r.values.at("children"), "none");
    ASSERT_TRUE(WaitFor([&] { return Exists(pid_file_); }));
    const std::string starts = ReadFile(home_ + "/client-starts");
    int client = 0, sid = 0, used = 0;
    ASSERT_EQ(sscanf(starts.c_str(), "pid=%d sid=%d %n", &client, &sid, &used), 2) << starts;
    started_.push_back(client);
    EXPECT_EQ(sid, client) << "session leader";
    EXPECT_NE(std::to_string(sid), r.values.at("sid"));
    EXPECT_EQ(starts.substr(used),
              "stdin=/dev/null stdout=/dev/null stderr=/dev/null extra_fds=0 cwd=/\n");
    EXPECT_EQ(ReadFile(pid_file_), "pid=" + std::to_string(client) + "\n");
}

TEST_F(ServiceTest, LaunchLeavesARunningClientAlone)
{
    InstallOldCopy();
    const pid_t client = StartClient("term");
    ASSERT_GT(client, 0);
    const DriverResult r = Run({"launch"});
    EXPECT_EQ(ServiceLog(), Lines{});
    EXPECT_EQ(r.values.at("children"), "none");
    // A second client would have recorded its start by now.
    std::this_thread::sleep_for(std::chrono::seconds(1));
    const std::string starts = ReadFile(home_ + "/client-starts");
    EXPECT_EQ(std::count(starts.begin(), starts.end(), '\n'), 1) << starts;
    EXPECT_EQ(ReadFile(pid_file_), "pid=" + std::to_string(client) + "\n");
}

// ---- aged folder and copying ---------------------------------------------

TEST_F(ServiceTest, RemoveAgedFoldersLogsEveryTime)
{
    const std::string aged = home_ + "/.Driftwell/app";
    for (bool present : {true, false}) {
        SCOPED_TRACE(present ? "present" : "absent");
        if (present)
            WriteFile(aged + "/sub/file", "x");
        EXPECT_EQ(Run({"remove-aged"}).status, 0);
        EXPECT_EQ(ServiceLog(), Lines{"[INFO] drift-service(N): removing aged app folder " + aged});
        EXPECT_FALSE(Exists(aged));
    }
}

TEST_F(ServiceTest, CopyPathCopiesTreesDepthFirst)
{
    const std::string src = root_ + "/src";
    WriteFile(src + "/a.txt", "a");
    WriteFile(src + "/sub/b.txt", "bb");
    WriteFile(src + "/sub/deeper/c.bin", std::string(70000, '\1'));
    ASSERT_TRUE(QDir().mkpath(QString::fromStdString(src + "/empty")));

    DriverResult r = Run({"copy", src, root_ + "/out/copy"});
    EXPECT_EQ(r.values.at("result"), "0");
    EXPECT_EQ(Snapshot(root_ + "/out/copy"), Snapshot(src));

    r = Run({"copy", src + "/sub/b.txt", root_ + "/single.txt"});
    EXPECT_EQ(r.values.at("result"), "0");
    EXPECT_EQ(ReadFile(root_ + "/single.txt"), "bb");

    r = Run({"copy", src + "/none", root_ + "/x"});
    EXPECT_EQ(r.values.at("result"), "-1");
    EXPECT_EQ(ServiceLog(),
              (Lines{"[DEBUG] drift-service(N): copy from '" + src + "/none' to '" + root_ + "/x'",
                     "[ERROR] drift-service(N): FSCopyPath: source path '" + src +
                         "/none' does not exist"}));
}

TEST_F(ServiceTest, CopyPathCopiesAnUnlistableFolderAsAnEmptyOne)
{
    const std::string src = root_ + "/src";
    WriteFile(src + "/a.txt", "a");
    WriteFile(src + "/locked/hidden.txt", "h");
    ASSERT_EQ(chmod((src + "/locked").c_str(), 0300), 0);
    // Root lists any folder: run the service as nobody instead.
    uid_t uid = 0;
    if (geteuid() == 0) {
        ASSERT_EQ(nftw(root_.c_str(), ChownToNobody, 16, FTW_PHYS), 0);
        uid = kNobody;
    }
    const std::string dst = root_ + "/copy";
    const DriverResult r = Run({"copy", src, dst}, {}, uid);
    chmod((src + "/locked").c_str(), 0700);
    EXPECT_EQ(r.values.at("result"), "0");
    EXPECT_EQ(Snapshot(dst), (Tree{{"a.txt", "a"}, {"locked", "<dir>"}}));
    const Lines log = ServiceLog();
    EXPECT_NE(std::find(log.begin(), log.end(),
                        "[WARNING] drift-service(N): FSCopyPath: failed to create handle  for src '" +
                            src + "/locked' failed"),
              log.end());
}

}  // namespace
