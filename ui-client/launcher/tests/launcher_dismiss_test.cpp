// The progress dialog on a real X server cannot be dismissed while the work
// runs: Escape and a window manager's close request, during the stop of the
// old client and again during the extraction, leave the dialog up and the
// upgrade running to its end.
#include <gtest/gtest.h>

#include <QProcess>
#include <QThread>

#include "launcher_testkit.h"
#include "x_display.h"

namespace {

const QByteArray kTitle = "Talvane Driftwell";

TEST(LauncherDismiss, EscapeAndCloseRequestLeaveTheUpgradeRunning)
{
    TestBundle b;
    ASSERT_TRUE(b.ok());
    XDisplay x;
    ASSERT_TRUE(x.start()) << "Xvfb did not come up";
    // The old client ignores SIGTERM: the stop keeps the dialog up for five
    // seconds before the extraction of a few thousand entries even begins.
    ASSERT_TRUE(b.install(1, ClientPackage(1, 0, ClientKind::IgnoresTerm)));
    const Package package = ClientPackage(2, 8000);
    ASSERT_TRUE(b.setBuild(2, package));

    const int offset = b.log().size();
    auto log = [&] { return b.log().mid(offset); };
    QProcess launcher;
    b.start(launcher, x.name());
    ASSERT_TRUE(launcher.waitForStarted(kWaitTimeoutMs));
    const auto ended = [&] { return launcher.state() != QProcess::Running; };

    unsigned long dialog = 0;
    dwtest::WaitFor([&] { return (dialog = x.viewableWindow(kTitle)) != 0 || ended(); }, kRunTimeoutMs);
    ASSERT_NE(0u, dialog) << "no dialog\n" << qPrintable(log());
    ASSERT_TRUE(b.waitForClientEvent("term 1"));
    EXPECT_TRUE(x.tryToDismiss(dialog));
    QThread::msleep(1000);
    EXPECT_EQ(dialog, x.viewableWindow(kTitle)) << "dismissed while the old client was being stopped";
    EXPECT_TRUE(LinesWith(log(), "extract package:").isEmpty()) << "the stop ended early";

    dwtest::WaitFor([&] { return !LinesWith(log(), "extract package:").isEmpty() || ended(); },
                    kRunTimeoutMs);
    EXPECT_TRUE(x.tryToDismiss(dialog));

    ASSERT_TRUE(launcher.waitForFinished(kRunTimeoutMs));
    EXPECT_TRUE(launcher.exitStatus() == QProcess::NormalExit && launcher.exitCode() == 0)
        << launcher.readAllStandardError().constData();
    EXPECT_TRUE(LinesWith(log(), "Failed to upgrade package").isEmpty());
    EXPECT_EQ(1, LinesWith(log(), "user installation is ready").size());
    EXPECT_TRUE(dwtest::TreeOf(package) == dwtest::Snapshot(b.userApp())) << "not the package's tree";
    EXPECT_TRUE(b.waitForClientEvent("start 2"));
}

}  // namespace
