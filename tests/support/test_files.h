// Files, trees and processes as the tests see them: a fresh temporary folder,
// whole-file reads and writes, a snapshot of a tree, and waiting with a
// deadline.
#ifndef DW_TESTS_SUPPORT_TEST_FILES_H
#define DW_TESTS_SUPPORT_TEST_FILES_H

#include <sys/types.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "test_archive.h"

namespace dwtest {

// A fresh folder below base (the system's temporary folder by default),
// spelled canonically so that exact checks can match it; removed with all it
// holds at the end.
class TempDir {
public:
    explicit TempDir(const std::string& base = "");
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    bool ok() const { return !path_.empty(); }
    const std::string& path() const { return path_; }
    std::string file(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

// Whether anything is there; a link is not followed.
bool Exists(const std::string& path);
// The whole file; empty when it cannot be read.
std::string ReadFile(const std::string& path);
// The whole file, with the folders on its way. An existing file is unlinked
// first: a running executable cannot be rewritten in place. The mode is set
// as given, whatever the umask of the run.
bool WriteFile(const std::string& path, const std::string& data, int mode = 0644);

// Relative path -> what is there: a file's bytes, "<dir>" for a folder,
// "-> target" for a symbolic link (never followed). A file of 256 bytes or
// more stands as its size and digest, so that a failure prints a readable tree.
using Tree = std::map<std::string, std::string>;
Tree Snapshot(const std::string& root);
// A file's bytes as Snapshot shows them.
std::string Shown(const std::string& data);
// What the entries put below the destination, folders on their way included,
// as Snapshot shows it; a hard link shows what its target holds.
Tree TreeOf(const std::vector<Entry>& entries);

// The log's lines from byte `from` on, each without its "%b %d %H:%M:%S "
// stamp and with its source line number shown as "#":
// "[DEBUG] extractor(#): decompress ...".
std::vector<std::string> LogLines(const std::string& path, long long from = 0);

// Polls done until it holds or the deadline passes; its last answer.
bool WaitFor(const std::function<bool()>& done, int timeout_ms = 30000);
// No such process, or one that ended and waits to be reaped.
bool ProcessGone(pid_t pid);

}  // namespace dwtest

#endif
