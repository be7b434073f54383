// The floor for our extractor: the same two passes on libarchive (count the
// headers, then read and extract with the same disk options and the same
// destination prefix), without logging, progress or our string type.
#include <archive.h>
#include <archive_entry.h>

#include <cstdio>
#include <string>

namespace {

const int kDiskOptions = ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT |
                         ARCHIVE_EXTRACT_MAC_METADATA | ARCHIVE_EXTRACT_SECURE_SYMLINKS;

archive* open_reader(const char* path)
{
    archive* r = archive_read_new();
    archive_read_support_filter_all(r);
    archive_read_support_format_all(r);
    if (archive_read_open_filename(r, path, 10240) != ARCHIVE_OK) {
        fprintf(stderr, "extract_plain: %s\n", archive_error_string(r));
        archive_read_free(r);
        return nullptr;
    }
    return r;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        fprintf(stderr, "usage: extract_plain ARCHIVE DEST\n");
        return 2;
    }
    archive* r = open_reader(argv[1]);
    if (r == nullptr)
        return 1;
    archive_entry* entry = nullptr;
    int total = 0;
    while (archive_read_next_header(r, &entry) == ARCHIVE_OK) {
        ++total;
        archive_read_data_skip(r);
    }
    archive_read_free(r);
    if (total <= 0 || (r = open_reader(argv[1])) == nullptr)
        return 1;

    archive* w = archive_write_disk_new();
    archive_write_disk_set_options(w, kDiskOptions);
    const std::string prefix = std::string(argv[2]) + "/";
    int result = 0;
    int status;
    while ((status = archive_read_next_header(r, &entry)) == ARCHIVE_OK) {
        archive_entry_set_pathname(entry, (prefix + archive_entry_pathname(entry)).c_str());
        if (const char* target = archive_entry_hardlink(entry))
            archive_entry_set_hardlink(entry, (prefix + target).c_str());
        if (archive_read_extract2(r, entry, w) != ARCHIVE_OK || archive_write_finish_entry(w) != ARCHIVE_OK) {
            fprintf(stderr, "extract_plain: %s\n", archive_error_string(w));
            result = 1;
            break;
        }
    }
    if (status != ARCHIVE_OK && status != ARCHIVE_EOF)
        result = 1;
    archive_read_free(r);
    archive_write_free(w);
    return result;
}
