// Damaged and hostile input met by the real launcher: whatever it finds, it
// says so in the log, exits with 0 and leaves the client that was installed
// complete and running. Also a package of 100,000 entries, an upgrade that
// runs out of disk space, and one beside a stopped holder of the log's lock.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <iostream>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include "launcher_testkit.h"
#include "named_rows.h"

namespace {

using dwtest::Snapshot;
using dwtest::WriteFile;

bool TruncatedUpgrade(TestBundle& b)
{
    return b.setTruncatedBuild(2);
}

// A folder where a file should be: unreadable even for root.
bool MakeFolder(const QString& path)
{
    return QFile::remove(path) && QDir().mkpath(path);
}

// An upgrade to build 2 whose client is that entry instead of its script
// (none when its name is empty): the package extracts without a fault.
std::function<bool(TestBundle&)> BrokenClient(const dwtest::Entry& client)
{
    return [client](TestBundle& b) {
        Package package = ClientPackage(2);
        if (client.name.empty())
            package.erase(package.begin());
        else
            package.front() = client;
        return b.setBuild(2, package);
    };
}

// Where a small file should be, one whose reading never ends: a FIFO that
// nobody writes, or a link to /dev/zero.
bool MakeEndless(const QString& path, bool fifo)
{
    QFile::remove(path);
    return fifo ? mkfifo(QFile::encodeName(path).constData(), 0600) == 0 : QFile::link("/dev/zero", path);
}

// The bundle's or the per-user version record made endless.
std::function<bool(TestBundle&)> SpecialRecord(bool in_bundle, bool fifo)
{
    return [=](TestBundle& b) {
        return MakeEndless((in_bundle ? b.bundle() : b.userApp()) + "/Contents/Resources/INFO", fifo);
    };
}

// Installed client of build 1, stopped, so that the run under test must
// start it again. The previous client as installed.
dwtest::Tree InstallAndStop(TestBundle& b)
{
    return b.install(1, ClientPackage(1, 2)) && b.stopClient(1) ? Snapshot(b.userApp()) : dwtest::Tree();
}

struct HostileCase : dwtest::Row {
    const char* home;  // home folder name, UTF-8
    std::function<bool(TestBundle&)> damage;
    const char* line;  // in a WARNING or ERROR line (shown by default) of the run
    const char* gap;   // not null: that line is still missing, and why
};

const char kNfc[] = "Zo\xc3\xab \xc3\x85ngstr\xc3\xb6m";     // Zoë Ångström
const char kNfd[] = "Zoe\xcc\x88 A\xcc\x8angstro\xcc\x88m";  // the same, decomposed

const HostileCase kCases[] = {
    {"truncated_package", "home", TruncatedUpgrade, "read handle: 'Truncated tar archive'", nullptr},
    {"dotdot_entry", "home",
     [](TestBundle& b) {
         Package package = ClientPackage(2);
         package.insert(package.begin() + 1, {dwtest::Entry::File, "../escaped", "out of the bundle\n"});
         return b.setBuild(2, package);
     },
     "Path contains '..'", nullptr},
    {"empty_file_package", "home",
     [](TestBundle& b) { return b.setBuild(2, {}) && QFile(b.package()).resize(0); },
     "Failed to calculate total file numbers", nullptr},
    {"no_entries_package", "home", [](TestBundle& b) { return b.setBuild(2, {}); },
     "Failed to calculate total file numbers", nullptr},
    {"bundle_record_unreadable", "home",
     [](TestBundle& b) { return MakeFolder(b.bundle() + "/Contents/Resources/INFO"); }, "Resources/INFO",
     nullptr},
    {"bundle_record_malformed", "home",
     [](TestBundle& b) {
         return WriteFile(b.bundle() + "/Contents/Resources/INFO", "\x01\xff[Version\nbuild_version\n=\"2");
     },
     "Resources/INFO", nullptr},
    {"user_record_unreadable", "home",
     [](TestBundle& b) { return MakeFolder(b.userApp() + "/Contents/Resources/INFO"); },
     "removing incomplete copy", nullptr},
    {"user_record_malformed", "home",
     [](TestBundle& b) {
         return WriteFile(b.userApp() + "/Contents/Resources/INFO", "[Version\n\xfe\xff==");
     },
     "removing incomplete copy", nullptr},
    {"bundle_record_fifo", "home", SpecialRecord(true, true), "Resources/INFO' is not a regular file",
     nullptr},
    {"bundle_record_dev_zero", "home", SpecialRecord(true, false), "Resources/INFO' is not a regular file",
     nullptr},
    {"user_record_fifo", "home", SpecialRecord(false, true), "Resources/INFO' is not a regular file",
     nullptr},
    {"user_record_dev_zero", "home", SpecialRecord(false, false), "Resources/INFO' is not a regular file",
     nullptr},
    {"client_missing_from_package", "home", BrokenClient({}), "drift-ui' is missing", nullptr},
    {"client_a_folder_in_package", "home",
     BrokenClient({dwtest::Entry::Folder, "Contents/MacOS/drift-ui", ""}), "drift-ui' is a folder", nullptr},
    {"client_not_executable_in_package", "home",
     BrokenClient({dwtest::Entry::File, "Contents/MacOS/drift-ui", "#!/bin/sh\n", 0644}),
     "drift-ui' is not executable", nullptr},
    {"client_a_link_out_of_package", "home",
     BrokenClient({dwtest::Entry::Symlink, "Contents/MacOS/drift-ui", "/bin/sh"}),
     "drift-ui' is a symbolic link", nullptr},
    // Installed again from the same build.
    {"installed_client_lost_exec_bit", "home",
     [](TestBundle& b) {
         return chmod(QFile::encodeName(b.userApp() + "/Contents/MacOS/drift-ui"), 0644) == 0;
     },
     "drift-ui' is not executable", nullptr},
    // Read when the upgrade stops the client; -1 would signal every process.
    {"pid_file_negative", "home",
     [](TestBundle& b) { return WriteFile(b.userDir() + "/ui.pid", "pid=-1\n") && TruncatedUpgrade(b); },
     "ui.pid", nullptr},
    {"pid_file_junk", "home",
     [](TestBundle& b) {
         return WriteFile(b.userDir() + "/ui.pid", "\x89PNG\r\n\x1a\npid=1\n") && TruncatedUpgrade(b);
     },
     "ui.pid", nullptr},
    {"pid_file_fifo", "home",
     [](TestBundle& b) { return MakeEndless(b.userDir() + "/ui.pid", true) && TruncatedUpgrade(b); },
     "ui.pid' is unusable: not a regular file", nullptr},
    {"pid_file_dev_zero", "home",
     [](TestBundle& b) { return MakeEndless(b.userDir() + "/ui.pid", false) && TruncatedUpgrade(b); },
     "ui.pid' is unusable: not a regular file", nullptr},
    {"level_file_fifo", "home",
     [](TestBundle& b) { return MakeEndless(b.bundle() + "/log/launcher.debug", true); },
     "launcher.debug' is not a regular file", nullptr},
    {"level_file_dev_zero", "home",
     [](TestBundle& b) { return MakeEndless(b.bundle() + "/log/launcher.debug", false); },
     "launcher.debug' is not a regular file", nullptr},
    {"level_file_junk", "home",
     [](TestBundle& b) {
         return WriteFile(b.bundle() + "/log/launcher.debug", "\x7f"
                                                              "ELF\x02\x01 = \n[x]\n");
     },
     "launcher.debug' is malformed", nullptr},
    {"home_nfc_with_blanks", kNfc, TruncatedUpgrade, "Failed to upgrade package", nullptr},
    {"home_nfd_with_blanks", kNfd, TruncatedUpgrade, "Failed to upgrade package", nullptr},
};

class LauncherHostile : public testing::TestWithParam<HostileCase> {};

TEST_P(LauncherHostile, KeepsThePreviousClientAndSaysWhy)
{
    const HostileCase& c = GetParam();
    TestBundle b(QString::fromUtf8(c.home));
    ASSERT_TRUE(b.ok());
    const dwtest::Tree installed = InstallAndStop(b);
    ASSERT_EQ(dwtest::TreeOf(ClientPackage(1, 2)), installed) << qPrintable(b.log());
    ASSERT_TRUE(c.damage(b));

    const int offset = b.log().size();
    const RunResult r = b.run();
    // Not beyond: a FIFO left in the copy would block its snapshot.
    ASSERT_TRUE(r.exited_with_zero) << qPrintable(r.err);
    EXPECT_EQ(installed, Snapshot(b.userApp()));
    EXPECT_FALSE(QFileInfo::exists(b.userApp() + "_tmp"));
    EXPECT_FALSE(QFileInfo::exists(b.userDir() + "/escaped"));
    EXPECT_TRUE(b.waitForClientEvent("start 1", 2));
    if (c.gap != nullptr)
        GTEST_SKIP() << c.gap;
    const QString log = b.log().mid(offset);
    const QStringList lines = LinesWith(log, c.line);
    EXPECT_FALSE(lines.filter("[ERROR]").isEmpty() && lines.filter("[WARNING]").isEmpty()) << qPrintable(log);
}

INSTANTIATE_TEST_SUITE_P(Input, LauncherHostile, testing::ValuesIn(kCases), dwtest::RowName());

TEST(LauncherLimits, HundredThousandEntriesInstallCompletely)
{
    TestBundle b;
    ASSERT_TRUE(b.ok());
    const Package package = ClientPackage(1, 100000 - 2);
    ASSERT_TRUE(b.setBuild(1, package));
    QElapsedTimer timer;
    timer.start();
    const RunResult r = b.run();
    std::cout << "100000 entries installed in " << timer.elapsed() << " ms\n";
    ASSERT_TRUE(r.exited_with_zero) << qPrintable(r.err);
    // One debug line per shown percentage, not per entry.
    const QStringList progress = LinesWith(b.log(), "): progress ");
    EXPECT_LE(progress.size(), 101);
    ASSERT_FALSE(progress.isEmpty());
    EXPECT_TRUE(progress.last().endsWith("): progress 100")) << qPrintable(progress.last());
    EXPECT_TRUE(dwtest::TreeOf(package) == Snapshot(b.userApp())) << "not the package's tree";
    EXPECT_TRUE(b.waitForClientEvent("start 1"));
}

// A process that took the log folder's lock and stopped holding it: the
// launcher waits for it once, boundedly, then logs without it; the upgrade
// completes and the client starts.
TEST(LauncherLimits, AStuckHolderOfTheLogLockHoldsUpNothing)
{
    TestBundle b;
    ASSERT_TRUE(b.ok());
    ASSERT_TRUE(b.install(1, ClientPackage(1)));
    const QByteArray folder = QFile::encodeName(b.userDir() + "/log");
    struct Holder {
        pid_t pid = fork();
        ~Holder()
        {
            if (pid > 0 && kill(pid, SIGKILL) == 0)
                waitpid(pid, nullptr, 0);
        }
    } holder;
    if (holder.pid == 0) {
        const int fd = open(folder.constData(), O_RDONLY | O_DIRECTORY);
        if (fd >= 0 && flock(fd, LOCK_EX) == 0)
            raise(SIGSTOP);
        _exit(1);
    }
    int status = 0;
    ASSERT_GT(holder.pid, 0);
    ASSERT_EQ(waitpid(holder.pid, &status, WUNTRACED), holder.pid);
    ASSERT_TRUE(WIFSTOPPED(status));

    ASSERT_TRUE(b.setBuild(2, ClientPackage(2)));
    const int offset = b.log().size();
    const RunResult r = b.run();
    EXPECT_TRUE(r.exited_with_zero) << qPrintable(r.err);
    EXPECT_EQ(InfoRecord(2), dwtest::ReadFile(b.userApp() + "/Contents/Resources/INFO"));
    EXPECT_TRUE(b.waitForClientEvent("start 2"));
    const QString log = b.log().mid(offset);
    EXPECT_EQ(1, LinesWith(log, "[WARNING] log(").filter("lock").size()) << qPrintable(log);
    EXPECT_EQ(1, LinesWith(log, "): progress 100").size()) << qPrintable(log);  // later lines too
}

// The home folder on a file system of its own, 8 MiB: a tmpfs in a mount
// namespace of this process where that is allowed (root), else the file
// size limit on the launcher. Undone before the folder is removed.
class SmallHome {
public:
    explicit SmallHome(TestBundle& b) : b_(b)
    {
        const QByteArray home = QFile::encodeName(b.home());
        mounted_ = unshare(CLONE_NEWNS) == 0 &&
                   mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                   mount("tmpfs", home.constData(), "tmpfs", 0, "size=8m") == 0;
    }
    ~SmallHome()
    {
        if (mounted_)
            umount2(QFile::encodeName(b_.home()).constData(), MNT_DETACH);
    }
    const char* method() const { return mounted_ ? "tmpfs" : "RLIMIT_FSIZE"; }
    // The launcher as it runs on that home folder.
    RunResult run() const
    {
        if (mounted_)
            return b_.run();
        // An exceeded limit must fail the write (EFBIG), not kill the launcher.
        const QString script = b_.home() + "/../limited.sh";
        const QByteArray text = "#!/bin/sh\ntrap '' XFSZ\nexec prlimit --fsize=8388608 \"" +
                                QFile::encodeName(b_.executable()) + "\"\n";
        if (!WriteFile(script, text) ||
            !QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
            return {};
        return b_.run(b_.environment(), script);
    }

private:
    TestBundle& b_;
    bool mounted_ = false;
};

TEST(LauncherLimits, OutOfSpaceRollsBackByteForByte)
{
    TestBundle b;
    ASSERT_TRUE(b.ok());
    SmallHome home(b);
    std::cout << "out of space by " << home.method() << "\n";
    ASSERT_TRUE(b.setBuild(1, ClientPackage(1, 2)));
    ASSERT_TRUE(home.run().exited_with_zero);
    ASSERT_TRUE(b.waitForClientEvent("start 1"));
    const dwtest::Tree installed = Snapshot(b.userApp());

    // 12 MiB in files of 1 MiB, and one of 9 MiB for the file size limit.
    Package package = ClientPackage(2);
    for (int i = 0; i < 12; ++i) {
        const std::string name = "Contents/Resources/part-" + std::to_string(i) + ".bin";
        package.insert(package.begin() + 1, {dwtest::Entry::File, name, std::string(1 << 20, char('a' + i))});
    }
    package.insert(package.begin() + 1,
                   {dwtest::Entry::File, "Contents/Resources/whole.bin", std::string(9 << 20, 'w')});
    ASSERT_TRUE(b.setBuild(2, package));
    const int offset = b.log().size();
    const RunResult r = home.run();
    EXPECT_TRUE(r.exited_with_zero) << qPrintable(r.err);
    const QString log = b.log().mid(offset);
    EXPECT_EQ(1, LinesWith(log, "Failed to upgrade package").size()) << qPrintable(log);
    EXPECT_EQ(installed, Snapshot(b.userApp()));
    EXPECT_FALSE(QFileInfo::exists(b.userApp() + "_tmp"));
    EXPECT_TRUE(b.waitForClientEvent("term 1"));
    EXPECT_TRUE(b.waitForClientEvent("start 1", 2));
}

}  // namespace
