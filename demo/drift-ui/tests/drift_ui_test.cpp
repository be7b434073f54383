// The demo client as the launcher meets it: real processes with a fresh home
// folder, announcing themselves in ~/.Driftwell/ui.pid and stopped by SIGTERM.
#include <gtest/gtest.h>

#include <memory>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "test_files_qt.h"

namespace {

using dwtest::ReadFile;

QByteArray PidLine(const QProcess& client)
{
    return "pid=" + QByteArray::number(client.processId()) + "\n";
}

TEST(DriftUi, WritesItsPidFileAndEndsOnSigtermRemovingOnlyItsOwnFile)
{
    QTemporaryDir home;
    ASSERT_TRUE(home.isValid());
    const QString pid_file = home.path() + "/.Driftwell/ui.pid";
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("HOME", home.path());  // without .Driftwell: the client creates it
    env.insert("QT_QPA_PLATFORM", "offscreen");
    // The client prints its line once the pid file is in place.
    auto start = [&env] {
        auto client = std::make_unique<QProcess>();
        client->setProcessEnvironment(env);
        client->start(DRIFT_UI_EXE, QStringList());
        while (!client->canReadLine() && client->waitForReadyRead(30000)) {
        }
        return client;
    };
    auto stop = [](QProcess& client) {
        client.terminate();  // SIGTERM
        ASSERT_TRUE(client.waitForFinished(30000));
        EXPECT_EQ(QProcess::NormalExit, client.exitStatus());
        EXPECT_EQ(0, client.exitCode());
    };

    const auto older = start();
    EXPECT_EQ(PidLine(*older), ReadFile(pid_file));
    const auto newer = start();
    EXPECT_EQ(PidLine(*newer), ReadFile(pid_file));
    stop(*older);
    EXPECT_EQ(PidLine(*newer), ReadFile(pid_file));  // not the older one's to remove
    stop(*newer);
    EXPECT_FALSE(QFile::exists(pid_file));
}

}  // namespace
