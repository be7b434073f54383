// One launcher at a time per bundle and user: many started at once install
// once, wherever the lock can or cannot go, and the lock of a killed launcher
// does not block the next one.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>

#include "launcher_testkit.h"
#include "named_rows.h"

namespace {

const uid_t kNobody = 65534;

// An empty file of the lock's name (a checksum of the executable and the user
// id) that another user made and nobody may read.
bool ForeignLock(const TestBundle& b, const QString& folder)
{
    const QByteArray id = QFile::encodeName(b.executable()) + "\n" + QByteArray::number(getuid());
    const QByteArray lock = QFile::encodeName(folder) + "/driftwell-launcher-" +
                            QCryptographicHash::hash(id, QCryptographicHash::Sha1).toHex().left(16) + ".lock";
    return dwtest::WriteFile(lock.toStdString(), "", 0) &&
           (getuid() != 0 || lchown(lock.constData(), kNobody, kNobody) == 0);
}

struct CrowdCase : dwtest::Row {
    const char* variable;  // set to a place in the test's folder, if any
    const char* place;     // that place's name; "": the package file
    int mode;              // of the folder made there (01777: with a foreign lock), 0: none
    bool as_user;          // run by a user other than root
};

const CrowdCase kCrowds[] = {
    {"default_places", nullptr, nullptr, 0, false},
    {"temporary_folder_missing_as_user", "TMPDIR", "missing", 0, true},
    {"temporary_folder_a_file", "TMPDIR", "", 0, false},
    {"foreign_lock_in_temporary_folder", "TMPDIR", "tmp", 01777, false},
    {"private_runtime_folder", "XDG_RUNTIME_DIR", "run", 0700, false},
    {"shared_runtime_folder_with_foreign_lock", "XDG_RUNTIME_DIR", "shared", 01777, false},
};

class LauncherCrowd : public testing::TestWithParam<CrowdCase> {};

TEST_P(LauncherCrowd, TwentyStartedAtOnceInstallExactlyOnce)
{
    const CrowdCase& c = GetParam();
    TestBundle b;
    ASSERT_TRUE(b.ok());
    ASSERT_TRUE(b.setBuild(4, ClientPackage(4, 2)));
    QProcessEnvironment env = b.environment();
    if (c.variable != nullptr) {
        const QString place = *c.place ? b.folder() + "/" + c.place : b.package();
        env.insert(c.variable, place);
        ASSERT_TRUE(c.mode == 0 || (QDir().mkpath(place) && chmod(QFile::encodeName(place), c.mode) == 0));
        ASSERT_TRUE(c.mode != 01777 || ForeignLock(b, place));
    }
    QString program = b.executable();
    QStringList args;
    // Root makes any folder; a user cannot make one in "/".
    if (c.as_user && getuid() == 0) {
        ASSERT_EQ(0, QProcess::execute("chown", {"-R", "-h", "65534:65534", b.folder()}));
        args = QStringList{"--reuid=65534", "--regid=65534", "--clear-groups", program};
        program = "setpriv";
    }

    QProcess launchers[20];
    for (QProcess& p : launchers) {
        p.setProcessEnvironment(env);
        p.start(program, args);
    }
    for (QProcess& p : launchers) {
        ASSERT_TRUE(p.waitForFinished(kRunTimeoutMs)) << qPrintable(p.readAllStandardError());
        EXPECT_EQ(QProcess::NormalExit, p.exitStatus());
        EXPECT_EQ(0, p.exitCode());
    }
    // All of them append to the same log.
    EXPECT_EQ(1, LinesWith(b.log(), "extract package:").size()) << qPrintable(b.log());
    EXPECT_EQ(InfoRecord(4), dwtest::ReadFile(b.userApp() + "/Contents/Resources/INFO"));
    EXPECT_TRUE(b.waitForClientEvent("start 4"));
}

INSTANTIATE_TEST_SUITE_P(Locks, LauncherCrowd, testing::ValuesIn(kCrowds), dwtest::RowName());

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
    holder.kill();
    ASSERT_TRUE(holder.waitForFinished(kWaitTimeoutMs));

    const int offset = b.log().size();
    const RunResult next = b.run();
    ASSERT_TRUE(next.exited_with_zero) << qPrintable(next.err);
    EXPECT_EQ(1, LinesWith(b.log().mid(offset), "extract package:").size()) << qPrintable(b.log());
    EXPECT_TRUE(b.waitForClientEvent("start 2"));
}

}  // namespace
