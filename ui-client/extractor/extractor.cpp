#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>

#include <pthread.h>

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>

#include "log.h"
#include "notify_adapter.h"
#include "strtable.h"
#include "thread_folder.h"

namespace {

const char kComponent[] = "extractor_debug";

// Read granularity for archive_read_open_filename.
const size_t kBlockSize = 10240;

// 0x2210: unlink what is in an entry's place, refuse ".." components, restore
// Mac metadata. SECURE_SYMLINKS on top: a package entry "lnk -> /elsewhere"
// followed by "lnk/file" must not write to /elsewhere; together with UNLINK the
// disk writer removes such an intermediate link instead of following it.
// Owners, permissions and times are deliberately not restored.
const int kDiskOptions = ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT |
                         ARCHIVE_EXTRACT_MAC_METADATA | ARCHIVE_EXTRACT_SECURE_SYMLINKS;

struct ReadFree {
    void operator()(archive* a) const { archive_read_free(a); }
};
struct WriteFree {
    void operator()(archive* a) const { archive_write_free(a); }
};
using ReadHandle = std::unique_ptr<archive, ReadFree>;
using WriteHandle = std::unique_ptr<archive, WriteFree>;

// Logs an error under our component; the result is the failure result, -1.
int fail(const char* format, ...) __attribute__((format(printf, 1, 2)));
int fail(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    Logger::LogMsg2(Logger::LOG_ERROR, kComponent, format, args);
    va_end(args);
    return -1;
}

// libarchive may have no text for an error; the log gets an empty one then.
const char* error_text(archive* a)
{
    const char* text = archive_error_string(a);
    return text != nullptr ? text : "";
}

// The formats of archive_read_support_format_all but mtree. An mtree
// manifest carries no bytes of its own: its entries name files of the machine
// it is read on, which the reader opens while it reads the headers. A package
// must bring its own files, so a manifest is never read as one.
int (*const FORMATS[])(archive*) = {
    archive_read_support_format_7zip, archive_read_support_format_ar,    archive_read_support_format_cab,
    archive_read_support_format_cpio, archive_read_support_format_empty, archive_read_support_format_iso9660,
    archive_read_support_format_lha,  archive_read_support_format_rar,   archive_read_support_format_rar5,
    archive_read_support_format_tar,  archive_read_support_format_warc,  archive_read_support_format_xar,
    archive_read_support_format_zip,
};

// Every filter and every format above; libarchive's result of opening path.
int open_reader(archive* reader, const ustring& path)
{
    archive_read_support_filter_all(reader);
    for (auto support : FORMATS)
        support(reader);
    return archive_read_open_filename(reader, path.c_str_utf8(), kBlockSize);
}

// Whether path is an mtree manifest. Opening only looks at the first bytes;
// no entry is read, so none of the files it names is touched.
bool is_mtree(const ustring& path)
{
    ReadHandle probe(archive_read_new());
    if (!probe)
        return false;
    archive_read_support_filter_all(probe.get());
    archive_read_support_format_mtree(probe.get());
    return archive_read_open_filename(probe.get(), path.c_str_utf8(), kBlockSize) == ARCHIVE_OK;
}

// Opens archive_path for a headers-only pass (Count, List, and Extract's
// count): false, logged, on an empty path or an archive that cannot be opened.
bool open_for_walk(const ustring& dest_path, const ustring& archive_path, ReadHandle& reader)
{
    if (dest_path.empty() || archive_path.empty()) {
        fail("[ERROR] extractor(%d): Invalid argument\n", __LINE__);
        return false;
    }
    reader.reset(archive_read_new());
    if (!reader) {
        fail("[ERROR] extractor(%d): Allocate archive failed\n", __LINE__);
        return false;
    }
    if (open_reader(reader.get(), archive_path) == ARCHIVE_OK)
        return true;
    if (is_mtree(archive_path))
        fail("[ERROR] extractor(%d): '%s' is an mtree manifest, refused: a package carries its own files\n",
             __LINE__, archive_path.c_str());
    else
        fail("[ERROR] extractor(%d): archive_read_open_filename failed: '%s'\n", __LINE__,
             error_text(reader.get()));
    return false;
}

// The headers-only pass: visit(entry) for every entry, its data skipped. Any
// error ends the pass with what was seen so far (Extract meets the same error
// in its own pass and reports it there). The number of entries seen.
template <typename Visit> int walk_headers(archive* reader, Visit visit)
{
    int n = 0;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader, &entry) == ARCHIVE_OK) {
        ++n;
        visit(entry);
        archive_read_data_skip(reader);
    }
    archive_read_close(reader);
    return n;
}

int count_failed(int total)
{
    return fail("[ERROR] extractor(%d): Failed to calculate total file numbers, ret: %d\n", __LINE__, total);
}

// What the read handle holds after archive_read_extract2 failed, with the
// system's text for a system error (a full disk, say: the writer's failure is
// handed to the reader). A damaged package has a text but no system error.
void read_failed(archive* reader)
{
    const int code = archive_errno(reader);
    if (code > 0)
        fail("[ERROR] extractor(%d): archive_read_extract2, read handle: '%s' (%s)\n", __LINE__,
             error_text(reader), strerror(code));
    else
        fail("[ERROR] extractor(%d): archive_read_extract2, read handle: '%s'\n", __LINE__,
             error_text(reader));
}

