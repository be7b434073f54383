#include "mac-service.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "app_launch.h"
#include "config.h"
#include "file-op.h"
#include "log.h"
#include "process_identity.h"
#include "process_stop.h"

namespace {

const char kComponent[] = "service_debug";
// The stopped client has five probes of up to a second each to end before
// SIGKILL; each returns as soon as it has ended.
const int kStopProbes = 5;
const int kProbeMs = 1000;
// SIGKILL ends a process only once it leaves the kernel: one blocked in
// uninterruptible I/O (a network share) lives on until that returns. The
// stop waits this long for it, then the upgrade goes on all the same: a
// killed process never runs its own code again, and one that refused the
// signal cannot be stopped from here at all.
const int kKillWaitMs = 5000;

ustring PidFilePath()
{
    return Service::GetUserDriftwellInstallPath() + "/ui.pid";
}

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

// Stricter than atol: a signal must never go to 0, a negative id (a process
// group) or a number that merely starts with digits.
pid_t ParsePid(const ustring& text)
{
    const char* p = text.c_str();
    while (IsBlank(*p))
        ++p;
    const long max = MaxProcessId();
    long value = 0;
    const char* digits = p;
    for (; *p >= '0' && *p <= '9'; ++p) {
        value = value * 10 + (*p - '0');
        if (value > max)
            return 0;
    }
    if (p == digits)
        return 0;
    while (IsBlank(*p))
        ++p;
    if (*p != '\0')
        return 0;
    return static_cast<pid_t>(value);
}

// Read as atoi reads it, such a number wrapped (2147483648 became INT_MIN)
// and the decision went wrong without a word.
void WarnUnusableBuild(const VerInfo& record, bool usable, const ustring& path)
{
    if (usable || record.build_version.empty())
        return;
    Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                   "[WARNING] mac/mac-service(%d): version record '%s' has build number '%s', negative or "
                   "too large: it counts as having no build\n",
                   __LINE__, path.c_str(), record.build_version.c_str());
}

}  // namespace

MacService::MacService()
{
    timeout = 10000;
    app_path = Service::GetUserDriftwellAppInstallPath();
}

MacService* MacService::GetInstace()
{
    static MacService instance;
    return &instance;
}

bool MacService::PerUserBinPathExist()
{
    return ClientProblem(app_path) == nullptr;
}

void MacService::LoadSourceVerInfo()
{
    Service::LoadSourceVersion();
}

void MacService::LoadTargetVerInfo()
{
    Service::LoadTargetVersion();
}

void MacService::PreUpgrade()
{
    Service::LoadTargetVersion();
    Service::LoadSourceVersion();
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent,
                   "[DEBUG] mac/mac-service(%d): Source version: ('%s', '%s')\n", __LINE__,
                   source_version.build_version.c_str(), source_version.icon_overlay_version.c_str());
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent,
                   "[DEBUG] mac/mac-service(%d): Target version: ('%s', '%s')\n", __LINE__,
                   target_version.build_version.c_str(), target_version.icon_overlay_version.c_str());
}

bool MacService::IsNeedUpgrade()
{
    int source = 0, target = 0;
    const bool source_usable = ParseBuildNumber(source_version.build_version, source);
    const bool target_usable = ParseBuildNumber(target_version.build_version, target);
    WarnUnusableBuild(source_version, source_usable, VersionRecordPath(app_path));
    WarnUnusableBuild(target_version, target_usable, VersionRecordPath(GetRootDriftwellInstallPath()));
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent,
                   "[DEBUG] mac/mac-service(%d): source version = %d, target version = %d\n", __LINE__,
                   source, target);
    // A copy without a client to start is reinstalled even from an older
    // bundle; one without a usable build in its record is an extraction cut
    // short, or cannot be compared. A bundle without one counts as build 0.
    const bool installed = PerUserBinPathExist();
    struct stat st;
    if (!installed && lstat(ClientExecutablePath(app_path).c_str(), &st) == 0) {
        Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                       "[WARNING] mac/mac-service(%d): client '%s' %s, the copy is installed again\n",
                       __LINE__, ClientExecutablePath(app_path).c_str(), ClientProblem(app_path));
    }
    return !installed || !source_usable || target > source;
}

int MacService::HandlePackageUpgrade()
{
    // A client may run from the copy whatever its executable has become since.
    struct stat st;
    if (lstat(ClientExecutablePath(app_path).c_str(), &st) == 0) {
        Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] mac/mac-service(%d): local appdata exist\n",
                       __LINE__);
        StopService();
    }
    return PrepareUserEnv();
}

