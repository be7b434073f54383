#include "launcher_testkit.h"

#include <archive.h>
#include <archive_entry.h>
#include <signal.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QThread>

namespace {

void EnsureCoreApplication()
{
    // QProcess wants an application object; a test may already have made one.
    static int argc = 1;
    static char name[] = "launcher_test";
    static char* argv[] = {name, nullptr};
    if (QCoreApplication::instance() == nullptr)
        new QCoreApplication(argc, argv);
}

bool WriteFile(const QString& path, const QByteArray& data)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(data) == data.size();
}

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray ClientScript(int build, ClientKind kind)
{
    const QByteArray on_term = kind == ClientKind::ExitsOnTerm ? "; exit 0" : "";
    return "#!/bin/sh\n"
           "here=$(cd \"$(dirname \"$0\")/../../..\" && pwd)\n"
           "echo \"pid=$$\" > \"$here/ui.pid\"\n"
           "echo \"start " + QByteArray::number(build) + " $$\" >> \"$here/clients.log\"\n"
           "trap 'echo \"term " + QByteArray::number(build) + " $$\" >> \"$here/clients.log\""
           + on_term + "' TERM\n"
           "for i in $(seq 600); do sleep 1; done\n";
}

bool WritePackage(const QString& file, const QList<PackageEntry>& entries)
{
    struct archive* a = archive_write_new();
    bool ok = archive_write_set_format_pax_restricted(a) == ARCHIVE_OK
              && archive_write_open_filename(a, QFile::encodeName(file).constData()) == ARCHIVE_OK;
    for (const PackageEntry& e : entries) {
        struct archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, e.path.toUtf8().constData());
        archive_entry_set_filetype(entry, AE_IFREG);
        archive_entry_set_perm(entry, e.mode);
        archive_entry_set_size(entry, e.data.size());
        ok = ok && archive_write_header(a, entry) == ARCHIVE_OK
             && archive_write_data(a, e.data.constData(), e.data.size()) == e.data.size();
        archive_entry_free(entry);
    }
    ok = archive_write_close(a) == ARCHIVE_OK && ok;
    archive_write_free(a);
    return ok;
}

}  // namespace

QByteArray InfoRecord(int build)
{
    return "[Version]\nmajor_version=1\nminor_version=0\nbuild_version=" + QByteArray::number(build)
           + "\nicon_overlay_version=1\n";
}

QList<PackageEntry> ClientPackage(int build, int filler_count, ClientKind kind)
{
    QList<PackageEntry> entries;
    entries.append({"Contents/MacOS/drift-ui", ClientScript(build, kind), 0755});
    for (int i = 0; i < filler_count; ++i)
        entries.append({QString("Contents/Resources/filler-%1.txt").arg(i),
                        QByteArray("build ") + QByteArray::number(build) + " file "
                            + QByteArray::number(i) + "\n",
                        0644});
    entries.append({"Contents/Resources/INFO", InfoRecord(build), 0644});
    return entries;
}

TestBundle::TestBundle(const QString& home_name) : home_name_(home_name)
{
    EnsureCoreApplication();
    if (!dir_.isValid() || !QDir().mkpath(home()))
        return;
    // cp -a keeps the plug-in links and the launcher's mode.
    if (QProcess::execute("cp", {"-a", DW_BUNDLE_DIR, bundle()}) != 0)
        return;
    ok_ = WriteFile(bundle() + "/log/launcher.debug",
                    "launcher_debug = 7\nservice_debug = 7\nextractor_debug = 7\n");
}

TestBundle::~TestBundle()
{
    // Clients run detached from their launcher; only those started from this
    // test's folder are ours.
    const QByteArray mine = QFile::encodeName(dir_.path());
    const QStringList pids = QDir("/proc").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : pids) {
        bool number = false;
        const int pid = name.toInt(&number);
        if (!number || pid <= 0 || pid == getpid())
            continue;
        if (ReadFile("/proc/" + name + "/cmdline").contains(mine))
            kill(pid, SIGKILL);
    }
}

bool TestBundle::setBuild(int build, const QList<PackageEntry>& package)
{
    return WriteFile(bundle() + "/Contents/Resources/INFO", InfoRecord(build))
           && WritePackage(this->package(), package);
}

bool TestBundle::setPackage(const QList<PackageEntry>& package) const
{
    return WritePackage(this->package(), package);
}

bool TestBundle::put(const QString& path, const QByteArray& data)
{
    return WriteFile(path, data);
}

bool TestBundle::stopClient(int build) const
{
    const pid_t pid = QSettings(userDir() + "/ui.pid", QSettings::IniFormat).value("pid").toInt();
    return pid > 0 && kill(pid, SIGTERM) == 0 && waitForClientEvent(QString("term %1").arg(build));
}

QProcessEnvironment TestBundle::environment() const
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& key : env.keys()) {
        if (key == "LANG" || key == "LANGUAGE" || key.startsWith("LC_"))
            env.remove(key);
    }
    env.insert("HOME", home());
    env.insert("LANG", "C");
    env.insert("QT_QPA_PLATFORM", "offscreen");
    return env;
}

RunResult TestBundle::run(const QProcessEnvironment& env, const QString& program,
                          const QString& working_dir) const
{
    QProcess process;
    process.setProcessEnvironment(env);
    process.setWorkingDirectory(working_dir);
    process.start(program.isEmpty() ? executable() : program, QStringList());
    RunResult result;
    // One that does not end in time is killed with the QProcess.
    result.exited_with_zero = process.waitForFinished(kRunTimeoutMs)
                              && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.err = QString::fromUtf8(process.readAllStandardError());
    return result;
}

QString TestBundle::log() const
{
    return QString::fromUtf8(ReadFile(userDir() + "/log/launcher.log"));
}

bool TestBundle::waitForClientEvent(const QString& event, int times) const
{
    QElapsedTimer timer;
    timer.start();
    do {
        const QString events = QString::fromUtf8(ReadFile(userDir() + "/clients.log"));
        if (LinesWith(events, event + " ").size() >= times)
            return true;
        QThread::msleep(100);
    } while (timer.elapsed() < kWaitTimeoutMs);
    return false;
}

QMap<QString, QByteArray> FileTree(const QString& dir)
{
    QMap<QString, QByteArray> tree;
    QDirIterator it(dir, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        tree.insert(QDir(dir).relativeFilePath(path), ReadFile(path));
    }
    return tree;
}
