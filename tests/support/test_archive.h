// Crafted archives for the tests, written by libarchive's own writer: any
// entry kind and mode, any format and filter it writes, cut short if asked.
#ifndef DW_TESTS_SUPPORT_TEST_ARCHIVE_H
#define DW_TESTS_SUPPORT_TEST_ARCHIVE_H

#include <archive.h>

#include <ctime>
#include <string>
#include <vector>

namespace dwtest {

struct Entry {
    enum Kind { File, Folder, Symlink, Hardlink };
    Kind kind;
    std::string name;  // stored exactly as given ("../x", "/abs/x" included)
    std::string data;  // a file's content, or the link's target
    int mode = -1;     // -1: 0755 for a folder, 0644 for the rest; with type bits
                       // (AE_IFCHR...) a File becomes an entry of that type
};

// libarchive's format and filter codes, and its writer options
// ("zip:compression=store") if any.
struct Packing {
    int format = ARCHIVE_FORMAT_TAR_PAX_RESTRICTED;
    int filter = ARCHIVE_FILTER_NONE;
    const char* options = nullptr;
    time_t mtime = 0;  // of every entry; 0 leaves it unset
};

// Entry by entry, for archives too large to hold at once or written in
// several packings side by side.
class ArchiveWriter {
public:
    explicit ArchiveWriter(const std::string& path, const Packing& packing = {});
    ~ArchiveWriter();
    ArchiveWriter(const ArchiveWriter&) = delete;
    ArchiveWriter& operator=(const ArchiveWriter&) = delete;

    // Whether the entry and all its data were written. A kind that the format
    // cannot hold is refused without harm to the rest; anything worse spoils
    // the archive, and Close says so.
    bool Add(const Entry& entry);
    bool Close();  // whether the whole archive was written
    std::string Error() const;

private:
    struct archive* a_;
    time_t mtime_;
    bool ok_;
    bool closed_ = false;
};

// The whole archive at once, with the folders on its way. cut > 0 keeps that
// many bytes of it, cut < 0 drops that many from its end.
bool WriteArchive(const std::string& path, const std::vector<Entry>& entries, const Packing& packing = {},
                  long long cut = 0);

}  // namespace dwtest

#endif
