// One launcher at a time per bundle and user: many started at once install
// once, and the lock of a killed launcher does not block the next one.
#include <gtest/gtest.h>
#include <signal.h>

#include <memory>
#include <vector>

#include <QProcess>

#include "launcher_testkit.h"

namespace {

TEST(LauncherInstance, TwentyStartedAtOnceInstallExactlyOnce)
{
    TestBundle b;
    ASSERT_TRUE(b.ok());
    ASSERT_TRUE(b.setBuild(4, ClientPackage(4, 2)));

    std::vector<std::unique_ptr<QProcess>> launchers;
    for (int i = 0; i < 20; ++i) {
        launchers.emplace_back(new QProcess);
        launchers.back()->setProcessEnvironment(b.environment());
        launchers.back()->start(b.executable(), QStringList());
    }
    for (auto& p : launchers) {
        ASSERT_TRUE(p->waitForFinished(kRunTimeoutMs)) << qPrintable(p->readAllStandardError());
        EXPECT_EQ(QProcess::NormalExit, p->exitStatus());
        EXPECT_EQ(0, p->exitCode());
    }
    // All of them append to the same log.
    EXPECT_EQ(1, LinesWith(b.log(), "extract package:").size()) << qPrintable(b.log());
    EXPECT_EQ(InfoRecord(4), dwtest::ReadFile(b.userApp() + "/Contents/Resources/INFO"));
    EXPECT_TRUE(b.waitForClientEvent("start 4"));
}

TEST(LauncherInstance, LockOfAKilledLauncherIsTakenOver)
{
    TestBundle b;
    ASSERT_TRUE(b.ok());
    ASSERT_TRUE(b.install(1, ClientPackage(1, 0, ClientKind::IgnoresTerm)));

    // The installed client ignores SIGTERM, so the upgrade spends five seconds
    // stopping it, holding the lock all the while.
    ASSERT_TRUE(b.setBuild(2, ClientPackage(2)));
    QProcess holder;
    holder.setProcessEnvironment(b.environment());
    holder.start(b.executable(), QStringList());
    ASSERT_TRUE(holder.waitForStarted(kWaitTimeoutMs));
    EXPECT_TRUE(b.waitForClientEvent("term 1"));
    ASSERT_GT(holder.processId(), 0);
    ASSERT_EQ(0, kill(static_cast<pid_t>(holder.processId()), SIGKILL));
    ASSERT_TRUE(holder.waitForFinished(kWaitTimeoutMs));

    const int offset = b.log().size();
    const RunResult next = b.run();
    ASSERT_TRUE(next.exited_with_zero) << qPrintable(next.err);
    EXPECT_EQ(1, LinesWith(b.log().mid(offset), "extract package:").size()) << qPrintable(b.log());
    EXPECT_TRUE(b.waitForClientEvent("start 2"));
}

}  // namespace
