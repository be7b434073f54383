// SingleInstance: at most one launcher per executable and user.
//
// A lock file named after a checksum of the executable's real path and the
// user id, held from construction until the object is destroyed, in the first
// of the user's private folders (PrivateLockFolders) that can hold it. A lock
// left by a launcher that died is taken over at once: the holder's process id
// is checked, not the lock's age.
// Make it once the log is open: a launcher left without any lock says so.
#ifndef DW_UI_CLIENT_LAUNCHER_SINGLE_INSTANCE_H
#define DW_UI_CLIENT_LAUNCHER_SINGLE_INSTANCE_H

#include <memory>

#include <QLockFile>

class SingleInstance {
public:
    SingleInstance();

    // True when another live launcher holds the lock. When no folder can hold
    // one at all, the launcher runs unguarded rather than never.
    bool isRunning() const { return m_running; }

private:
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    std::unique_ptr<QLockFile> m_lock;
    bool m_running = false;
};

#endif
