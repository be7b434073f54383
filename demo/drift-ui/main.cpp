// drift-ui: the demo client that the launcher installs into the per-user
// bundle and starts. It does what the launcher expects of a client: it
// announces itself in ~/.Driftwell/ui.pid ("pid=N"), shows its version, and
// ends cleanly on SIGTERM.
#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QSaveFile>
#include <QSettings>
#include <QSocketNotifier>
#include <QVBoxLayout>
#include <QWidget>

namespace {

int g_signal_pipe[2] = {-1, -1};

void OnTerminationSignal(int)
{
    // Only async-signal-safe work here: wake the event loop, which quits.
    const int saved_errno = errno;
    const char byte = 1;
    const ssize_t ignored = write(g_signal_pipe[1], &byte, 1);
    (void)ignored;
    errno = saved_errno;
}

bool InstallTerminationHandler()
{
    if (pipe2(g_signal_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    struct sigaction action = {};
    action.sa_handler = OnTerminationSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    return sigaction(SIGTERM, &action, nullptr) == 0 && sigaction(SIGINT, &action, nullptr) == 0 &&
           sigaction(SIGHUP, &action, nullptr) == 0;
}

struct Version {
    QString major, minor, build, icon_overlay;
};

Version ReadVersion(const QString& bundle)
{
    QSettings info(bundle + "/Contents/Resources/INFO", QSettings::IniFormat);
    info.beginGroup("Version");
    return {info.value("major_version").toString(), info.value("minor_version").toString(),
            info.value("build_version").toString(), info.value("icon_overlay_version").toString()};
}

QString PidFilePath()
{
    return QDir::homePath() + "/.Driftwell/ui.pid";
}

QByteArray PidLine()
{
    return "pid=" + QByteArray::number(static_cast<qint64>(getpid())) + "\n";
}

// Best effort: without the file the launcher cannot stop us before an upgrade,
// but the client itself works.
void WritePidFile()
{
    QDir().mkpath(QDir::homePath() + "/.Driftwell");
    // Written aside and renamed, so the launcher never reads half a line.
    QSaveFile file(PidFilePath());
    if (!file.open(QIODevice::WriteOnly) || file.write(PidLine()) < 0 || !file.commit())
        std::fprintf(stderr, "drift-ui: cannot write '%s'\n", qUtf8Printable(PidFilePath()));
}

// A newer client may have taken the file over; it is only ours to remove
// while it still names us.
void RemoveOwnPidFile()
{
    QFile file(PidFilePath());
    if (!file.open(QIODevice::ReadOnly))
        return;
    const bool ours = file.readAll() == PidLine();
    file.close();
    if (ours)
        file.remove();
}

// Without a display (or on Qt's windowless platforms) the client runs
// without a window, so it needs no platform plug-in at all.
bool HasDisplay()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.startsWith("offscreen") || platform.startsWith("minimal"))
        return false;
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

std::unique_ptr<QWidget> MakeWindow(const QString& bundle, const Version& version)
{
    auto window = std::make_unique<QWidget>();
    window->setWindowTitle("Driftwell");
    const QString icon = bundle + "/Contents/Resources/images/ico_72_driftwell.png";
    if (QFile::exists(icon))
        window->setWindowIcon(QIcon(icon));
    auto* layout = new QVBoxLayout(window.get());
    auto* title = new QLabel("<b>Driftwell</b> demo client");
    auto* detail = new QLabel(QString("Version %1.%2, build %3 (icon overlay %4)\nprocess %5\n%6")
                                  .arg(version.major, version.minor, version.build, version.icon_overlay)
                                  .arg(getpid())
                                  .arg(bundle));
    detail->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(title);
    layout->addWidget(detail);
    window->resize(window->sizeHint().expandedTo(QSize(360, 120)));
    return window;
}

}  // namespace

int main(int argc, char** argv)
{
    if (!InstallTerminationHandler()) {
        std::perror("drift-ui: signal handler");
        return 1;
    }
    const bool windowed = HasDisplay();
    std::unique_ptr<QCoreApplication> app(windowed ? new QApplication(argc, argv)
                                                   : new QCoreApplication(argc, argv));
    QSocketNotifier on_signal(g_signal_pipe[0], QSocketNotifier::Read);
    QObject::connect(&on_signal, &QSocketNotifier::activated, app.get(), [&app] {
        char drain[16];
        while (read(g_signal_pipe[0], drain, sizeof drain) > 0) {
        }
        app->quit();
    });

    const QString bundle = QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../..");
    const Version version = ReadVersion(bundle);
    WritePidFile();
    std::printf("drift-ui: pid %d, version %s.%s build %s, bundle '%s'\n", static_cast<int>(getpid()),
                qUtf8Printable(version.major), qUtf8Printable(version.minor), qUtf8Printable(version.build),
                qUtf8Printable(bundle));
    std::fflush(stdout);

    std::unique_ptr<QWidget> window;
    if (windowed) {
        window = MakeWindow(bundle, version);
        window->show();
    }
    const int status = app->exec();
    window.reset();
    RemoveOwnPidFile();
    return status;
}
