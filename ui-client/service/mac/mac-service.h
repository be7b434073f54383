// MacService: stops and starts the per-user client and decides upgrades.
#ifndef MAC_SERVICE_H
#define MAC_SERVICE_H

#include <sys/types.h>

#include "drift-service.h"

class MacService : public Service {
public:
    MacService();
    static MacService* GetInstace();

    // Stops the running client UI through ~/.Driftwell/ui.pid: SIGTERM, five
    // one-second probes, SIGKILL. Only a process that runs the per-user client
    // executable is ever signalled.
    void StopService() override;
    int HandlePackageUpgrade() override;
    void PostUpgrade() override;
    void PreUpgrade() override;
    bool IsNeedUpgrade() override;

    // True when app_path/Contents/MacOS/drift-ui exists.
    bool PerUserBinPathExist();
    // Opens the per-user bundle (starts the client or brings it to front); 0 or -1.
    int LaunchPerUserBin();
    void LoadSourceVerInfo();
    void LoadTargetVerInfo();

    // The process id in the pid file when it is a whole decimal number in
    // 1..pid_max, else 0.
    static pid_t ReadPidFile(const ustring& path, bool* readable);
};

#endif