// Counts the entries of an opened archive and sends Extract's progress pairs
// (total, done) in order. Counting a compressed archive decompresses all of
// it; on a thread of its own that pass runs beside the extraction instead of
// before it. The pairs of entries written before the total is known are held
// back until it is. Only the count and the reader cross to the counting
// thread; the pairs are sent by the extracting one.
class Tally {
public:
    // Counts here, before returning, unless beside is set and a thread can be had.
    Tally(ReadHandle reader, bool beside) : reader_(std::move(reader))
    {
        running_ = beside && pthread_create(&thread_, nullptr, &Tally::run, this) == 0;
        if (!running_)
            run(this);
    }
    ~Tally()
    {
        if (running_)
            pthread_join(thread_, nullptr);
    }
    Tally(const Tally&) = delete;
    Tally& operator=(const Tally&) = delete;

    // Entry done is written: sends its pair and those held back, if the total
    // is known. false when the count is known to have failed.
    bool written(int done)
    {
        written_ = done;
        const int total = total_.load(std::memory_order_acquire);
        if (total == kUnknown)
            return true;
        send(total);
        return total > 0;
    }

    // Waits for the count and sends the pairs held back; the total (0 or less:
    // the count failed).
    int settle()
    {
        if (running_)
            pthread_join(thread_, nullptr);
        running_ = false;
        const int total = total_.load(std::memory_order_acquire);
        send(total);
        return total;
    }

private:
    static constexpr int kUnknown = -2;

    static void* run(void* self)
    {
        Tally* tally = static_cast<Tally*>(self);
        const int total = walk_headers(tally->reader_.get(), [](archive_entry*) {});
        tally->reader_.reset();  // its buffers are not needed while the extraction goes on
        tally->total_.store(total, std::memory_order_release);
        return nullptr;
    }

    void send(int total)
    {
        for (; total > 0 && sent_ < written_; ++sent_)
            Notify_Adapter::GetInstance()->UpdateProgress(total, sent_ + 1);
    }

    ReadHandle reader_;
    pthread_t thread_{};
    bool running_ = false;
    std::atomic<int> total_{kUnknown};
    int written_ = 0;
    int sent_ = 0;
};

// Whether a stored name has nothing but "/" and "." components ("", "./",
// "/./"): below the destination it names the destination folder itself.
bool names_destination(const char* name)
{
    for (const char* p = name; *p != '\0';) {
        const size_t length = strcspn(p, "/");
        if (length > 1 || (length == 1 && *p != '.'))
            return false;
        p += length + (p[length] == '/');
    }
    return true;
}

// The destination spelled without links. The disk writer removes every
// symbolic link it meets on an entry's path (UNLINK with SECURE_SYMLINKS);
// on an absolute path that includes links among the destination's own
// ancestors. If it cannot be resolved it is used as given.
ustring resolved_root(const ustring& dest)
{
    std::error_code ignored;
    const std::filesystem::path resolved = std::filesystem::weakly_canonical(dest.c_str_utf8(), ignored);
    if (resolved.empty())
        return dest;
    return ustring(resolved.string());
}

}  // namespace

