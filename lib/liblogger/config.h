// Config: strict reader of key = value files (pid file, log level file).
// One malformed line makes the whole file unreadable: entries are emptied.
#ifndef DW_LIB_LIBLOGGER_CONFIG_H
#define DW_LIB_LIBLOGGER_CONFIG_H

#include <map>

#include "ustring.h"

class Config {
public:
    // 0 when the whole file was read, -1 otherwise. An empty or unopenable path
    // leaves entries untouched; a malformed line empties them.
    int read(const ustring& path);
    // The key's value read as a decimal int (0 when it is not a number). A
    // missing key is added with an empty value, like the map's indexing.
    int get_int(const ustring& key);

    std::map<ustring, ustring> entries;
};

#endif
