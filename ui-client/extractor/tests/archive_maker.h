// Writes small crafted archives with libarchive's writer; names are stored
// exactly as given ("../x", "/abs/x" included).
#ifndef EXTRACTOR_TEST_ARCHIVE_MAKER_H
#define EXTRACTOR_TEST_ARCHIVE_MAKER_H

#include <archive.h>
#include <archive_entry.h>

#include <string>
#include <vector>

struct Entry {
    enum Kind { File, Folder, Symlink, Hardlink };
    Kind kind;
    std::string name;
    std::string data;  // file content, or the link target
};

enum class Packing { Tar, TarGz, TarZst, Zip };

inline bool write_archive(const std::string& path, Packing packing, const std::vector<Entry>& entries)
{
    archive* w = archive_write_new();
    bool ok = true;
    if (packing == Packing::Zip) {
        ok = archive_write_set_format_zip(w) == ARCHIVE_OK;
    } else {
        ok = archive_write_set_format_pax_restricted(w) == ARCHIVE_OK;
        if (packing == Packing::TarGz)
            ok = ok && archive_write_add_filter_gzip(w) == ARCHIVE_OK;
        if (packing == Packing::TarZst)
            ok = ok && archive_write_add_filter_zstd(w) == ARCHIVE_OK;
    }
    ok = ok && archive_write_open_filename(w, path.c_str()) == ARCHIVE_OK;
    for (const Entry& e : entries) {
        if (!ok)
            break;
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, e.name.c_str());
        archive_entry_set_mtime(entry, 1700000000, 0);
        switch (e.kind) {
        case Entry::File:
            archive_entry_set_filetype(entry, AE_IFREG);
            archive_entry_set_perm(entry, 0644);
            archive_entry_set_size(entry, static_cast<la_int64_t>(e.data.size()));
            break;
        case Entry::Folder:
            archive_entry_set_filetype(entry, AE_IFDIR);
            archive_entry_set_perm(entry, 0755);
            break;
        case Entry::Symlink:
            archive_entry_set_filetype(entry, AE_IFLNK);
            archive_entry_set_perm(entry, 0777);
            archive_entry_set_symlink(entry, e.data.c_str());
            break;
        case Entry::Hardlink:
            archive_entry_set_filetype(entry, AE_IFREG);
            archive_entry_set_perm(entry, 0644);
            archive_entry_set_hardlink(entry, e.data.c_str());
            break;
        }
        ok = archive_write_header(w, entry) == ARCHIVE_OK;
        if (ok && e.kind == Entry::File && !e.data.empty())
            ok = archive_write_data(w, e.data.data(), e.data.size()) == static_cast<la_ssize_t>(e.data.size());
        archive_entry_free(entry);
    }
    ok = archive_write_close(w) == ARCHIVE_OK && ok;
    archive_write_free(w);
    return ok;
}

#endif
