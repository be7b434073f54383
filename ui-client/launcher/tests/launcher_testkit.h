// What the launcher's end-to-end tests share: a private copy of the built
// bundle with a home folder of its own, packages made with libarchive's
// writer, a shell-script client that records its starts and SIGTERMs, and
// runs of the real launcher executable.
#ifndef LAUNCHER_TESTKIT_H
#define LAUNCHER_TESTKIT_H

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// Generous: a loaded 2-core machine running sanitised builds.
const int kRunTimeoutMs = 180 * 1000;
const int kWaitTimeoutMs = 60 * 1000;

struct PackageEntry {
    QString path;  // relative, e.g. "Contents/MacOS/drift-ui"
    QByteArray data;
    int mode;
};

enum class ClientKind { ExitsOnTerm, IgnoresTerm };

// A client script of the given build: writes ~/.Driftwell/ui.pid, appends
// "start <build> <pid>" to ~/.Driftwell/clients.log, and "term <build> <pid>"
// when it gets SIGTERM (exiting or not, as kind says). It ends by itself after
// ten minutes, should a test leave it behind.
QByteArray ClientScript(int build, ClientKind kind = ClientKind::ExitsOnTerm);
// An INFO version record with that build number.
QByteArray InfoRecord(int build);
// A package of the given build: the client, filler_count small files, and the
// per-user INFO as the last entry (so a package cut short never claims its
// build). 2 + filler_count entries in all.
QList<PackageEntry> ClientPackage(int build, int filler_count = 0,
                                  ClientKind kind = ClientKind::ExitsOnTerm);
// Writes a tar archive (optionally through a compression filter such as
// "bzip2"); false on any libarchive failure.
bool WritePackage(const QString& file, const QList<PackageEntry>& entries,
                  const QString& filter = QString());

struct RunResult {
    int exit_code = -1;
    bool finished = false;  // false: it crashed or did not end in time
    QString out;
    QString err;
};

class TestBundle {
public:
    // Copies the built bundle (keeping links) and writes log/launcher.debug
    // raising launcher_debug, service_debug and extractor_debug to 7.
    TestBundle();
    // Kills every process still running from this test's folder (clients).
    ~TestBundle();

    bool ok() const { return ok_; }
    QString root() const { return dir_.path(); }
    QString bundle() const { return dir_.path() + "/Driftwell.app"; }
    QString executable() const { return bundle() + "/Contents/MacOS/launcher"; }
    QString home() const { return dir_.path() + "/home"; }
    QString userDir() const { return home() + "/.Driftwell"; }
    QString userApp() const { return userDir() + "/Driftwell.app"; }

    // The bundle's own INFO and package.
    bool setBuild(int build, const QList<PackageEntry>& package,
                  const QString& filter = QString());
    // Writes the package, then cuts it to bytes_kept (a damaged download).
    bool setDamagedBuild(int build, const QList<PackageEntry>& package, qint64 bytes_kept);

    // HOME, the offscreen platform and the C locale; callers adjust.
    QProcessEnvironment environment() const;
    RunResult run(const QProcessEnvironment& env, const QString& program = QString(),
                  const QString& working_dir = QString()) const;
    RunResult run() const { return run(environment()); }

    QString log() const;          // the whole launcher.log
    QStringList clientEvents() const;  // lines of clients.log
    // Waits until clients.log holds `line` at least `times` times.
    bool waitForClientEvent(const QString& line, int times = 1) const;

private:
    QTemporaryDir dir_;
    bool ok_ = false;
};

// The log lines that contain `needle`, in order.
QStringList LinesWith(const QString& text, const QString& needle);
// Path -> content of every file below dir (relative paths).
QMap<QString, QByteArray> FileTree(const QString& dir);
// The launcher's "progress N" values, in order.
QList<int> ProgressValues(const QString& log);

#endif
