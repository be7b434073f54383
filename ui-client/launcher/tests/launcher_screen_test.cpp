// The progress dialog on a real X server (our own Xvfb): during an upgrade a
// window with the dialog's title is mapped, 400 pixels wide, and a screenshot
// of it shows text. The screenshot is kept in the build tree for a person to
// look at.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>

#include "launcher_testkit.h"
#include "x_display.h"

namespace {

// Dark text on a light background.
bool ShowsText(const QImage& image)
{
    int dark = 0;
    int light = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 96)
                ++dark;
            else
                ++light;
        }
    }
    return dark > 100 && light > 100;
}

TEST(LauncherScreen, ProgressDialogIsSeenDuringAnUpgrade)
{
    TestBundle b;
    ASSERT_TRUE(b.ok());
    XDisplay x;
    ASSERT_TRUE(x.start()) << "Xvfb did not come up";
    // A client that ignores SIGTERM keeps the upgrade, and so the dialog, busy
    // for five seconds while it is being stopped.
    ASSERT_TRUE(b.install(1, ClientPackage(1, 0, ClientKind::IgnoresTerm)));
    ASSERT_TRUE(b.setBuild(2, ClientPackage(2)));

    QProcess launcher;
    b.start(launcher, x.name());
    ASSERT_TRUE(b.waitForClientEvent("term 1"));

    // import finds the window by its title and fails while it is not mapped;
    // once mapped, the dialog may still be painting.
    ASSERT_TRUE(QDir().mkpath(DW_ARTIFACT_DIR));
    const QString shot = QString(DW_ARTIFACT_DIR) + "/progress_dialog.png";
    const QStringList import = {"-display", x.name(), "-window", "Talvane Driftwell", shot};
    QImage image;
    const auto shown = [&] {
        QFile::remove(shot);
        if (QProcess::execute("import", import) == 0)
            image = QImage(shot);
        return (!image.isNull() && ShowsText(image)) || launcher.state() != QProcess::Running;
    };
    dwtest::WaitFor(shown, kRunTimeoutMs);
    ASSERT_FALSE(image.isNull()) << "no mapped window titled Talvane Driftwell\n" << qPrintable(b.log());
    EXPECT_EQ(400, image.width());
    EXPECT_TRUE(ShowsText(image)) << "no text in " << qPrintable(shot);
    ASSERT_TRUE(launcher.waitForFinished(kRunTimeoutMs));
    EXPECT_EQ(0, launcher.exitCode());
}

}  // namespace
