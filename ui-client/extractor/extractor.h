// Extractor: unpacks a package archive below dest_path with libarchive,
// reporting (total, done) after every entry through Notify_Adapter. A
// compressed package is counted on a thread of its own while the entries are
// written; the pairs are sent by the calling thread, in order, those of
// entries written before the total is known as soon as it is.
// Every entry path, and every hard-link target, is put below dest_path (an
// absolute name too); an entry or hard-link target with a ".." component is
// refused and stops the extraction, as is an entry other than a folder whose
// name stands for the destination itself ("", "./"). A symbolic link that
// stands in the way of a later entry is replaced by a folder, never followed.
// An existing file at an entry's place is replaced, an existing folder kept.
// Entries written before a failure stay on disk. Any format libarchive reads,
// but an mtree manifest, which names files of this machine instead of
// carrying them.
#ifndef DW_UI_CLIENT_EXTRACTOR_EXTRACTOR_H
#define DW_UI_CLIENT_EXTRACTOR_EXTRACTOR_H

#include "ustring.h"

struct archive;

class Extractor {
public:
    // 0 when every entry was written and the disk writer closed, -1 on any
    // failure (warnings included).
    int Extract();
    // Number of entries (0 or more), or -1 on failure.
    int Count();
    // Writes the entry names to standard output; 0, or -1 on an empty path.
    int List();
    // Copies the current entry's data block by block; 0 at its end, -1 on failure.
    int copy_data(struct archive* ar, struct archive* aw);

    ustring dest_path;
    ustring archive_path;
};

#endif
