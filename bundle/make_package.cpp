// make_package FORMAT OUTPUT ROOT
//
// Packs the per-user bundle staged at ROOT into the package archive OUTPUT.
// FORMAT is one of tar, tar.gz, tar.zst, zip. Entries are stored relative to
// ROOT in sorted order, except the version record Contents/Resources/INFO,
// which is always the last entry: an extraction that stops half-way never
// leaves a record that claims the new build. Only folders, regular files and
// symbolic links are stored: a file with several names is stored once per
// name, each with its own data, never as a hard link (the extractor would
// place a hard link's target below its destination as well). Owners are
// dropped and times kept, so the same input gives the same bytes.
//
// Exit status: 0 done, 1 bad usage, 2 the package could not be written (no
// OUTPUT is left behind then).
#include <sys/stat.h>
#include <unistd.h>

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "package_zstd.h"

namespace fs = std::filesystem;

namespace {

const char kVersionRecord[] = "Contents/Resources/INFO";

struct ArchiveWriter {
    archive* handle = archive_write_new();
    ~ArchiveWriter() { archive_write_free(handle); }
};

struct EntryHolder {
    archive_entry* entry = archive_entry_new();
    ~EntryHolder() { archive_entry_free(entry); }
};

bool SetFormat(archive* a, const std::string& format)
{
    if (format == "zip")
        return archive_write_set_format_zip(a) == ARCHIVE_OK;
    if (archive_write_set_format_pax_restricted(a) != ARCHIVE_OK)
        return false;
    if (format == "tar")
        return archive_write_add_filter_none(a) == ARCHIVE_OK;
    if (format == "tar.gz")
        return archive_write_add_filter_gzip(a) == ARCHIVE_OK &&
               archive_write_set_filter_option(a, "gzip", "timestamp", nullptr) == ARCHIVE_OK;
    if (format == "tar.zst")
        return archive_write_add_filter_zstd(a) == ARCHIVE_OK &&
               archive_write_set_options(a, DW_PACKAGE_ZSTD_OPTIONS) == ARCHIVE_OK;
    return false;
}

// Paths below root, relative and with '/' separators, in the order they are
// written: sorted (a folder before its contents), the version record last.
bool CollectEntries(const fs::path& root, std::vector<std::string>& entries)
{
    std::error_code ec;
    for (fs::recursive_directory_iterator it(root, ec), end; !ec && it != end; it.increment(ec))
        entries.push_back(it->path().lexically_relative(root).generic_string());
    if (ec) {
        std::fprintf(stderr, "make_package: cannot list '%s': %s\n", root.c_str(), ec.message().c_str());
        return false;
    }
    std::sort(entries.begin(), entries.end());
    const auto record = std::find(entries.begin(), entries.end(), kVersionRecord);
    if (record == entries.end()) {
        std::fprintf(stderr, "make_package: '%s' has no %s\n", root.c_str(), kVersionRecord);
        return false;
    }
    std::rotate(record, record + 1, entries.end());
    return true;
}

bool CopyData(archive* a, const fs::path& path)
{
    std::unique_ptr<FILE, int (*)(FILE*)> in(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (!in)
        return false;
    char buffer[65536];
    size_t n;
    while ((n = std::fread(buffer, 1, sizeof buffer, in.get())) > 0) {
        if (archive_write_data(a, buffer, n) != static_cast<la_ssize_t>(n))
            return false;
    }
    return !std::ferror(in.get());
}

bool WriteEntry(archive* a, const fs::path& root, const std::string& name)
{
    const fs::path path = root / name;
    struct stat st;
    if (lstat(path.c_str(), &st) != 0) {
        std::fprintf(stderr, "make_package: '%s': %s\n", path.c_str(), std::strerror(errno));
        return false;
    }
    EntryHolder holder;
    archive_entry* entry = holder.entry;
    archive_entry_set_pathname(entry, name.c_str());
    archive_entry_set_perm(entry, st.st_mode & 07777);
    archive_entry_set_mtime(entry, st.st_mtime, 0);
    if (S_ISDIR(st.st_mode)) {
        archive_entry_set_filetype(entry, AE_IFDIR);
    } else if (S_ISREG(st.st_mode)) {
        archive_entry_set_filetype(entry, AE_IFREG);
        archive_entry_set_size(entry, st.st_size);
    } else if (S_ISLNK(st.st_mode)) {
        std::error_code ec;
        const fs::path target = fs::read_symlink(path, ec);
        if (ec) {
            std::fprintf(stderr, "make_package: '%s': %s\n", path.c_str(), ec.message().c_str());
            return false;
        }
        archive_entry_set_filetype(entry, AE_IFLNK);
        archive_entry_set_symlink(entry, target.c_str());
    } else {
        std::fprintf(stderr, "make_package: '%s' is not a file, folder or link\n", path.c_str());
        return false;
    }
    if (archive_write_header(a, entry) != ARCHIVE_OK) {
        std::fprintf(stderr, "make_package: '%s': %s\n", name.c_str(), archive_error_string(a));
        return false;
    }
    if (S_ISREG(st.st_mode) && !CopyData(a, path)) {
        std::fprintf(stderr, "make_package: cannot pack '%s': %s\n", path.c_str(),
                     archive_error_string(a) ? archive_error_string(a) : std::strerror(errno));
        return false;
    }
    return true;
}

bool WritePackage(const std::string& format, const fs::path& output, const fs::path& root)
{
    std::vector<std::string> entries;
    if (!CollectEntries(root, entries))
        return false;
    ArchiveWriter writer;
    archive* a = writer.handle;
    if (!a || !SetFormat(a, format)) {
        std::fprintf(stderr, "make_package: cannot write format '%s'\n", format.c_str());
        return false;
    }
    if (archive_write_open_filename(a, output.c_str()) != ARCHIVE_OK) {
        std::fprintf(stderr, "make_package: '%s': %s\n", output.c_str(), archive_error_string(a));
        return false;
    }
    for (const std::string& name : entries) {
        if (!WriteEntry(a, root, name))
            return false;
    }
    if (archive_write_close(a) != ARCHIVE_OK) {
        std::fprintf(stderr, "make_package: '%s': %s\n", output.c_str(), archive_error_string(a));
        return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: make_package tar|tar.gz|tar.zst|zip OUTPUT ROOT\n");
        return 1;
    }
    const std::string format = argv[1];
    if (format != "tar" && format != "tar.gz" && format != "tar.zst" && format != "zip") {
        std::fprintf(stderr, "make_package: unknown format '%s'\n", argv[1]);
        return 1;
    }
    // Written aside and renamed: a failed or interrupted build never leaves a
    // package that looks complete.
    const fs::path output = argv[2];
    const fs::path partial = output.string() + ".part";
    if (!WritePackage(format, partial, argv[3])) {
        std::remove(partial.c_str());
        return 2;
    }
    if (std::rename(partial.c_str(), output.c_str()) != 0) {
        std::fprintf(stderr, "make_package: '%s': %s\n", output.c_str(), std::strerror(errno));
        std::remove(partial.c_str());
        return 2;
    }
    return 0;
}
