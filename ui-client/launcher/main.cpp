// The launcher's entry point: prepares the process, refuses a second instance,
// sets up log and language, and hands over to the Launcher. Exits with 0 in
// every case.
#include <clocale>
#include <cstdio>
#include <string>
#include <vector>

#include <QApplication>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QtGlobal>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif
#include <QTranslator>

#include "TalvLocale.h"
#include "drift-service.h"
#include "launcher.h"
#include "log.h"
#include "single_instance.h"
#include "strtable.h"
#include "user_folders.h"

namespace {

// Qt's 8-bit file names are UTF-8 here, and its UTF-8 codec turns bytes that
// are not UTF-8 into U+FFFD for good: a home or bundle folder so named would
// become another path. Latin-1 maps every byte to a character and back, so
// with it QFile::decodeName and encodeName keep any path exactly. Taken only
// when needed: otherwise Qt reads UTF-8 names as the text they are.
void KeepPathBytesThroughQt(const std::vector<std::string>& paths)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    for (const std::string& path : paths) {
        const QByteArray bytes(path.data(), static_cast<int>(path.size()));
        if (QString::fromUtf8(bytes).toUtf8() != bytes) {
            QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
            return;
        }
    }
#else
    // Qt 6 names files in UTF-8 only, with no codec to change: such a path
    // cannot reach Qt intact there.
    (void)paths;
#endif
}

}  // namespace

int main(int argc, char* argv[])
{
    setlocale(LC_ALL, "");
    // Before anything reads HOME, and before any other thread exists.
    SettleHome();
    qInitResources_texts();

    // From where the executable really is, before the application object
    // exists: argv[0] as typed may be a link elsewhere or a bare name found in
    // PATH. The bundle's own plug-ins replace Qt's whole search list.
    const std::string plugin_dir = ParentFolder(ExecutablePath(), 2) + "/Frameworks/plugins";
    // What Qt is given below: the plug-ins and the bundle above them, the
    // home folder (log, lock) and the lock's other folders.
    std::vector<std::string> paths = PrivateLockFolders(HomeFolder());
    paths.push_back(plugin_dir);
    KeepPathBytesThroughQt(paths);
    QCoreApplication::setLibraryPaths(QStringList(QFile::decodeName(plugin_dir.c_str())));
    printf("lib path = '%s'\n", plugin_dir.c_str());
    fflush(stdout);

    QApplication app(argc, argv);
    // The progress dialog is the only window; its hiding must not end the loop.
    app.setQuitOnLastWindowClosed(false);

    // Opened before the single-instance test, whose refusal is logged (at
    // debug level). Without a log folder the logger keeps writing to standard
    // error.
    const ustring debug_file = Service::GetRootDriftwellInstallPath() + "/log/launcher.debug";
    const ustring log_dir = Service::GetUserDriftwellInstallPath() + "/log";
    if (QDir().mkpath(QFile::decodeName(log_dir.c_str())))
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
