// The launcher executable on a private bundle: installation, and the run that
// finds nothing to do. (Rollback: launcher_hostile_test.)
#include <gtest/gtest.h>

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
    ASSERT_TRUE(b.stopClient(3));
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

}  // namespace
