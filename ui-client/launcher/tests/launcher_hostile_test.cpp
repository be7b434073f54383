// Damaged and hostile input met by the real launcher: whatever it finds, it
// says so in the log, exits with 0 and leaves the client that was installed
// complete and running. Also a package of 100,000 entries, an upgrade that
// runs out of disk space (and the one after it), and one beside a holder of
// the log's lock that never lets go.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <iostream>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "launcher_testkit.h"
#include "named_rows.h"

namespace {

using dwtest::Snapshot;
using dwtest::WriteFile;

const auto TruncatedUpgrade = [](TestBundle& b) { return b.setTruncatedBuild(2); };

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

// A path below the bundle, or below the home folder when it starts with "~".
QString At(const TestBundle& b, const QString& path)
{
    return path.startsWith('~') ? b.home() + path.mid(1) : b.bundle() + "/" + path;
}

std::function<bool(TestBundle&)> Written(const QString& path, const QByteArray& data)
{
    return [=](TestBundle& b) { return WriteFile(At(b, path), data); };
}

// Where a small file should be, one whose reading never ends: a FIFO that
// nobody writes, or a link to /dev/zero. The pid file is read by an upgrade.
std::function<bool(TestBundle&)> Endless(const QString& path, bool fifo, bool upgrade = false)
{
    return [=](TestBundle& b) {
        const QByteArray at = QFile::encodeName(At(b, path));
        unlink(at.constData());
        return (fifo ? mkfifo(at.constData(), 0600) : symlink("/dev/zero", at.constData())) == 0 &&
               (!upgrade || TruncatedUpgrade(b));
    };
}

struct HostileCase : dwtest::Row {
    std::function<bool(TestBundle&)> damage;
    const char* line;           // in a WARNING or ERROR line (shown by default) of the run
    const char* home = "home";  // home folder name, UTF-8
};

const char kBundleRecord[] = "Contents/Resources/INFO";
const char kUserRecord[] = "~/.Driftwell/Driftwell.app/Contents/Resources/INFO";
const char kNotRegular[] = "Resources/INFO' is not a regular file";

const HostileCase kCases[] = {
    {"truncated_package", TruncatedUpgrade, "read handle: 'Truncated tar archive'"},
    {"bundle_record_malformed", Written(kBundleRecord, "\x01\xff[Version\nbuild_version\n=\"2"),
     "Resources/INFO"},
    {"user_record_malformed", Written(kUserRecord, "[Version\n\xfe\xff=="), "removing incomplete copy"},
    {"bundle_record_fifo", Endless(kBundleRecord, true), kNotRegular},
    {"bundle_record_dev_zero", Endless(kBundleRecord, false), kNotRegular},
    {"user_record_fifo", Endless(kUserRecord, true), kNotRegular},
    {"user_record_dev_zero", Endless(kUserRecord, false), kNotRegular},
    {"client_missing_from_package", BrokenClient({}), "drift-ui' is missing"},
    {"client_a_folder_in_package", BrokenClient({dwtest::Entry::Folder, "Contents/MacOS/drift-ui", ""}),
     "drift-ui' is a folder"},
    {"client_not_executable_in_package",
     BrokenClient({dwtest::Entry::File, "Contents/MacOS/drift-ui", "#!/bin/sh\n", 0644}),
     "drift-ui' is not executable"},
    {"client_a_link_out_of_package",
     BrokenClient({dwtest::Entry::Symlink, "Contents/MacOS/drift-ui", "/bin/sh"}),
     "drift-ui' is a symbolic link"},
    // Installed again from the same build.
    {"installed_client_lost_exec_bit",
     [](TestBundle& b) {
         return chmod(QFile::encodeName(b.userApp() + "/Contents/MacOS/drift-ui"), 0644) == 0;
     },
     "drift-ui' is not executable"},
    {"pid_file_fifo", Endless("~/.Driftwell/ui.pid", true, true), "ui.pid' is unusable: not a regular file"},
    {"pid_file_dev_zero", Endless("~/.Driftwell/ui.pid", false, true),
     "ui.pid' is unusable: not a regular file"},
    {"level_file_fifo", Endless("log/launcher.debug", true), "launcher.debug' is not a regular file"},
    {"level_file_dev_zero", Endless("log/launcher.debug", false), "launcher.debug' is not a regular file"},
    // Zoë Ångström, composed and decomposed.
    {"home_nfc_with_blanks", TruncatedUpgrade, "Failed to upgrade package",
     "Zo\xc3\xab \xc3\x85ngstr\xc3\xb6m"},
    {"home_nfd_with_blanks", TruncatedUpgrade, "Failed to upgrade package",
     "Zoe\xcc\x88 A\xcc\x8angstro\xcc\x88m"},
};

class LauncherHostile : public testing::TestWithParam<HostileCase> {};

TEST_P(LauncherHostile, KeepsThePreviousClientAndSaysWhy)
{
    const HostileCase& c = GetParam();
    TestBundle b(QString::fromUtf8(c.home));
    ASSERT_TRUE(b.ok());
    // Stopped, so that the run under test must start it again.
    ASSERT_TRUE(b.install(1, ClientPackage(1, 2)) && b.stopClient(1)) << qPrintable(b.log());
    const dwtest::Tree installed = Snapshot(b.userApp());
    ASSERT_EQ(dwtest::TreeOf(ClientPackage(1, 2)), installed);
    ASSERT_TRUE(c.damage(b));
    ASSERT_TRUE(QDir().mkpath(b.userDir() + "/app/old"));  // aged: goes whatever the run meets

    const int offset = b.log().size();
    const RunResult r = b.run();
    // Not beyond: a FIFO left in the copy would block its snapshot.
    ASSERT_TRUE(r.exited_with_zero) << qPrintable(r.err);
    EXPECT_EQ(installed, Snapshot(b.userApp()));
    EXPECT_FALSE(QFileInfo::exists(b.userApp() + "_tmp"));
    EXPECT_FALSE(QFileInfo::exists(b.userDir() + "/app"));
    EXPECT_TRUE(b.waitForClientEvent("start 1", 2));
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
    const RunResult r = b.run();
    ASSERT_TRUE(r.exited_with_zero) << qPrintable(r.err);
    // One debug line per shown percentage, not per entry.
    const QStringList progress = LinesWith(b.log(), "): progress ");
    EXPECT_LE(progress.size(), 101);
    ASSERT_FALSE(progress.isEmpty());
    EXPECT_TRUE(progress.last().endsWith("): progress 100")) << qPrintable(progress.last());
    EXPECT_TRUE(dwtest::TreeOf(package) == Snapshot(b.userApp())) << "not the package's tree";
    EXPECT_TRUE(b.waitForClientEvent("start 1"));
}

// A process that took the log folder's lock and never lets go: the launcher
// waits for it once, boundedly, then logs without it; the upgrade completes
// and the client starts.
TEST(LauncherLimits, AStuckHolderOfTheLogLockHoldsUpNothing)
{
    TestBundle b;
    ASSERT_TRUE(b.ok());
    ASSERT_TRUE(b.install(1, ClientPackage(1)));
    QProcess holder;  // until its input closes, when the QProcess goes
    holder.start("sh", {"-c", "exec 9<\"$0\" && flock 9 && echo locked && cat", b.userDir() + "/log"});
    ASSERT_TRUE(holder.waitForReadyRead(kWaitTimeoutMs));

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
        return WriteFile(script, text, 0700) ? b_.run(b_.environment(), script) : RunResult();
    }

private:
    TestBundle& b_;
    bool mounted_ = false;
};

TEST(LauncherLimits, OutOfSpaceRollsBackByteForByteAndTheNextUpgradeFits)
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
    EXPECT_EQ(1, LinesWith(log, "[ERROR] launcher(").filter("Failed to upgrade package").size())
        << qPrintable(log);
    EXPECT_EQ(installed, Snapshot(b.userApp()));
    EXPECT_FALSE(QFileInfo::exists(b.userApp() + "_tmp"));
    EXPECT_TRUE(b.waitForClientEvent("term 1"));
    EXPECT_TRUE(b.waitForClientEvent("start 1", 2));  // the old client again

    // Nothing the failed run left stands in the way of a package that fits.
    ASSERT_TRUE(b.setBuild(2, ClientPackage(2, 1)));
    ASSERT_TRUE(home.run().exited_with_zero);
    EXPECT_EQ(dwtest::TreeOf(ClientPackage(2, 1)), Snapshot(b.userApp()));
    EXPECT_FALSE(QFileInfo::exists(b.userApp() + "_tmp"));
    EXPECT_TRUE(b.waitForClientEvent("term 1", 2));
    EXPECT_TRUE(b.waitForClientEvent("start 2"));
}

}  // namespace
