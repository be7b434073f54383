// Writes the seed corpus of fuzz_extract into the folder given: one small
// package (a folder, two files, a symbolic and a hard link) in each format and
// filter that libarchive both writes and reads. A format that cannot hold an
// entry kind gets the entries it can hold; one that this libarchive cannot
// write is left out and named on standard error.
#include <cstdio>
#include <string>

#include "test_archive.h"

namespace {

using dwtest::Entry;

struct Packing {
    const char* name;
    int format;
    int filter;
    const char* options;  // libarchive writer options, or null
};

const int kPax = ARCHIVE_FORMAT_TAR_PAX_RESTRICTED;
const Packing kPackings[] = {
    {"pax.tar", kPax, ARCHIVE_FILTER_NONE, nullptr},
    {"ustar.tar", ARCHIVE_FORMAT_TAR_USTAR, ARCHIVE_FILTER_NONE, nullptr},
    {"gnu.tar", ARCHIVE_FORMAT_TAR_GNUTAR, ARCHIVE_FILTER_NONE, nullptr},
    {"tar.gz", kPax, ARCHIVE_FILTER_GZIP, nullptr},
    {"tar.bz2", kPax, ARCHIVE_FILTER_BZIP2, nullptr},
    {"tar.xz", kPax, ARCHIVE_FILTER_XZ, nullptr},
    {"tar.lzma", kPax, ARCHIVE_FILTER_LZMA, nullptr},
    {"tar.lz", kPax, ARCHIVE_FILTER_LZIP, nullptr},
    {"tar.zst", kPax, ARCHIVE_FILTER_ZSTD, nullptr},
    {"tar.lz4", kPax, ARCHIVE_FILTER_LZ4, nullptr},
    {"tar.Z", kPax, ARCHIVE_FILTER_COMPRESS, nullptr},
    {"tar.uu", kPax, ARCHIVE_FILTER_UU, nullptr},
    {"newc.cpio", ARCHIVE_FORMAT_CPIO_SVR4_NOCRC, ARCHIVE_FILTER_NONE, nullptr},
    {"odc.cpio", ARCHIVE_FORMAT_CPIO_POSIX, ARCHIVE_FILTER_NONE, nullptr},
    {"deflate.zip", ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE, nullptr},
    {"stored.zip", ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE, "zip:compression=store"},
    {"lzma.7z", ARCHIVE_FORMAT_7ZIP, ARCHIVE_FILTER_NONE, nullptr},
    {"stored.7z", ARCHIVE_FORMAT_7ZIP, ARCHIVE_FILTER_NONE, "7zip:compression=store"},
    {"bsd.ar", ARCHIVE_FORMAT_AR_BSD, ARCHIVE_FILTER_NONE, nullptr},
    {"svr4.ar", ARCHIVE_FORMAT_AR_GNU, ARCHIVE_FILTER_NONE, nullptr},
    {"iso", ARCHIVE_FORMAT_ISO9660, ARCHIVE_FILTER_NONE, "iso9660:!pad"},
    {"xar", ARCHIVE_FORMAT_XAR, ARCHIVE_FILTER_NONE, nullptr},
    {"warc", ARCHIVE_FORMAT_WARC, ARCHIVE_FILTER_NONE, nullptr},
    // Refused by the extractor; the seed keeps that path covered.
    {"mtree", ARCHIVE_FORMAT_MTREE, ARCHIVE_FILTER_NONE, nullptr},
};

// The version record first and a hard link to it: the extractor holds the
// record back to the end and writes the link as a copy.
const Entry kEntries[] = {
    {Entry::File, "Contents/Resources/INFO", "[Version]\nbuild_version=7\n"},
    {Entry::Folder, "Contents", ""},
    {Entry::File, "Contents/drift-ui",
     "\x7f"
     "ELF program"},
    {Entry::Symlink, "Contents/current", "drift-ui"},
    {Entry::Hardlink, "Contents/again", "Contents/Resources/INFO"},
};

bool write_package(const std::string& path, const Packing& p)
{
    // A fixed time: the seeds do not change between builds.
    dwtest::ArchiveWriter writer(path, {p.format, p.filter, p.options, 1500000000});
    // A kind the format cannot hold is refused without harm to the rest.
    for (const Entry& e : kEntries)
        writer.Add(e);
    if (writer.Close())
        return true;
    fprintf(stderr, "%s: %s\n", path.c_str(), writer.Error().empty() ? "failed" : writer.Error().c_str());
    remove(path.c_str());
    return false;
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
