#include "test_archive.h"

#include <archive_entry.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

namespace dwtest {

namespace {

// archive_write_set_format knows every format by its code but ar's.
int SetFormat(archive* a, int format)
{
    if (format == ARCHIVE_FORMAT_AR_BSD)
        return archive_write_set_format_ar_bsd(a);
    if (format == ARCHIVE_FORMAT_AR_GNU)
        return archive_write_set_format_ar_svr4(a);
    return archive_write_set_format(a, format);
}

}  // namespace

ArchiveWriter::ArchiveWriter(const std::string& path, const Packing& packing)
    : a_(archive_write_new()), mtime_(packing.mtime)
{
    ok_ = SetFormat(a_, packing.format) == ARCHIVE_OK &&
          archive_write_add_filter(a_, packing.filter) == ARCHIVE_OK &&
          (packing.options == nullptr || archive_write_set_options(a_, packing.options) == ARCHIVE_OK) &&
          archive_write_open_filename(a_, path.c_str()) == ARCHIVE_OK;
}

ArchiveWriter::~ArchiveWriter()
{
    Close();
    archive_write_free(a_);
}

bool ArchiveWriter::Add(const Entry& e)
{
    if (!ok_)
        return false;
    static const unsigned kFileType[] = {AE_IFREG, AE_IFDIR, AE_IFLNK, AE_IFREG};  // by Kind
    const bool file = e.kind == Entry::File;
    archive_entry* entry = archive_entry_new();
    archive_entry_set_pathname(entry, e.name.c_str());
    const unsigned type = e.mode >= 0 ? static_cast<unsigned>(e.mode) & AE_IFMT : 0;
    archive_entry_set_filetype(entry, type != 0 ? type : kFileType[e.kind]);
    archive_entry_set_perm(entry, static_cast<mode_t>(e.mode >= 0               ? e.mode & 07777
                                                      : e.kind == Entry::Folder ? 0755
                                                                                : 0644));
    if (mtime_ != 0)
        archive_entry_set_mtime(entry, mtime_, 0);
    archive_entry_set_size(entry, file ? static_cast<la_int64_t>(e.data.size()) : 0);
    if (e.kind == Entry::Symlink)
        archive_entry_set_symlink(entry, e.data.c_str());
    if (e.kind == Entry::Hardlink)
        archive_entry_set_hardlink(entry, e.data.c_str());
    const int header = archive_write_header(a_, entry);
    archive_entry_free(entry);
    ok_ = header != ARCHIVE_FATAL;
    if (header == ARCHIVE_OK && file)
        ok_ = archive_write_data(a_, e.data.data(), e.data.size()) == static_cast<la_ssize_t>(e.data.size());
    return header == ARCHIVE_OK && ok_;
}

bool ArchiveWriter::Close()
{
    if (!closed_)
        ok_ = archive_write_close(a_) == ARCHIVE_OK && ok_;
    closed_ = true;
    return ok_;
}

std::string ArchiveWriter::Error() const
{
    const char* text = archive_error_string(a_);
    return text != nullptr ? text : "";
}

bool WriteArchive(const std::string& path, const std::vector<Entry>& entries, const Packing& packing,
                  long long cut)
{
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
    ArchiveWriter writer(path, packing);
    bool ok = true;
    for (const Entry& e : entries)
        ok = writer.Add(e) && ok;
    struct stat st;
    if (!writer.Close() || !ok || stat(path.c_str(), &st) != 0)
        return false;
    return cut == 0 || truncate(path.c_str(), cut > 0 ? cut : st.st_size + cut) == 0;
}

}  // namespace dwtest
