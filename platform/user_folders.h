// Where the running executable and this user's folders are. Paths are bytes
// as the system gives them: a Linux file name need not be UTF-8, and a path
// that went through a text conversion may no longer name the same file.
#ifndef DW_PLATFORM_USER_FOLDERS_H
#define DW_PLATFORM_USER_FOLDERS_H

#include <string>
#include <vector>

// The running executable's path with every link resolved, whatever argv[0]
// says (started through a link, or by a bare name found in PATH). Empty when
// the system cannot tell.
std::string ExecutablePath();

// path without its last `levels` components: ("/a/b/c", 2) is "/a", never
// above "/". Lexical, for a clean path such as ExecutablePath gives.
std::string ParentFolder(const std::string& path, int levels);

// HOME when it is set and not empty, else the account's home folder from the
// password database; empty when neither names one.
std::string HomeFolder();

// Makes HOME name the home folder for the rest of the process and for the
// programs it starts: the account's when HOME is unset or empty, made absolute
// against the working folder when relative (the client is started from "/").
// Changes the environment: call it before any other thread exists.
void SettleHome();

// Folders for a lock that only this user can make or remove, best first,
// ending with user_folder. Linux: XDG_RUNTIME_DIR when it is a private folder;
// macOS: the per-user temporary folder when it is one. Never a folder that
// other users can write: a file of the lock's name made by one of them would
// keep every launch from starting.
std::vector<std::string> PrivateLockFolders(const std::string& user_folder);

// An absolute path to a folder (not a link) of this user's that nobody else
// may write.
bool IsPrivateFolder(const std::string& path);

#endif
