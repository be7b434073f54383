// Runs the real service the way the launcher does: from a bundle's
// Contents/MacOS (the tests copy this program there) with the home folder of
// $HOME. The logger writes to the file given first, with the thresholds of the
// bundle's log/launcher.debug.
//   service_driver LOG decide        PreUpgrade + IsNeedUpgrade
//   service_driver LOG upgrade       HandlePackageUpgrade
//   service_driver LOG stop          StopService
//   service_driver LOG launch        PostUpgrade, then whether children remain
//   service_driver LOG remove-aged   RemoveAgedFolders
//   service_driver LOG copy SRC DST  FSCopyPath
//   service_driver LOG paths         the install location getters
// Results go to standard output as "key=value" lines.
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>

#include <QCoreApplication>

#include "log.h"
#include "mac-service.h"

namespace {

void PrintRecord(const char* name, const VerInfo& v)
{
    printf("%s=%s|%s|%s|%s\n", name, v.major_version.c_str(), v.minor_version.c_str(),
           v.build_version.c_str(), v.icon_overlay_version.c_str());
}

int Run(MacService& service, int argc, char** argv)
{
    const char* command = argv[2];
    if (strcmp(command, "decide") == 0) {
        service.PreUpgrade();
        const bool need = service.IsNeedUpgrade();
        PrintRecord("target", service.target_version);
        PrintRecord("source", service.source_version);
        printf("need=%d\n", need ? 1 : 0);
    } else if (strcmp(command, "upgrade") == 0) {
        printf("result=%d\n", service.HandlePackageUpgrade());
    } else if (strcmp(command, "stop") == 0) {
        const auto start = std::chrono::steady_clock::now();
        service.StopService();
        const auto elapsed = std::chrono::steady_clock::now() - start;
        printf("elapsed_ms=%lld\n", static_cast<long long>(
                                        std::chrono::duration_cast<std::chrono::milliseconds>(elapsed)
                                            .count()));
    } else if (strcmp(command, "launch") == 0) {
        service.PostUpgrade();
        // A detached client is not ours, and the intermediate process is reaped.
        int status;
        const pid_t child = waitpid(-1, &status, WNOHANG);
        printf("children=%s\n", child < 0 && errno == ECHILD ? "none" : "some");
        printf("sid=%d\n", static_cast<int>(getsid(0)));
    } else if (strcmp(command, "remove-aged") == 0) {
        service.RemoveAgedFolders();
    } else if (strcmp(command, "copy") == 0 && argc == 5) {
        printf("result=%d\n", service.FSCopyPath(argv[3], argv[4]));
    } else if (strcmp(command, "paths") == 0) {
        printf("user=%s\n", Service::GetUserInstallPath().c_str());
        printf("root=%s\n", Service::GetRootDriftwellInstallPath().c_str());
        printf("resources=%s\n", Service::GetRootDriftwellResourceInstallPath().c_str());
        printf("user_install=%s\n", Service::GetUserDriftwellInstallPath().c_str());
        printf("user_app=%s\n", Service::GetUserDriftwellAppInstallPath().c_str());
        printf("user_data=%s\n", Service::GetUserDriftwellDataInstallPath().c_str());
        printf("app_path=%s\n", service.app_path.c_str());
        printf("timeout=%d\n", service.timeout);
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
    QCoreApplication app(argc, argv);
    const ustring level_file = Service::GetRootDriftwellInstallPath() + "/log/launcher.debug";
    if (Logger::Initialize(Logger::LOG_TYPE_FILE, argv[1], level_file, 3) != 0) {
        fprintf(stderr, "cannot open log '%s'\n", argv[1]);
        return 2;
    }
    // Owned as the launcher's worker owns it: made with new, deleted through Service.
    MacService* service = new MacService;
    const int rc = Run(*service, argc, argv);
    delete static_cast<Service*>(service);
    fflush(stdout);
    Logger::Destroy();
    return rc;
}
