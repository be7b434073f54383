// The demo client as the launcher meets it: a real process in a bundle
// layout with a fresh home folder, stopped by SIGTERM.
#include <signal.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

struct StopCase {
    const char* name;
    const char* pid_file_at_stop;  // nullptr: leave the client's own line
};

class DriftUiStop : public ::testing::TestWithParam<StopCase> {};

bool WriteFile(const QString& path, const QByteArray& data)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(data) == data.size();
}

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_P(DriftUiStop, AnnouncesItselfAndEndsOnSigterm)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString bundle = dir.path() + "/Driftwell.app";
    const QString exe = bundle + "/Contents/MacOS/drift-ui";
    ASSERT_TRUE(QDir().mkpath(bundle + "/Contents/MacOS"));
    ASSERT_TRUE(QDir().mkpath(bundle + "/Contents/Resources"));
    ASSERT_TRUE(QFile::copy(DRIFT_UI_EXE, exe));
    ASSERT_TRUE(WriteFile(bundle + "/Contents/Resources/INFO",
                          "[Version]\nmajor_version=3\nminor_version=2\nbuild_version=4711\n"));

    // A home without .Driftwell: the client creates it.
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("HOME", dir.path() + "/home");
    env.insert("QT_QPA_PLATFORM", "offscreen");
    QProcess client;
    client.setProcessEnvironment(env);
    client.start(exe, QStringList());
    ASSERT_TRUE(client.waitForStarted(30000));
    // The client prints its line once the pid file is in place.
    while (!client.canReadLine() && client.waitForReadyRead(30000)) {
    }
    const QByteArray line = client.readLine();
    EXPECT_TRUE(line.contains("version 3.2 build 4711")) << line.constData();
    EXPECT_TRUE(line.contains(bundle.toUtf8())) << line.constData();

    const QString pid_file = dir.path() + "/home/.Driftwell/ui.pid";
    const QByteArray own_line = "pid=" + QByteArray::number(client.processId()) + "\n";
    EXPECT_EQ(own_line, ReadFile(pid_file));
    if (GetParam().pid_file_at_stop) {
        ASSERT_TRUE(WriteFile(pid_file, GetParam().pid_file_at_stop));
    }

    ASSERT_GT(client.processId(), 0);
    ASSERT_EQ(0, kill(static_cast<pid_t>(client.processId()), SIGTERM));
    ASSERT_TRUE(client.waitForFinished(30000));
    EXPECT_EQ(QProcess::NormalExit, client.exitStatus());
    EXPECT_EQ(0, client.exitCode());
    if (GetParam().pid_file_at_stop) {
        EXPECT_EQ(QByteArray(GetParam().pid_file_at_stop), ReadFile(pid_file));
    } else {
        EXPECT_FALSE(QFile::exists(pid_file));
    }
}

INSTANTIATE_TEST_SUITE_P(PidFile, DriftUiStop,
                         ::testing::Values(StopCase{"OwnFileIsRemoved", nullptr},
                                           StopCase{"FileOfANewerClientStays", "pid=999999\n"}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
