// Writes the seed corpus of fuzz_extract into the folder given: one small
// package (a folder, two files, a symbolic and a hard link) in each format and
// filter that libarchive both writes and reads. A format that cannot hold an
// entry kind gets the entries it can hold; one that this libarchive cannot
// write is left out and named on standard error.
#include <archive.h>
#include <archive_entry.h>

#include <cstdio>
#include <string>

namespace {

struct Packing {
    const char* name;
    int (*set_format)(archive*);
    int filter;
    const char* options;  // libarchive writer options, or null
};

const Packing kPackings[] = {
    {"pax.tar", archive_write_set_format_pax_restricted, ARCHIVE_FILTER_NONE, nullptr},
    {"ustar.tar", archive_write_set_format_ustar, ARCHIVE_FILTER_NONE, nullptr},
    {"gnu.tar", archive_write_set_format_gnutar, ARCHIVE_FILTER_NONE, nullptr},
    {"tar.gz", archive_write_set_format_pax_restricted, ARCHIVE_FILTER_GZIP, nullptr},
    {"tar.bz2", archive_write_set_format_pax_restricted, ARCHIVE_FILTER_BZIP2, nullptr},
    {"tar.xz", archive_write_set_format_pax_restricted, ARCHIVE_FILTER_XZ, nullptr},
    {"tar.lzma", archive_write_set_format_pax_restricted, ARCHIVE_FILTER_LZMA, nullptr},
    {"tar.lz", archive_write_set_format_pax_restricted, ARCHIVE_FILTER_LZIP, nullptr},
    {"tar.zst", archive_write_set_format_pax_restricted, ARCHIVE_FILTER_ZSTD, nullptr},
    {"tar.lz4", archive_write_set_format_pax_restricted, ARCHIVE_FILTER_LZ4, nullptr},
    {"tar.Z", archive_write_set_format_pax_restricted, ARCHIVE_FILTER_COMPRESS, nullptr},
    {"tar.uu", archive_write_set_format_pax_restricted, ARCHIVE_FILTER_UU, nullptr},
    {"newc.cpio", archive_write_set_format_cpio_newc, ARCHIVE_FILTER_NONE, nullptr},
    {"odc.cpio", archive_write_set_format_cpio, ARCHIVE_FILTER_NONE, nullptr},
    {"deflate.zip", archive_write_set_format_zip, ARCHIVE_FILTER_NONE, nullptr},
    {"stored.zip", archive_write_set_format_zip, ARCHIVE_FILTER_NONE, "zip:compression=store"},
    {"lzma.7z", archive_write_set_format_7zip, ARCHIVE_FILTER_NONE, nullptr},
    {"stored.7z", archive_write_set_format_7zip, ARCHIVE_FILTER_NONE, "7zip:compression=store"},
    {"bsd.ar", archive_write_set_format_ar_bsd, ARCHIVE_FILTER_NONE, nullptr},
    {"svr4.ar", archive_write_set_format_ar_svr4, ARCHIVE_FILTER_NONE, nullptr},
    {"iso", archive_write_set_format_iso9660, ARCHIVE_FILTER_NONE, "iso9660:!pad"},
    {"xar", archive_write_set_format_xar, ARCHIVE_FILTER_NONE, nullptr},
    {"warc", archive_write_set_format_warc, ARCHIVE_FILTER_NONE, nullptr},
    // Refused by the extractor; the seed keeps that path covered.
    {"mtree", archive_write_set_format_mtree, ARCHIVE_FILTER_NONE, nullptr},
};

struct Item {
    unsigned type;
    const char* name;
    const char* data;  // file content, or the link target
};

const Item kItems[] = {
    {AE_IFDIR, "Contents", ""},
    {AE_IFREG, "Contents/drift-ui", "\x7f" "ELF program"},
    {AE_IFREG, "Contents/INFO", "[Version]\nbuild_version=7\n"},
    {AE_IFLNK, "Contents/current", "drift-ui"},
    {AE_IFREG, "Contents/again", "Contents/INFO"},  // written as a hard link
};

bool write_package(const std::string& path, const Packing& p)
{
    archive* w = archive_write_new();
    bool ok = p.set_format(w) == ARCHIVE_OK &&
              archive_write_add_filter(w, p.filter) == ARCHIVE_OK &&
              (p.options == nullptr || archive_write_set_options(w, p.options) == ARCHIVE_OK) &&
              archive_write_open_filename(w, path.c_str()) == ARCHIVE_OK;
    for (const Item& item : kItems) {
        if (!ok)
            break;
        const bool hard_link = std::string(item.name) == "Contents/again";
        const std::string data = item.type == AE_IFREG && !hard_link ? item.data : "";
        archive_entry* e = archive_entry_new();
        archive_entry_set_pathname(e, item.name);
        archive_entry_set_filetype(e, item.type);
        archive_entry_set_perm(e, item.type == AE_IFDIR ? 0755 : 0644);
        archive_entry_set_mtime(e, 1500000000, 0);  // seeds do not change between builds
        archive_entry_set_size(e, item.type == AE_IFREG ? static_cast<la_int64_t>(data.size()) : 0);
        if (item.type == AE_IFLNK)
            archive_entry_set_symlink(e, item.data);
        if (hard_link)
            archive_entry_set_hardlink(e, item.data);
        const int r = archive_write_header(w, e);
        // A kind the format cannot hold is refused without harm to the rest.
        if (r == ARCHIVE_FATAL)
            ok = false;
        else if (r == ARCHIVE_OK && !data.empty())
            ok = archive_write_data(w, data.data(), data.size()) == static_cast<la_ssize_t>(data.size());
        archive_entry_free(e);
    }
    ok = archive_write_close(w) == ARCHIVE_OK && ok;
    if (!ok)
        fprintf(stderr, "%s: %s\n", path.c_str(), archive_error_string(w) ? archive_error_string(w) : "failed");
    archive_write_free(w);
    if (!ok)
        remove(path.c_str());
    return ok;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        fprintf(stderr, "usage: %s folder\n", argv[0]);
        return 2;
    }
    int written = 0;
    for (const Packing& p : kPackings)
        written += write_package(std::string(argv[1]) + "/" + p.name, p);
    return written > 0 ? 0 : 1;
}
