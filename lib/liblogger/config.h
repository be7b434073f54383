// Config: strict reader of key = value files (pid file, log level file).
// One malformed line makes the whole file unreadable: entries are emptied.
#ifndef DW_LIB_LIBLOGGER_CONFIG_H
#define DW_LIB_LIBLOGGER_CONFIG_H

#include <cstddef>
#include <map>

#include "ustring.h"

class Config {
public:
    // A key-value file is a few lines; anything larger is refused.
    static constexpr size_t kMaxFileSize = 65536;

    // 0 when the whole file was read, -1 otherwise. An empty or unopenable path
    // leaves entries untouched; a malformed line empties them. Only a regular
    // file of at most kMaxFileSize bytes is read, and the call never blocks:
    // anything else (a FIFO, a device, a folder, a link to one of them) is
    // refused as an unopenable path is, and `refused`, when given, says why
    // ("not a regular file", "larger than 65536 bytes"); it is left empty
    // otherwise.
    int read(const ustring& path, ustring* refused = nullptr);
    // The key's value read as a decimal int (0 when it is not a number). A
    // missing key is added with an empty value, like the map's indexing.
    int get_int(const ustring& key);

    std::map<ustring, ustring> entries;
};

#endif