int Extractor::Extract()
{
    if (archive_path.empty() || dest_path.empty())
        return fail("[ERROR] extractor(%d): Invalid Argument\n", __LINE__);
    Logger::LogMsg(Logger::LOG_DEBUG, kComponent, "[DEBUG] extractor(%d): decompress from '%s' to '%s'\n",
                   __LINE__, archive_path.c_str(), dest_path.c_str());
    Notify_Adapter::GetInstance()->UpdateDialogText(StrTable::LoadStr(StrTable::kIdPreparing));

    // The dialog can only show a fraction once the total is known. Only the
    // count opens the archive first: one that cannot be opened is not tried
    // again for the extraction.
    ReadHandle counting;
    if (!open_for_walk(dest_path, archive_path, counting))
        return count_failed(-1);
    // Without a filter the count only reads the headers and seeks past the
    // data: on tar and zip a thread saved nothing (bench/extract) and cost
    // memory. With one, the extraction no longer waits for a whole second
    // decompression.
    const bool beside = archive_filter_code(counting.get(), 0) != ARCHIVE_FILTER_NONE;
    Tally tally(std::move(counting), beside);
    if (!tally.written(0))
        return count_failed(tally.settle());
    // An extraction failure is told once the count is in, after the pairs held
    // back; a failed count is told instead.
    const auto counted_failure = [&tally] {
        const int total = tally.settle();
        if (total > 0)
            return false;
        count_failed(total);
        return true;
    };

    // Left only after the writer is freed: freeing it runs the fix-ups it
    // deferred, on the entry paths as they were given.
    std::optional<ThreadFolder> inside;
    ReadHandle reader(archive_read_new());
    if (!reader)
        return counted_failure() ? -1 : fail("[ERROR] extractor(%d): Allocate extractor failed\n", __LINE__);
    WriteHandle writer(archive_write_disk_new());
    if (!writer)
        return counted_failure() ? -1 : fail("[ERROR] extractor(%d): Allocate extractor failed\n", __LINE__);
    archive_write_disk_set_options(writer.get(), kDiskOptions);
    if (open_reader(reader.get(), archive_path) != ARCHIVE_OK)
        return counted_failure() ? -1
                                 : fail("[ERROR] extractor(%d): Failed to read file '%s' ('%s')\n", __LINE__,
                                        archive_path.c_str(), error_text(reader.get()));

    // Entry paths relative to the destination where this thread can have it
    // as its working folder (both archives are open by now): the writer
    // checks each component of a path for links, and the destination's own
    // ancestors then are not among them.
    const ustring root = resolved_root(dest_path);
    inside.emplace(root.c_str_utf8());
    const ustring prefix = inside->entered() ? ustring("./") : root + "/";
    for (int done = 1;; ++done) {
        archive_entry* entry = nullptr;
        const int r = archive_read_next_header(reader.get(), &entry);
        if (r == ARCHIVE_EOF) {
            if (counted_failure())
                return -1;
            // Closing runs the fix-ups the writer deferred to the end (the modes
            // of folders that had to stay writable while they were filled).
            if (archive_write_close(writer.get()) != ARCHIVE_OK)
                return fail("[ERROR] extractor(%d): archive_write_close failed: '%s'\n", __LINE__,
                            error_text(writer.get()));
            return 0;
        }
        // A warning here (a name that cannot be converted, say) is as fatal as an error.
        if (r != ARCHIVE_OK)
            return counted_failure() ? -1
                                     : fail("[ERROR] extractor(%d): archive_read_next_header failed: '%s'\n",
                                            __LINE__, error_text(reader.get()));
        const char* name = archive_entry_pathname(entry);
        if (name == nullptr)
            return counted_failure() ? -1
                                     : fail("[ERROR] extractor(%d): archive_entry_pathname failed", __LINE__);
        // As a folder such an entry is the destination already there; as
        // anything else the writer would unlink the destination to put it there.
        if (names_destination(name) && archive_entry_filetype(entry) != AE_IFDIR)
            return counted_failure() ? -1
                                     : fail("[ERROR] extractor(%d): entry '%s' would take the place of the "
                                            "destination folder\n",
                                            __LINE__, name);
        // The stored name is kept as it is: an absolute name lands below the
        // destination, and the writer refuses a ".." component.
        archive_entry_set_pathname(entry, (prefix + name).c_str_utf8());
        // A package's hard links point at its own entries, never at a file of
        // the working directory; a ".." in the target is refused the same way.
        if (const char* target = archive_entry_hardlink(entry))
            archive_entry_set_hardlink(entry, (prefix + target).c_str_utf8());

        // ARCHIVE_WARN covers refused entries (a ".." path, for one): fatal too.
        if (archive_read_extract2(reader.get(), entry, writer.get()) != ARCHIVE_OK) {
            if (counted_failure())
                return -1;
            fail("[ERROR] extractor(%d): archive_read_extract2 failed: '%s'\n", __LINE__,
                 error_text(writer.get()));
            // The writer has no text when reading the entry failed (a truncated
            // package), nor when a write failed: its error went to the reader.
            if (*error_text(writer.get()) == '\0')
                read_failed(reader.get());
            return -1;
        }
        if (!tally.written(done))
            return count_failed(tally.settle());
        if (archive_write_finish_entry(writer.get()) != ARCHIVE_OK)
            return counted_failure()
                       ? -1
                       : fail("[ERROR] extractor(%d): archive_write_finish_entry failed: '%s'\n", __LINE__,
                              error_text(writer.get()));
    }
}

int Extractor::Count()
{
    ReadHandle reader;
    if (!open_for_walk(dest_path, archive_path, reader))
        return -1;
    return walk_headers(reader.get(), [](archive_entry*) {});
}

int Extractor::List()
{
    ReadHandle reader;
    if (!open_for_walk(dest_path, archive_path, reader))
        return -1;
    walk_headers(reader.get(), [](archive_entry* entry) {
        const char* name = archive_entry_pathname(entry);
        printf("%s\n", name != nullptr ? name : "");
        fflush(stdout);
    });
    return 0;
}

int Extractor::copy_data(struct archive* ar, struct archive* aw)
{
    if (ar == nullptr || aw == nullptr)
        return fail("[ERROR] extractor(%d): Invalid Argument\n", __LINE__);
    for (;;) {
        const void* buffer = nullptr;
        size_t size = 0;
        la_int64_t offset = 0;
        const int r = archive_read_data_block(ar, &buffer, &size, &offset);
        if (r == ARCHIVE_EOF)
            return 0;
        if (r != ARCHIVE_OK)
            return fail("[ERROR] extractor(%d): archive_read_data_block failed: '%s'\n", __LINE__,
                        error_text(ar));
        if (archive_write_data_block(aw, buffer, size, offset) != ARCHIVE_OK)
            return fail("[ERROR] extractor(%d): archive_write_data_block failed: '%s'\n", __LINE__,
                        error_text(aw));
    }
}
