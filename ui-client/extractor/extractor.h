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
// carrying them. The package must be a regular file (a FIFO or a device is
// refused, never read), and it may hold only files, folders and links: a
// device, FIFO or socket entry fails the extraction. The version record
// "Contents/Resources/INFO" (however spelled) is held back and written after
// every other entry, so that a copy cut short never has one; of two records
// the later wins. A failure does not wait for a count running beside.
// With more than one CPU, regular files are written on writer threads
// (WriterPool) while the calling thread reads on; any other entry is written
// when none is in flight, and the result is that of writing in order. Every
// thread is joined before Extract returns.
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
    // Threads writing regular files beside the one that reads the package:
    // -1 as many as the CPUs this process may use (none with one), 0 none.
    int writers = -1;
};

#endif