pid_t MacService::ReadPidFile(const ustring& path, ustring* problem)
{
    ustring why;
    Config pid_file;
    pid_t pid = 0;
    if (pid_file.read(path, &why) < 0) {
        // Gone since it was found: the client has just ended, nothing wrong.
        // A FIFO, a device or a huge file is refused unread: `why` says so.
        if (why.empty() && access(path.c_str(), F_OK) == 0)
            why = access(path.c_str(), R_OK) == 0 ? "not a key-value file" : strerror(errno);
    } else {
        const auto it = pid_file.entries.find("pid");
        if (it == pid_file.entries.end())
            why = "no pid entry";
        else if ((pid = ParsePid(it->second)) <= 0)
            why = "pid '" + it->second + "' is not a process id";
    }
    if (problem != nullptr)
        *problem = why;
    return pid;
}

void MacService::StopService()
{
    const ustring pid_path = PidFilePath();
    if (!IsFileExist(pid_path, false)) {
        Logger::LogMsg(Logger::LOG_DEBUG, kComponent,
                       "[DEBUG] mac/mac-service(%d): pid file '%s' does not exist, no need to "
                       "terminate\n",
                       __LINE__, pid_path.c_str());
        return;
    }
    ustring problem;
    const pid_t pid = ReadPidFile(pid_path, &problem);
    if (pid <= 0) {
        if (!problem.empty()) {
            Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                           "[WARNING] mac/mac-service(%d): pid file '%s' is unusable: %s\n", __LINE__,
                           pid_path.c_str(), problem.c_str());
        }
        Logger::LogMsg(Logger::LOG_NOTE, kComponent,
                       "[NOTE] mac/mac-service(%d): Failed to read pid file '%s', not exist ?\n", __LINE__,
                       pid_path.c_str());
        return;
    }

    // The pid file outlives its client; its number may since belong to
    // anybody. Only the per-user client itself is ever signalled.
    const ustring exe = ClientExecutablePath(app_path);
    HeldProcess client;
    switch (client.Open(pid, exe.c_str())) {
    case PROCESS_MISSING:
        return;  // stale pid file: the client has ended already
    case PROCESS_OTHER:
        Logger::LogMsg(Logger::LOG_NOTE, kComponent,
                       "[NOTE] mac/mac-service(%d): pid %d is not the Driftwell UI, not "
                       "signalled\n",
                       __LINE__, static_cast<int>(pid));
        return;
    case PROCESS_MATCHES:
        break;
    }

    const int err = client.Signal(SIGTERM);
    if (err == ESRCH)
        return;
    if (err != 0) {
        // Logged and ignored: the wait and SIGKILL still follow.
        Logger::LogMsg(Logger::LOG_ERROR, kComponent, "[ERROR] mac/mac-service(%d): kill: %s (%d)\n",
                       __LINE__, strerror(err), err);
    }
    for (int probe = 0; probe < kStopProbes; ++probe) {
        if (client.WaitForExit(kProbeMs))
            return;
    }
    Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                   "[WARNING] mac/mac-service(%d): pid %d did not end within %d seconds of SIGTERM, sending "
                   "SIGKILL\n",
                   __LINE__, static_cast<int>(pid), kStopProbes * kProbeMs / 1000);
    const int kill_err = client.Signal(SIGKILL);
    if (kill_err == ESRCH)
        return;
    if (kill_err != 0) {
        Logger::LogMsg(Logger::LOG_ERROR, kComponent, "[ERROR] mac/mac-service(%d): kill: %s (%d)\n",
                       __LINE__, strerror(kill_err), kill_err);
    }
    if (!client.WaitForExit(kKillWaitMs)) {
        Logger::LogMsg(Logger::LOG_WARNING, kComponent,
                       "[WARNING] mac/mac-service(%d): pid %d still runs %d seconds after SIGKILL, going on "
                       "beside it\n",
                       __LINE__, static_cast<int>(pid), kKillWaitMs / 1000);
    }
}

int MacService::LaunchPerUserBin()
{
    // Where the desktop does not track running applications itself, the pid
    // file tells whether the client runs already.
    const ustring bundle = Service::GetUserDriftwellAppInstallPath();
    return OpenApplicationBundle(bundle.c_str(), kClientExecutable, ReadPidFile(PidFilePath())) ? 0 : -1;
}

void MacService::PostUpgrade()
{
    if (LaunchPerUserBin() < 0) {
        // The launcher quits normally all the same; the user can open the client again.
        Logger::LogMsg(Logger::LOG_ERROR, kComponent,
                       "[ERROR] mac/mac-service(%d): Failed to launch Driftwell UI\n", __LINE__);
    }
}
