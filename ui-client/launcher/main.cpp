// The launcher's entry point: prepares the process, refuses a second instance,
// sets up log and language, and hands over to the Launcher. Exits with 0 in
// every case.
#include <clocale>
#include <cstdio>

#include <QApplication>
#include <QDir>
#include <QStringList>
#include <QTranslator>

#include "TalvLocale.h"
#include "drift-service.h"
#include "launcher.h"
#include "log.h"
#include "single_instance.h"
#include "strtable.h"

int main(int argc, char* argv[])
{
    setlocale(LC_ALL, "");
    qInitResources_texts();

    // From argv[0] as given, before the application object exists: the
    // bundle's own plug-ins replace Qt's whole search list.
    const QString argv0 = (argc > 0 && argv[0] != nullptr) ? QString::fromUtf8(argv[0]) : QString();
    const QString plugin_dir = QDir::cleanPath(argv0 + QStringLiteral("/../../Frameworks/plugins"));
    QCoreApplication::setLibraryPaths(QStringList(plugin_dir));
    printf("lib path = '%s'\n", plugin_dir.toUtf8().constData());
    fflush(stdout);

    QApplication app(argc, argv);
    // The progress dialog is the only window; its hiding must not end the loop.
    app.setQuitOnLastWindowClosed(false);

    // Opened before the single-instance test, whose refusal is logged (at
    // debug level). Without a log folder the logger keeps writing to standard
    // error.
    const ustring debug_file = Service::GetRootDriftwellInstallPath() + "/log/launcher.debug";
    const ustring log_dir = Service::GetUserDriftwellInstallPath() + "/log";
    if (QDir().mkpath(QString::fromUtf8(log_dir.c_str_utf8())))
        Logger::Initialize(Logger::LOG_TYPE_FILE, log_dir + "/launcher.log", debug_file, 50);

    SingleInstance instance;
    if (instance.isRunning()) {
        Logger::LogMsg(Logger::LOG_DEBUG, "launcher_debug",
                       "[DEBUG] main(%d): app has already launched, return\n", __LINE__);
        return 0;
    }

    // A missing or empty catalogue leaves the string table's English texts.
    QTranslator translator(nullptr);
    const QString catalogue = QStringLiteral(":/") + TalvLocale::getDefaultLanguage() + QStringLiteral(".qm");
    if (translator.load(catalogue) && !translator.isEmpty())
        QCoreApplication::installTranslator(&translator);

    StrTable::InitStrTable();

    Launcher* launcher = new Launcher();
    launcher->Run();
    launcher->Start();

    int result = app.exec();
    // Only LaunchDone ends the loop for good. Should anything else end it
    // early, the dialog and the progress keep being served until the flow is
    // done, rather than the launcher being torn down under its worker.
    while (!launcher->IsDone())
        result = app.exec();
    delete launcher;
    return result;
}
