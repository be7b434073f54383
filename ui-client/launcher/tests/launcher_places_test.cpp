// Wherever the launcher is started from and whatever HOME says, it finds the
// plug-ins of its own bundle, upgrades the real per-user copy in place and
// starts the client. Paths that are not UTF-8 are held as Latin-1 in this
// program, which keeps their bytes through QString.
#include <gtest/gtest.h>
#include <unistd.h>

#include <functional>
#include <string>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtGlobal>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

#include "launcher_testkit.h"
#include "named_rows.h"

namespace {

const char kLatin1Jose[] = "Jos\xe9";  // not UTF-8

struct Start {
    QProcessEnvironment env;
    QString executable;  // where the launcher really is
    QString program;     // how it is started; the executable when empty
    QString working_dir;
};

struct PlaceCase : dwtest::Row {
    std::function<bool(TestBundle&, Start&)> setup;
    const char* home = "home";  // the home folder's name, bytes
    bool needs_root = false;    // for a password database of its own
};

QString Script(const TestBundle& b, const QByteArray& body)
{
    const QString path = b.folder() + "/start.sh";
    return dwtest::WriteFile(path, "#!/bin/sh\n" + body + "\n", 0755) ? path : QString();
}

// The launcher in a mount namespace of its own, where the password database
// names the test's home folder as this account's; HOME set to that (unset
// when null).
std::function<bool(TestBundle&, Start&)> AccountHome(const char* home)
{
    return [home](TestBundle& b, Start& s) {
        if (home == nullptr)
            s.env.remove("HOME");
        else
            s.env.insert("HOME", home);
        // This account's line up to its home folder.
        const QRegularExpression account(QString("^((?:[^:\n]*:){2}%1:(?:[^:\n]*:){2})[^:\n]*").arg(getuid()),
                                         QRegularExpression::MultilineOption);
        QString passwd = QFile::decodeName(dwtest::ReadFile(QString("/etc/passwd")));
        passwd.replace(account, "\\1" + b.home());
        const QString copy = b.folder() + "/passwd";
        s.program = Script(
            b, "exec unshare --mount sh -c 'mount --bind \"$1\" /etc/passwd && exec \"$2\"' sh '" +
                   QFile::encodeName(copy) + "' '" + QFile::encodeName(b.executable()) + "'");
        return dwtest::WriteFile(copy, QFile::encodeName(passwd)) && !s.program.isEmpty();
    };
}

const PlaceCase kCases[] = {
    {"symlink_in_another_folder",
     [](TestBundle& b, Start& s) {
         s.program = b.folder() + "/bin/driftwell";
         return QDir().mkpath(b.folder() + "/bin") && QFile::link(b.executable(), s.program);
     }},
    {"bare_name_in_path",
     [](TestBundle& b, Start& s) {
         s.env.insert("PATH", QFileInfo(b.executable()).path() + ":" + s.env.value("PATH"));
         s.program = Script(b, "exec launcher");
         return !s.program.isEmpty();
     }},
    {"bundle_under_non_utf8_folder",
     [](TestBundle& b, Start& s) {
         const QString folder = b.folder() + "/" + QFile::decodeName(kLatin1Jose);
         s.executable = folder + "/Driftwell.app/Contents/MacOS/launcher";
         s.program = s.executable;
         return QDir().mkpath(folder) && QDir().rename(b.bundle(), folder + "/Driftwell.app");
     }},
    {"home_unset", AccountHome(nullptr), "home", true},
    {"home_empty", AccountHome(""), "home", true},
    {"home_relative",
     [](TestBundle& b, Start& s) {
         s.env.insert("HOME", "home");
         s.working_dir = b.folder();
         return true;
     }},
    {"home_non_utf8", [](TestBundle&, Start&) { return true; }, kLatin1Jose},
};

class LauncherPlaces : public testing::TestWithParam<PlaceCase> {};

TEST_P(LauncherPlaces, UpgradesTheRealCopyAndStartsTheClient)
{
    const PlaceCase& c = GetParam();
    if (c.needs_root && getuid() != 0)
        GTEST_SKIP() << "a password database of its own needs root";
    if (QT_VERSION >= QT_VERSION_CHECK(6, 0, 0) && std::string(c.name).find("non_utf8") != std::string::npos)
        GTEST_SKIP() << "Qt 6 names files in UTF-8 only";
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
#endif
    TestBundle b(QFile::decodeName(c.home));
    ASSERT_TRUE(b.ok());
    // An older copy, as a launcher installed it earlier.
    for (const dwtest::Entry& e : ClientPackage(1))
        ASSERT_TRUE(dwtest::WriteFile(b.userApp() + "/" + QFile::decodeName(e.name.c_str()),
                                      QByteArray::fromStdString(e.data), e.mode < 0 ? 0644 : e.mode));
    ASSERT_TRUE(b.setBuild(2, ClientPackage(2)));
    Start s{b.environment(), b.executable(), QString(), QString()};
    ASSERT_TRUE(c.setup(b, s));

    const RunResult r = b.run(s.env, s.program, s.working_dir);
    EXPECT_TRUE(r.exited_with_zero) << qPrintable(r.err);
    EXPECT_EQ(dwtest::TreeOf(ClientPackage(2)), dwtest::Snapshot(b.userApp())) << qPrintable(b.log());
    EXPECT_TRUE(b.waitForClientEvent("start 2"));
    // A plain upgrade: nothing met on the way that deserves a word.
    EXPECT_TRUE(LinesWith(b.log(), "[WARNING]").isEmpty() && LinesWith(b.log(), "[ERROR]").isEmpty())
        << qPrintable(b.log());
    const QString plugins = QDir::cleanPath(s.executable + "/../../Frameworks/plugins");
    EXPECT_TRUE(r.out.startsWith("lib path = '" + QString::fromUtf8(QFile::encodeName(plugins)) + "'\n"))
        << qPrintable(r.out);
}

INSTANTIATE_TEST_SUITE_P(Starts, LauncherPlaces, testing::ValuesIn(kCases), dwtest::RowName());

}  // namespace
