// What the launcher's end-to-end tests share: a private copy of the built
// bundle with a home folder of its own, packages made with libarchive's
// writer, a shell-script client that records its starts and SIGTERMs, and
// runs of the real launcher executable.
#ifndef DW_UI_CLIENT_LAUNCHER_TESTS_LAUNCHER_TESTKIT_H
#define DW_UI_CLIENT_LAUNCHER_TESTS_LAUNCHER_TESTKIT_H

#include <QByteArray>
#include <QList>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <vector>

#include "test_files_qt.h"

// Generous: a loaded 2-core machine running sanitised builds.
const int kRunTimeoutMs = 180 * 1000;
const int kWaitTimeoutMs = 60 * 1000;

using Package = std::vector<dwtest::Entry>;

enum class ClientKind { ExitsOnTerm, IgnoresTerm };

// An INFO version record with that build number.
QByteArray InfoRecord(int build);
// A package of the given build: a client script, filler_count small files and
// the per-user INFO as the last entry; 2 + filler_count entries in all. The
// client writes ~/.Driftwell/ui.pid and appends "start <build> <pid>" to
// ~/.Driftwell/clients.log, and "term <build> <pid>" on SIGTERM (exiting or
// not, as kind says). It ends by itself after ten minutes.
Package ClientPackage(int build, int filler_count = 0, ClientKind kind = ClientKind::ExitsOnTerm);

struct RunResult {
    bool exited_with_zero = false;  // not when it failed, crashed or did not end in time
    QString out;
    QString err;
};

class TestBundle {
public:
    // Copies the built bundle (keeping links) and raises launcher_debug,
    // service_debug and extractor_debug to 7 in its log/launcher.debug. The
    // home folder is given its name as is (any Unicode form, blanks).
    explicit TestBundle(const QString& home_name = "home");
    // Kills every process still running from this test's folder (clients).
    ~TestBundle();

    bool ok() const { return ok_; }
    QString folder() const { return dir_.path(); }  // the test's own, holding the rest
    QString bundle() const { return dir_.path() + "/Driftwell.app"; }
    QString executable() const { return bundle() + "/Contents/MacOS/launcher"; }
    QString package() const { return bundle() + "/Contents/Resources/package/driftwell.tpk"; }
    QString home() const { return dir_.path() + "/" + home_name_; }
    QString userDir() const { return home() + "/.Driftwell"; }
    QString userApp() const { return userDir() + "/Driftwell.app"; }

    // The bundle's own INFO and package.
    bool setBuild(int build, const Package& package) const;
    // That build cut off inside a large entry: an upgrade to it starts, then fails.
    bool setTruncatedBuild(int build) const;
    // That build installed by a run of the launcher, its client started.
    bool install(int build, const Package& package) const;
    // The pid in the client's pid file, 0 if none.
    qint64 clientPid() const;
    // Stops the running client (SIGTERM through its pid file) and waits for it.
    bool stopClient(int build) const;
    // The processes, zombies aside, whose command line names this test's folder.
    QList<qint64> processes() const;

    // HOME, the offscreen platform and LANG=C; callers adjust.
    QProcessEnvironment environment() const;
    RunResult run(const QProcessEnvironment& env, const QString& program = QString(),
                  const QString& working_dir = QString()) const;
    RunResult run() const { return run(environment()); }
    // Starts the launcher on that X display, as a desktop session does.
    void start(QProcess& launcher, const QString& display) const;

    QString log() const;  // the whole launcher.log
    // Waits until clients.log holds `event` (e.g. "start 2") `times` times.
    bool waitForClientEvent(const QString& event, int times = 1) const;

private:
    QTemporaryDir dir_;
    QString home_name_;
    bool ok_ = false;
};

// The lines of text that contain `needle`, in order.
inline QStringList LinesWith(const QString& text, const QString& needle)
{
    return text.split('\n').filter(needle);
}

#endif
