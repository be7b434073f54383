// SingleInstance: at most one launcher per executable path and user.
//
// A lock file in the temporary folder, named after a checksum of the
// executable's absolute path and the user id, is held from construction until
// the object is destroyed. A lock left by a launcher that died is taken over at
// once: the holder's process id is checked, not the lock's age.
// Needs the application object (for the executable's path).
#ifndef DW_UI_CLIENT_LAUNCHER_SINGLE_INSTANCE_H
#define DW_UI_CLIENT_LAUNCHER_SINGLE_INSTANCE_H

#include <QLockFile>
#include <QString>

class SingleInstance {
public:
    SingleInstance();

    // True when another live launcher holds the lock. A lock that cannot be
    // made at all (for instance an unwritable temporary folder) does not count:
    // the launcher then runs unguarded rather than never.
    bool isRunning() const { return m_running; }

    // The lock file used for this executable and user.
    static QString LockPath();

private:
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    QLockFile m_lock;
    bool m_running;
};

#endif
