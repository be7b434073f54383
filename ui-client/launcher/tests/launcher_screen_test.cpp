// The progress dialog on a real X server (our own Xvfb): it is mapped during
// an upgrade, titled, 400 pixels wide, and a screenshot of it shows text. The
// screenshot is kept in the build tree for a person to look at.
#include <gtest/gtest.h>

#include <QColor>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QRect>
#include <QRegularExpression>
#include <QSet>
#include <QThread>

#include "launcher_testkit.h"

namespace {

const char kTitle[] = "Talvane Driftwell";

// An X server of our own. It picks a free display number itself and tells
// us through -displayfd, so parallel tests cannot race for one.
class Xvfb {
public:
    bool start()
    {
        server_.setStandardErrorFile(QProcess::nullDevice());
        server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
        QElapsedTimer timer;
        timer.start();
        while (!server_.canReadLine() && timer.elapsed() < kWaitTimeoutMs)
            server_.waitForReadyRead(1000);
        bool number = false;
        const int n = QString::fromLatin1(server_.readLine()).trimmed().toInt(&number);
        if (!number)
            return false;
        display_ = QString(":%1").arg(n);
        while (timer.elapsed() < kWaitTimeoutMs) {
            if (Answers())
                return true;
            QThread::msleep(200);
        }
        return false;
    }
    void stop()
    {
        if (server_.state() != QProcess::NotRunning) {
            server_.terminate();
            if (!server_.waitForFinished(kWaitTimeoutMs)) {
                server_.kill();
                server_.waitForFinished(kWaitTimeoutMs);
            }
        }
    }
    ~Xvfb() { stop(); }
    // Whether the server accepts connections yet.
    bool Answers() const
    {
        QProcess probe;
        probe.setStandardOutputFile(QProcess::nullDevice());
        probe.setStandardErrorFile(QProcess::nullDevice());
        probe.start("xdpyinfo", {"-display", display_});
        return probe.waitForFinished(kWaitTimeoutMs) && probe.exitStatus() == QProcess::NormalExit
               && probe.exitCode() == 0;
    }
    QString display() const { return display_; }

private:
    QProcess server_;
    QString display_;
};

QString Output(const QString& program, const QStringList& args)
{
    QProcess p;
    p.start(program, args);
    p.waitForFinished(kWaitTimeoutMs);
    return QString::fromLocal8Bit(p.readAllStandardOutput());
}

// The mapped window's rectangle in root coordinates, or an empty one.
QRect MappedWindow(const QString& display)
{
    const QString info = Output("xwininfo", {"-display", display, "-name", kTitle});
    if (!info.contains("Map State: IsViewable"))
        return QRect();
    auto field = [&info](const char* name) {
        const QRegularExpression re(QString("%1:\\s+(-?\\d+)").arg(name));
        return re.match(info).captured(1).toInt();
    };
    return QRect(field("Absolute upper-left X"), field("Absolute upper-left Y"), field("Width"),
                 field("Height"));
}

// Incompressible data behind bzip2: decoding it twice (count, then extract)
// keeps the dialog up for a few seconds.
QList<PackageEntry> LargePackage(int build)
{
    QList<PackageEntry> entries = ClientPackage(build);
    for (int i = 0; i < 16; ++i) {
        QByteArray data(512 * 1024, Qt::Uninitialized);
        QRandomGenerator::global()->fillRange(reinterpret_cast<quint32*>(data.data()),
                                              data.size() / 4);
        entries.insert(1, {QString("Contents/Resources/data-%1.bin").arg(i), data, 0644});
    }
    return entries;
}

// A third of the way through extraction: the earlier values are on screen by
// now, and the rest of the package still takes a while.
bool MidwayProgressShown(const TestBundle& b, int log_offset)
{
    for (int value : ProgressValues(b.log().mid(log_offset))) {
        if (value >= 33 && value < 100)
            return true;
    }
    return false;
}

TEST(LauncherScreen, ProgressDialogIsSeenDuringAnUpgrade)
{
    TestBundle b;
    ASSERT_TRUE(b.ok());
    Xvfb x;
    ASSERT_TRUE(x.start()) << "Xvfb did not come up";
    ASSERT_TRUE(b.setBuild(1, ClientPackage(1)));
    ASSERT_EQ(0, b.run().exit_code);
    ASSERT_TRUE(b.setBuild(2, LargePackage(2), "bzip2"));

    QProcessEnvironment env = b.environment();
    env.remove("QT_QPA_PLATFORM");
    env.insert("DISPLAY", x.display());
    env.insert("LANG", "de_DE.UTF-8");
    const int log_offset = b.log().size();
    QProcess launcher;
    launcher.setProcessEnvironment(env);
    launcher.start(b.executable(), QStringList());
    ASSERT_TRUE(launcher.waitForStarted(kWaitTimeoutMs));

    QRect window;
    QElapsedTimer timer;
    timer.start();
    while (window.isEmpty() && launcher.state() == QProcess::Running
           && timer.elapsed() < kRunTimeoutMs) {
        window = MappedWindow(x.display());
        QThread::msleep(50);
    }
    ASSERT_FALSE(window.isEmpty()) << "no mapped window titled " << kTitle << "\n"
                                   << qPrintable(b.log());
    EXPECT_EQ(400, window.width());
    while (!MidwayProgressShown(b, log_offset) && launcher.state() == QProcess::Running
           && timer.elapsed() < kRunTimeoutMs)
        QThread::msleep(20);

    ASSERT_TRUE(QDir().mkpath(DW_ARTIFACT_DIR));
    const QString shot = QString(DW_ARTIFACT_DIR) + "/progress_dialog.png";
    QFile::remove(shot);
    EXPECT_EQ(0, QProcess::execute("import", {"-display", x.display(), "-window", "root", shot}));
    ASSERT_TRUE(launcher.waitForFinished(kRunTimeoutMs));
    EXPECT_EQ(0, launcher.exitCode());
    EXPECT_EQ(1, LinesWith(b.log(), "label 'Driftwell ist bereit.'").size()) << qPrintable(b.log());

    const QImage image = QImage(shot).copy(window);
    ASSERT_FALSE(image.isNull()) << qPrintable(shot);
    QSet<QRgb> colours;
    int dark = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int xx = 0; xx < image.width(); ++xx) {
            const QRgb pixel = image.pixel(xx, y);
            colours.insert(pixel);
            dark += qGray(pixel) < 96 ? 1 : 0;
        }
    }
    EXPECT_GT(colours.size(), 1);
    EXPECT_GT(dark, 100) << "no text in " << qPrintable(shot);
}

}  // namespace
