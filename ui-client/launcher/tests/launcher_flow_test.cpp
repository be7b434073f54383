// The launcher executable on a private bundle: installation, the run that
// finds nothing to do, rollback from a damaged package, and an upgrade that
// stops the running client.
#include <gtest/gtest.h>
#include <signal.h>

#include <QDir>
#include <QRegularExpression>

#include "launcher_testkit.h"

namespace {

const char kShowDialog[] = "show progress dialog";

TEST(LauncherFlow, InstallsOnFirstStartAndLaterOnlyStartsTheClient)
{
    TestBundle b;
    ASSERT_TRUE(b.ok());
    const Package package = ClientPackage(3, 2);
    ASSERT_TRUE(b.setBuild(3, package));

    const RunResult first = b.run();
    ASSERT_TRUE(first.exited_with_zero) << qPrintable(first.err);
    EXPECT_EQ(dwtest::TreeOf(package), dwtest::Snapshot(b.userApp()));
    const QString log = b.log();
    EXPECT_EQ(1, LinesWith(log, kShowDialog).size()) << qPrintable(log);
    // Four entries; the worker's own 100 after a successful upgrade changes
    // nothing shown, so it is not logged again.
    const QStringList progress = LinesWith(log, "] launcher(")
                                     .filter("): progress ")
                                     .replaceInStrings(QRegularExpression("^.*: "), "");
    EXPECT_EQ(QStringList({"progress 25", "progress 50", "progress 75", "progress 100"}), progress);
    ASSERT_TRUE(b.waitForClientEvent("start 3"));

    // The client is gone, its pid file stale: nothing to upgrade, so no dialog,
    // but the client starts again and the aged folder goes anyway. Started as
    // ./launcher from its own folder, the plug-in folder is still the real one.
    const pid_t pid = static_cast<pid_t>(b.clientPid());
    ASSERT_GT(pid, 0);
    ASSERT_EQ(0, kill(pid, SIGTERM));
    ASSERT_TRUE(b.waitForClientEvent("term 3"));
    ASSERT_TRUE(QDir().mkpath(b.userDir() + "/app/old/Contents"));
    const RunResult second = b.run(b.environment(), "./launcher", b.bundle() + "/Contents/MacOS");
    ASSERT_TRUE(second.exited_with_zero) << qPrintable(second.err);
    EXPECT_TRUE(second.out.startsWith("lib path = '" + b.bundle() + "/Contents/Frameworks/plugins'\n"))
        << qPrintable(second.out);
    const QString again = b.log().mid(log.size());
    EXPECT_EQ(1, LinesWith(again, "no need to upgrade").size()) << qPrintable(again);
    EXPECT_TRUE(LinesWith(again, kShowDialog).isEmpty());
    EXPECT_FALSE(QDir(b.userDir() + "/app").exists());
    EXPECT_TRUE(b.waitForClientEvent("start 3", 2));
}

TEST(LauncherFlow, DamagedPackageRollsBackThenAGoodOneUpgrades)
{
    TestBundle b;
    ASSERT_TRUE(b.ok());
    ASSERT_TRUE(b.install(1, ClientPackage(1, 1)));
    const dwtest::Tree installed = dwtest::Snapshot(b.userApp());

    // Build 2, cut inside a large entry: the new client is already on disk
    // when extraction fails, so only a real rollback brings back the old one.
    ASSERT_TRUE(b.setTruncatedBuild(2));
    ASSERT_TRUE(QDir().mkpath(b.userDir() + "/app/old"));
    const int offset = b.log().size();
    const RunResult failed = b.run();
    ASSERT_TRUE(failed.exited_with_zero) << qPrintable(failed.err);
    const QString log = b.log().mid(offset);
    EXPECT_EQ(1, LinesWith(log, "[ERROR] launcher(").filter("Failed to upgrade package").size())
        << qPrintable(log);
    EXPECT_EQ(installed, dwtest::Snapshot(b.userApp()));
    EXPECT_FALSE(QDir(b.userApp() + "_tmp").exists());
    EXPECT_FALSE(QDir(b.userDir() + "/app").exists());  // on the failure path too
    EXPECT_TRUE(b.waitForClientEvent("term 1"));
    EXPECT_TRUE(b.waitForClientEvent("start 1", 2));  // the old client again

    ASSERT_TRUE(b.setBuild(2, ClientPackage(2, 1)));
    const RunResult upgraded = b.run();
    ASSERT_TRUE(upgraded.exited_with_zero) << qPrintable(upgraded.err);
    EXPECT_EQ(InfoRecord(2), dwtest::ReadFile(b.userApp() + "/Contents/Resources/INFO"));
    EXPECT_FALSE(QDir(b.userApp() + "_tmp").exists());
    EXPECT_TRUE(b.waitForClientEvent("term 1", 2));
    EXPECT_TRUE(b.waitForClientEvent("start 2"));
}

}  // namespace
