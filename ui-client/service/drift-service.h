// Service: the installation service interface and its shared implementation:
// install locations, version records, rebuilding the per-user copy.
#ifndef DW_UI_CLIENT_SERVICE_DRIFT_SERVICE_H
#define DW_UI_CLIENT_SERVICE_DRIFT_SERVICE_H

#include <cstdint>

#include "ustring.h"

struct VerInfo {
    ustring major_version;
    ustring minor_version;
    ustring build_version;
    ustring icon_overlay_version;
};

// Every copy of the bundle (the bundle itself, the per-user copy, a backup)
// keeps its client as Contents/MacOS/kClientExecutable and its version record
// as Contents/Resources/INFO.
inline constexpr char kClientExecutable[] = "drift-ui";
ustring ClientExecutablePath(const ustring& app);
ustring VersionRecordPath(const ustring& app);

// A version record's build number as the upgrade decision reads it: leading
// blanks, an optional sign, then the digits up to the first other character
// (no digits read as 0). False, with number 0, when the text is empty or the
// number is negative or does not fit an int: such a record has no usable
// build, just as one without the key.
bool ParseBuildNumber(const ustring& text, int& number);

// Why the copy at app has no client to start; nullptr when its client is a
// regular file with the owner's execute bit, reached through real folders
// only (app, Contents, Contents/MacOS: no link is followed on the way).
const char* ClientProblem(const ustring& app);

class Service {
public:
    Service();
    virtual ~Service();
    // Stops the running per-user client so that its copy can be replaced.
    // Reports nothing: the upgrade goes on whether or not a client ran or
    // stopped.
    virtual void StopService() = 0;
    virtual void SetTimeout(int value);
    // Installs or upgrades the per-user copy: stops a client that is installed,
    // then PrepareUserEnv(). 0 when the new copy is in place; -1 (logged) when
    // not, with the old copy put back where there was a complete one.
    virtual int HandlePackageUpgrade() = 0;
    // Opens the per-user bundle (starts the client or brings it to the front),
    // upgraded or not. A failure is logged; the launcher ends normally anyway.
    virtual void PostUpgrade() = 0;
    // Loads the bundle's and the per-user copy's version records; a missing
    // file or key leaves the field as it was, and so does a record that is not
    // a regular file of at most 64 KiB (a FIFO, a device: refused with a
    // WARNING, never opened by QSettings). Called once, before anything else.
    virtual void PreUpgrade() = 0;
    // From the records that PreUpgrade loaded: true when the per-user copy must
    // be installed or upgraded (it has no client to start, its record has no
    // usable build number, or the bundle's build number is greater). A build
    // number that is negative or too large is logged and counts as none.
    virtual bool IsNeedUpgrade() = 0;
    // Extracts the bundle's package into the per-user bundle folder; 0 or -1.
    virtual int ExtractPackage();
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();
    // Moves the old per-user bundle to a backup name, extracts, and when the
    // extraction fails or leaves no complete copy (a client to start, a record
    // with a usable build) puts back the complete backup with the highest
    // build. Leftovers of an interrupted run are cleared first (links among
    // them removed, never followed); a complete backup stands in for a
    // missing or partial copy. 0 when the new copy is in place.
    virtual int PrepareUserEnv();

    // Install locations: absolute paths without a trailing slash, recomputed
    // on every call. Bytes as the file system has them, UTF-8 or not: hand
    // them to Qt through QFile::decodeName.
    static ustring GetUserInstallPath();
    static ustring GetRootDriftwellInstallPath();
    static ustring GetRootDriftwellResourceInstallPath();
    static ustring GetUserDriftwellInstallPath();
    static ustring GetUserDriftwellAppInstallPath();
    static ustring GetUserDriftwellDataInstallPath();

    // Removes ~/.Driftwell/app, and every backup name once the per-user copy
    // is complete and current; runs on every launch.
    void RemoveAgedFolders();
    // Copies a file or a folder tree, depth first; 0 or -1.
    int FSCopyPath(const ustring& source, const ustring& destination);

    int32_t timeout;
    ustring app_path;
    VerInfo target_version;
    VerInfo source_version;
};

#endif
