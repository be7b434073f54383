// MacService: stops and starts the per-user client and decides upgrades.
#ifndef DW_UI_CLIENT_SERVICE_MAC_MAC_SERVICE_H
#define DW_UI_CLIENT_SERVICE_MAC_MAC_SERVICE_H

#include <sys/types.h>

#include "drift-service.h"

class MacService : public Service {
public:
    MacService();
    static MacService* GetInstace();

    // Stops the running client UI through ~/.Driftwell/ui.pid: SIGTERM, up to
    // five probes of a second, SIGKILL and up to five seconds more (a WARNING
    // for each of the last two steps); it returns as soon as the client has
    // ended. Only a process that runs the per-user client executable is ever
    // signalled, and only that very process (not a later one with its number);
    // a pid file naming anything else is logged and left alone. Reports
    // nothing: the upgrade goes on in every case.
    void StopService() override;
    int HandlePackageUpgrade() override;
    void PostUpgrade() override;
    void PreUpgrade() override;
    bool IsNeedUpgrade() override;

    // True when the per-user copy has a client to start (ClientProblem finds
    // nothing wrong with app_path/Contents/MacOS/drift-ui).
    bool PerUserBinPathExist();
    // Opens the per-user bundle (starts the client or brings it to front); 0 or -1.
    int LaunchPerUserBin();
    void LoadSourceVerInfo();
    void LoadTargetVerInfo();

    // The "pid" of the pid file when the file reads as a key-value file and the
    // value is a whole decimal number (blanks around it allowed, no sign) in
    // 1..MaxProcessId(); 0 otherwise (missing, unreadable, empty, junk, range).
    // problem, if given, receives what was wrong with a file that exists.
    static pid_t ReadPidFile(const ustring& path, ustring* problem = nullptr);
};

#endif
