// Runs the real service the way the launcher does: from a bundle's
// Contents/MacOS (the tests copy this program there) with the home folder of
// $HOME. The logger writes to the file given first, with the thresholds of the
// bundle's log/launcher.debug. Runs as the user $DW_DRIVER_UID when that is
// set and not 0. Prints one result:
//   service_driver LOG decide        PreUpgrade + IsNeedUpgrade: 1 or 0
//   service_driver LOG upgrade       HandlePackageUpgrade: its result
//   service_driver LOG upgrade-losing-backup   the same, the record of backup
//                                    number 0 removed as the extraction starts
//   service_driver LOG stop          StopService: milliseconds it took
//   service_driver LOG launch        PostUpgrade: whether children of ours remain
//   service_driver LOG remove-aged   RemoveAgedFolders: nothing
//   service_driver LOG copy SRC DST  FSCopyPath: its result
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <QCoreApplication>
#include <QElapsedTimer>

#include "log.h"
#include "mac-service.h"

namespace {

// A backup damaged behind the service's back while it extracts.
class BackupLosingService : public MacService {
public:
    int ExtractPackage() override
    {
        unlink(VersionRecordPath(app_path + "_tmp").c_str());
        return Service::ExtractPackage();
    }
};

int Run(MacService& service, int argc, char** argv)
{
    const char* command = argv[2];
    if (strcmp(command, "decide") == 0) {
        service.PreUpgrade();
        printf("%d\n", service.IsNeedUpgrade() ? 1 : 0);
    } else if (strcmp(command, "upgrade") == 0 || strcmp(command, "upgrade-losing-backup") == 0) {
        printf("%d\n", service.HandlePackageUpgrade());
    } else if (strcmp(command, "stop") == 0) {
        QElapsedTimer timer;
        timer.start();
        service.StopService();
        printf("%lld\n", static_cast<long long>(timer.elapsed()));
    } else if (strcmp(command, "launch") == 0) {
        service.PostUpgrade();
        // A detached client is not ours, and the intermediate process is reaped.
        const bool none = waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD;
        printf("%s\n", none ? "no children" : "children");
    } else if (strcmp(command, "remove-aged") == 0) {
        service.RemoveAgedFolders();
    } else if (strcmp(command, "copy") == 0 && argc == 5) {
        printf("%d\n", service.FSCopyPath(argv[3], argv[4]));
    } else {
        fprintf(stderr, "unknown command '%s'\n", command);
        return 2;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        fprintf(stderr, "usage: %s LOG COMMAND [ARGS]\n", argv[0]);
        return 2;
    }
    const char* uid_text = getenv("DW_DRIVER_UID");
    const uid_t uid = uid_text == nullptr ? 0 : static_cast<uid_t>(atoi(uid_text));
    if (uid != 0 && (setgroups(0, nullptr) != 0 || setgid(uid) != 0 || setuid(uid) != 0))
        return 126;
    QCoreApplication app(argc, argv);
    const ustring level_file = Service::GetRootDriftwellInstallPath() + "/log/launcher.debug";
    if (Logger::Initialize(Logger::LOG_TYPE_FILE, argv[1], level_file, 3) != 0) {
        fprintf(stderr, "cannot open log '%s'\n", argv[1]);
        return 2;
    }
    // Owned as the launcher's worker owns it: made with new, deleted through Service.
    MacService* service = strcmp(argv[2], "upgrade-losing-backup") == 0 ? new BackupLosingService
                                                                        : new MacService;
    const int rc = Run(*service, argc, argv);
    delete static_cast<Service*>(service);
    fflush(stdout);
    Logger::Destroy();
    return rc;
}
