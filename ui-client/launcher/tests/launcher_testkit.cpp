#include "launcher_testkit.h"

#include <signal.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>

namespace {

std::string ClientScript(int build, ClientKind kind)
{
    // The pid file whole, by a rename: whatever held the name (a FIFO) is replaced.
    return QString("#!/bin/sh\n"
                   "here=$(cd \"$(dirname \"$0\")/../../..\" && pwd)\n"
                   "echo \"pid=$$\" > \"$here/ui.pid.$$\" && mv -f \"$here/ui.pid.$$\" \"$here/ui.pid\"\n"
                   "echo \"start %1 $$\" >> \"$here/clients.log\"\n"
                   "trap 'echo \"term %1 $$\" >> \"$here/clients.log\"%2' TERM\n"
                   "for i in $(seq 600); do sleep 1; done\n")
        .arg(build)
        .arg(kind == ClientKind::ExitsOnTerm ? "; exit 0" : "")
        .toStdString();
}

}  // namespace

QByteArray InfoRecord(int build)
{
    return "[Version]\nmajor_version=1\nminor_version=0\nbuild_version=" + QByteArray::number(build) +
           "\nicon_overlay_version=1\n";
}

Package ClientPackage(int build, int filler_count, ClientKind kind)
{
    Package entries = {{dwtest::Entry::File, "Contents/MacOS/drift-ui", ClientScript(build, kind), 0755}};
    for (int i = 0; i < filler_count; ++i)
        entries.push_back({dwtest::Entry::File, "Contents/Resources/filler-" + std::to_string(i) + ".txt",
                           "build " + std::to_string(build) + " file " + std::to_string(i) + "\n"});
    entries.push_back({dwtest::Entry::File, "Contents/Resources/INFO", InfoRecord(build).toStdString()});
    return entries;
}

TestBundle::TestBundle(const QString& home_name) : home_name_(home_name)
{
    dwtest::EnsureCoreApplication();  // for QProcess
    // cp -a keeps the plug-in links and the launcher's mode.
    ok_ = dir_.isValid() && QDir().mkpath(home()) &&
          QProcess::execute("cp", {"-a", DW_BUNDLE_DIR, bundle()}) == 0 &&
          dwtest::WriteFile(bundle() + "/log/launcher.debug",
                            "launcher_debug = 7\nservice_debug = 7\nextractor_debug = 7\n");
}

TestBundle::~TestBundle()
{
    // Clients run detached from their launcher; only those started from this
    // test's folder are ours.
    for (const qint64 pid : processes())
        kill(static_cast<pid_t>(pid), SIGKILL);
}

bool TestBundle::setBuild(int build, const Package& package) const
{
    return dwtest::WriteFile(bundle() + "/Contents/Resources/INFO", InfoRecord(build)) &&
           dwtest::WriteArchive(QFile::encodeName(this->package()).toStdString(), package);
}

bool TestBundle::setTruncatedBuild(int build) const
{
    Package entries = ClientPackage(build);
    entries.insert(entries.begin() + 1,
                   {dwtest::Entry::File, "Contents/Resources/large.bin", std::string(256 * 1024, 'x')});
    return setBuild(build, entries) && QFile(package()).resize(64 * 1024);
}

bool TestBundle::install(int build, const Package& package) const
{
    return setBuild(build, package) && run().exited_with_zero &&
           waitForClientEvent(QString("start %1").arg(build));
}

qint64 TestBundle::clientPid() const
{
    return QSettings(userDir() + "/ui.pid", QSettings::IniFormat).value("pid").toLongLong();
}

bool TestBundle::stopClient(int build) const
{
    const qint64 pid = clientPid();
    return pid > 0 && kill(static_cast<pid_t>(pid), SIGTERM) == 0 &&
           waitForClientEvent(QString("term %1").arg(build));
}

QList<qint64> TestBundle::processes() const
{
    const QByteArray mine = QFile::encodeName(dir_.path());
    QList<qint64> pids;
    for (const QString& name : QDir("/proc").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const qint64 pid = name.toLongLong();
        if (pid > 0 && pid != getpid() && !dwtest::ProcessGone(static_cast<pid_t>(pid)) &&
            dwtest::ReadFile("/proc/" + name + "/cmdline").contains(mine))
            pids.append(pid);
    }
    return pids;
}

QProcessEnvironment TestBundle::environment() const
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& key : env.keys().filter(QRegularExpression("^(LANG|LANGUAGE|LC_.*)$")))
        env.remove(key);
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
    // One that does not end in time is killed with the QProcess.
    const bool zero = process.waitForFinished(kRunTimeoutMs) &&
                      process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return {zero, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void TestBundle::start(QProcess& launcher, const QString& display) const
{
    QProcessEnvironment env = environment();
    env.remove("QT_QPA_PLATFORM");
    env.insert("DISPLAY", display);
    // No session bus here: libdbus would fork dbus-launch from a Qt thread,
    // and a fork while another thread holds the sanitizer's allocator lock
    // leaves the child hung. An address that refuses at once avoids the fork.
    env.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/driftwell-test-bus");
    launcher.setProcessEnvironment(env);
    launcher.start(executable(), QStringList());
}

QString TestBundle::log() const
{
    return QString::fromUtf8(dwtest::ReadFile(userDir() + "/log/launcher.log"));
}

bool TestBundle::waitForClientEvent(const QString& event, int times) const
{
    const auto seen = [&] {
        return LinesWith(QString::fromUtf8(dwtest::ReadFile(userDir() + "/clients.log")), event + " ")
                   .size() >= times;
    };
    return dwtest::WaitFor(seen, kWaitTimeoutMs);
}
