#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <system_error>

#include "cpu_count.h"
#include "log.h"
#include "notify_adapter.h"
#include "strtable.h"
#include "thread_folder.h"
#include "writer_pool.h"

namespace {

const char kComponent[] = "extractor_debug";

// Writer threads at most. Writing is the kernel creating and filling files;
// past a few threads they mostly wait for each other on the same folders,
// and the reading thread, decompressing alone, sets the pace.
const int kMaxWriters = 4;

// Read granularity of every pass over the package.
const size_t kBlockSize = 64 * 1024;

// The version record is a few lines; one this big is no record.
const size_t kRecordLimit = 64 * 1024;

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
struct EntryFree {
    void operator()(archive_entry* e) const { archive_entry_free(e); }
};
using ReadHandle = std::unique_ptr<archive, ReadFree>;
using WriteHandle = std::unique_ptr<archive, WriteFree>;
using EntryHandle = std::unique_ptr<archive_entry, EntryFree>;

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

// The same at warning level, for what is refused rather than broken.
int refuse(const char* format, ...) __attribute__((format(printf, 1, 2)));
int refuse(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    Logger::LogMsg2(Logger::LOG_WARNING, kComponent, format, args);
    va_end(args);
    return -1;
}

// libarchive may have no text for an error; the log gets an empty one then.
const char* error_text(archive* a)
{
    const char* text = archive_error_string(a);
    return text != nullptr ? text : "";
}

// The package, opened once for every pass over it. Opened without blocking
// and checked to be a regular file: a FIFO or a device (a link to /dev/zero)
// would block the reader or never end. The passes read this descriptor, each
// at an offset of its own, so they read the file that was checked, whatever
// takes its name meanwhile.
class PackageFile {
public:
    PackageFile() = default;
    ~PackageFile()
    {
        if (fd_ >= 0)
            close(fd_);
    }
    PackageFile(const PackageFile&) = delete;
    PackageFile& operator=(const PackageFile&) = delete;

    // false, logged, when path cannot be opened or is not a regular file.
    // O_NONBLOCK stays set: reading a regular file ignores it.
    bool open(const ustring& path)
    {
        fd_ = ::open(path.c_str_utf8(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        struct stat st;
        if (fd_ < 0 || fstat(fd_, &st) != 0) {
            const int code = errno;
            fail("[ERROR] extractor(%d): archive_read_open_filename failed: 'Failed to open '%s': %s'\n",
                 __LINE__, path.c_str(), strerror(code));
            return false;
        }
        if (!S_ISREG(st.st_mode)) {
            refuse("[WARNING] extractor(%d): '%s' is not a regular file, refused\n", __LINE__, path.c_str());
            return false;
        }
        size_ = st.st_size;
        return true;
    }

    int fd() const { return fd_; }
    la_int64_t size() const { return size_; }

private:
    int fd_ = -1;
    la_int64_t size_ = 0;
};

// One pass over the package: a read handle and its own place in the file.
// The count's pass can be stopped from another thread: its next read fails.
struct Pass {
    explicit Pass(const PackageFile& package) : file(package) {}
    Pass(const Pass&) = delete;
    Pass& operator=(const Pass&) = delete;

    const PackageFile& file;
    la_int64_t offset = 0;
    std::atomic<bool> stop{false};
    ReadHandle reader;
    char block[kBlockSize];
};

// libarchive's callbacks over a Pass. A compressed package's count spends its
// time decompressing and asks for a block every kBlockSize bytes of input:
// that is where it sees the stop.
la_ssize_t read_block(archive* a, void* data, const void** block)
{
    Pass* pass = static_cast<Pass*>(data);
    if (pass->stop.load(std::memory_order_relaxed)) {
        archive_set_error(a, ECANCELED, "Reading stopped");
        return -1;
    }
    ssize_t got;
    do
        got = pread(pass->file.fd(), pass->block, sizeof pass->block, pass->offset);
    while (got < 0 && errno == EINTR);
    if (got < 0) {
        archive_set_error(a, errno, "Read error");
        return -1;
    }
    pass->offset += got;
    *block = pass->block;
    return got;
}

// Never past the end: libarchive reads what is left of the request, and so
// meets the end of a package cut short as such.
la_int64_t skip_bytes(archive*, void* data, la_int64_t request)
{
    Pass* pass = static_cast<Pass*>(data);
    const la_int64_t left = std::max<la_int64_t>(0, pass->file.size() - pass->offset);
    const la_int64_t skipped = std::clamp<la_int64_t>(request, 0, left);
    pass->offset += skipped;
    return skipped;
}

// Zip and 7-Zip read their directory at the end: a seekable source lets them.
la_int64_t seek_to(archive* a, void* data, la_int64_t offset, int whence)
{
    Pass* pass = static_cast<Pass*>(data);
    const la_int64_t base = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? pass->offset : pass->file.size();
    if (offset < -base || offset > std::numeric_limits<la_int64_t>::max() - base) {
        archive_set_error(a, EINVAL, "Seek out of the package");
        return ARCHIVE_FATAL;
    }
    pass->offset = base + offset;
    return pass->offset;
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

// Opens pass.reader, allocated already, on the package: every filter, and
// the formats above or, to tell a manifest, mtree alone. libarchive's result.
int open_pass(Pass& pass, bool mtree = false)
{
    archive* reader = pass.reader.get();
    archive_read_support_filter_all(reader);
    if (mtree)
        archive_read_support_format_mtree(reader);
    else
        for (auto support : FORMATS)
            support(reader);
    archive_read_set_callback_data(reader, &pass);
    archive_read_set_read_callback(reader, read_block);
    archive_read_set_skip_callback(reader, skip_bytes);
    archive_read_set_seek_callback(reader, seek_to);
    return archive_read_open1(reader);
}

// Whether the package is an mtree manifest. Opening only looks at the first
// bytes; no entry is read, so none of the files it names is touched.
bool is_mtree(const PackageFile& package)
{
    Pass probe(package);
    probe.reader.reset(archive_read_new());
    return probe.reader && open_pass(probe, true) == ARCHIVE_OK;
}

// Opens the package and a pass over it for a headers-only walk (Count, List,
// and Extract's count): false, logged, on an empty path, a package that is
// not a regular file, or an archive that cannot be opened.
bool open_for_walk(const ustring& dest_path, const ustring& archive_path, PackageFile& package, Pass& pass)
{
    if (dest_path.empty() || archive_path.empty()) {
        fail("[ERROR] extractor(%d): Invalid argument\n", __LINE__);
        return false;
    }
    pass.reader.reset(archive_read_new());
    if (!pass.reader) {
        fail("[ERROR] extractor(%d): Allocate archive failed\n", __LINE__);
        return false;
    }
    if (!package.open(archive_path))
        return false;
    if (open_pass(pass) == ARCHIVE_OK)
        return true;
    if (is_mtree(package))
        fail("[ERROR] extractor(%d): '%s' is an mtree manifest, refused: a package carries its own files\n",
             __LINE__, archive_path.c_str());
    else
        fail("[ERROR] extractor(%d): archive_read_open_filename failed: '%s'\n", __LINE__,
             error_text(pass.reader.get()));
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

// Counts the entries of an opened package and sends Extract's progress pairs
// (total, done) in order. Counting a compressed package decompresses all of
// it; on a thread of its own that pass runs beside the extraction instead of
// before it. The pairs of entries written before the total is known are held
// back until it is. Only the count and the pass cross to the counting
// thread; the pairs are sent by the extracting one.
//
// A failed extraction does not wait for the count: the object's end stops it
// at its next read and joins its thread, so that the caller's rollback starts
// at once. The pairs still held back then are dropped; they have no total.
class Tally {
public:
    // Counts here, before returning, unless beside is set and a thread can be had.
    Tally(std::unique_ptr<Pass> pass, bool beside) : pass_(std::move(pass))
    {
        running_ = beside && pthread_create(&thread_, nullptr, &Tally::run, this) == 0;
        if (!running_)
            run(this);
    }
    ~Tally()
    {
        pass_->stop.store(true, std::memory_order_relaxed);
        if (running_)
            pthread_join(thread_, nullptr);
    }
    Tally(const Tally&) = delete;
    Tally& operator=(const Tally&) = delete;

    // Whether the count runs beside the extraction, its total unknown yet.
    bool beside() const { return running_; }

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
        const int total = walk_headers(tally->pass_->reader.get(), [](archive_entry*) {});
        tally->pass_->reader.reset();  // its buffers are not needed while the extraction goes on
        tally->total_.store(total, std::memory_order_release);
        return nullptr;
    }

    void send(int total)
    {
        for (; total > 0 && sent_ < written_; ++sent_)
            Notify_Adapter::GetInstance()->UpdateProgress(total, sent_ + 1);
    }

    std::unique_ptr<Pass> pass_;
    pthread_t thread_{};
    bool running_ = false;
    std::atomic<int> total_{kUnknown};
    int written_ = 0;
    int sent_ = 0;
};

// Whether a stored name, once below the destination, names the path of the
// given components: "" and "." components and leading, doubled or trailing
// slashes count for nothing ("./", "/./" name the destination itself).
bool names_path(const char* name, std::initializer_list<const char*> components)
{
    auto expected = components.begin();
    for (const char* p = name; *p != '\0';) {
        const size_t length = strcspn(p, "/");
        if (length > 1 || (length == 1 && *p != '.')) {
            if (expected == components.end() || strncmp(p, *expected, length) != 0 ||
                (*expected)[length] != '\0')
                return false;
            ++expected;
        }
        p += length + (p[length] == '/');
    }
    return expected == components.end();
}

bool names_destination(const char* name)
{
    return names_path(name, {});
}

// The version record of the copy: a copy counts as complete only once it is
// there, so it is written after every other entry.
bool names_record(const char* name)
{
    return names_path(name, {"Contents", "Resources", "INFO"});
}

// What a package may hold: files, folders and links. A device, FIFO or socket
// has no business in a per-user copy (as root the writer would make device
// nodes); the word for the log, or nullptr for what is allowed. A hard link is
// made as a link, whatever type its header claims.
const char* refused_kind(archive_entry* entry)
{
    if (archive_entry_hardlink(entry) != nullptr)
        return nullptr;
    switch (archive_entry_filetype(entry)) {
    case AE_IFREG:
    case AE_IFDIR:
    case AE_IFLNK:
        return nullptr;
    case AE_IFCHR:
        return "a character device";
    case AE_IFBLK:
        return "a block device";
    case AE_IFIFO:
        return "a FIFO";
    case AE_IFSOCK:
        return "a socket";
    default:
        return "of an unknown type";
    }
}

// The version record's entry, taken off the reader where the package gives
// it and written once every other entry is: its header and its few bytes.
class HeldRecord {
public:
    explicit operator bool() const { return entry_ != nullptr; }

    // Takes the reader's current entry, stored as name, and its data, its
    // paths put below the destination as prefix says; false, logged, when
    // its data cannot be read or is too big for a record. A record held
    // before is dropped: the later entry replaces it, as it would on disk.
    bool take(archive* reader, archive_entry* entry, const char* name, const ustring& prefix)
    {
        entry_.reset(archive_entry_clone(entry));
        data_.clear();
        if (!entry_) {
            fail("[ERROR] extractor(%d): Allocate extractor failed\n", __LINE__);
            return false;
        }
        archive_entry_set_pathname(entry_.get(), (prefix + name).c_str_utf8());
        if (const char* target = archive_entry_hardlink(entry_.get()))
            archive_entry_set_hardlink(entry_.get(), (prefix + target).c_str_utf8());
        if (archive_entry_size_is_set(entry) &&
            archive_entry_size(entry) > static_cast<la_int64_t>(kRecordLimit))
            return too_big(name);
        char block[4096];
        for (;;) {
            const la_ssize_t got = archive_read_data(reader, block, sizeof block);
            if (got == 0)
                return true;
            if (got < 0) {
                read_failed(reader);
                return false;
            }
            data_.append(block, static_cast<size_t>(got));
            if (data_.size() > kRecordLimit)
                return too_big(name);
        }
    }

    // A hard link to the held record has no target on disk yet; written as a
    // copy of the record's bytes instead, it reads the same. false when the
    // record is no plain file to copy: the link is then written as it is.
    bool copy_into(archive_entry* link) const
    {
        if (archive_entry_filetype(entry_.get()) != AE_IFREG ||
            archive_entry_hardlink(entry_.get()) != nullptr)
            return false;
        archive_entry_set_hardlink(link, nullptr);
        archive_entry_set_filetype(link, AE_IFREG);
        archive_entry_set_perm(link, archive_entry_perm(entry_.get()));
        archive_entry_set_size(link, static_cast<la_int64_t>(data_.size()));
        return true;
    }

    // Writes the record, or an entry made a copy of it; false, logged, on a failure.
    bool write(archive* writer, archive_entry* entry = nullptr) const
    {
        if (entry == nullptr)
            entry = entry_.get();
        if (archive_write_header(writer, entry) == ARCHIVE_OK &&
            (data_.empty() || archive_write_data(writer, data_.data(), data_.size()) ==
                                  static_cast<la_ssize_t>(data_.size())) &&
            archive_write_finish_entry(writer) == ARCHIVE_OK)
            return true;
        fail("[ERROR] extractor(%d): writing '%s' failed: '%s'\n", __LINE__, archive_entry_pathname(entry),
             error_text(writer));
        return false;
    }

private:
    bool too_big(const char* name)
    {
        fail("[ERROR] extractor(%d): entry '%s' is over %zu bytes, too big for a version record\n", __LINE__,
             name, kRecordLimit);
        return false;
    }

    EntryHandle entry_;
    std::string data_;
};

// Whether the entry goes to a writer thread: a regular file. Everything else
// changes what later paths lead to (a folder, a link) or needs an earlier
// entry on disk (a hard link), and is written when no other entry is in
// flight. So is a name with a ".." component, which the disk writer refuses:
// then the entries before it are on disk and none after it, as ever.
bool for_writers(archive_entry* entry, const char* name)
{
    if (archive_entry_filetype(entry) != AE_IFREG || archive_entry_hardlink(entry) != nullptr)
        return false;
    for (const char* p = name; *p != '\0';) {
        const size_t length = strcspn(p, "/");
        if (length == 2 && p[0] == '.' && p[1] == '.')
            return false;
        p += length + (p[length] == '/');
    }
    return true;
}

// Reads the current entry's data into the pool; false, logged, when reading
// fails (the same lines as a failed archive_read_extract2), or when the pool
// has failed (logged by the writer).
bool hand_data(archive* reader, WriterPool& pool)
{
    for (;;) {
        const void* block = nullptr;
        size_t size = 0;
        la_int64_t offset = 0;
        const int r = archive_read_data_block(reader, &block, &size, &offset);
        if (r == ARCHIVE_EOF)
            return pool.end();
        if (r != ARCHIVE_OK) {
            fail("[ERROR] extractor(%d): archive_read_extract2 failed: ''\n", __LINE__);
            read_failed(reader);
            return false;
        }
        if (!pool.data(block, size, offset))
            return false;
    }
}

// Writer threads beside the reading one: as many as the CPUs this process
// may use, up to kMaxWriters; none with one CPU, where a thread would only
// take turns with the reader.
int writer_threads(int asked)
{
    if (asked >= 0)
        return asked;
    const int cpus = UsableCpuCount();
    return cpus > 1 ? std::min(cpus, kMaxWriters) : 0;
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
    // count opens the package first: one that cannot be opened is not tried
    // again, and the extraction reads the same descriptor.
    PackageFile package;
    auto counting = std::make_unique<Pass>(package);
    if (!open_for_walk(dest_path, archive_path, package, *counting))
        return count_failed(-1);
    // Without a filter the count only reads the headers and seeks past the
    // data: on tar and zip a thread saved nothing (bench/extract) and cost
    // memory. With one, the extraction no longer waits for a whole second
    // decompression.
    const bool beside = archive_filter_code(counting->reader.get(), 0) != ARCHIVE_FILTER_NONE;

    // They end in the reverse order: a count still running is stopped first,
    // so a failure returns at once; then the writer is freed, which runs the
    // fix-ups it deferred on the entry paths as they were given; the
    // destination is left last.
    std::optional<ThreadFolder> inside;
    Pass extracting(package);
    WriteHandle writer;
    // Made before the destination is entered: a thread inherits its
    // creator's private working folder.
    Tally tally(std::move(counting), beside);
    // Regular files are written on these threads, while this one reads on.
    std::optional<WriterPool> pool;
    // A count made before the extraction is known now. One beside it is
    // consulted only at the end: until then the two race, and the extraction
    // meets whatever the count met.
    if (!tally.beside()) {
        const int total = tally.settle();
        if (total <= 0)
            return count_failed(total);
    }

    extracting.reader.reset(archive_read_new());
    if (!extracting.reader)
        return fail("[ERROR] extractor(%d): Allocate extractor failed\n", __LINE__);
    writer.reset(archive_write_disk_new());
    if (!writer)
        return fail("[ERROR] extractor(%d): Allocate extractor failed\n", __LINE__);
    archive_write_disk_set_options(writer.get(), kDiskOptions);
    archive* const reader = extracting.reader.get();
    if (open_pass(extracting) != ARCHIVE_OK)
        return fail("[ERROR] extractor(%d): Failed to read file '%s' ('%s')\n", __LINE__,
                    archive_path.c_str(), error_text(reader));

    // Entry paths relative to the destination where this thread can have it
    // as its working folder (both passes are open by now): the writer checks
    // each component of a path for links, and the destination's own
    // ancestors then are not among them.
    const ustring root = resolved_root(dest_path);
    // Started before this thread enters the destination, as the count was;
    // each writer enters it for itself.
    if (const int threads = writer_threads(writers)) {
        pool.emplace(threads, root, kDiskOptions);
        if (pool->size() == 0)
            pool.reset();
    }
    inside.emplace(root.c_str_utf8());
    const ustring prefix = inside->entered() ? ustring("./") : root + "/";
    // A copy counts as complete once its version record is there: wherever
    // the package puts it, it is written last, so that an extraction cut
    // short never leaves a copy that passes for complete.
    HeldRecord record;
    // The pairs go out from this thread, one per entry finished, whichever
    // thread wrote it: done rises by one each time.
    int done = 0;
    int own = 0;  // entries this thread finished
    const auto report = [&]() {
        const int finished = own + (pool ? pool->written() : 0);
        if (finished == done)
            return true;
        done = finished;
        return tally.written(done);
    };
    for (;;) {
        archive_entry* entry = nullptr;
        const int r = archive_read_next_header(reader, &entry);
        if (r == ARCHIVE_EOF) {
            if (pool && !pool->finish())
                return -1;
            if (!report())
                return count_failed(tally.settle());
            if (record && !record.write(writer.get()))
                return -1;
            own += record ? 1 : 0;
            if (!report())
                return count_failed(tally.settle());
            const int total = tally.settle();
            if (total <= 0)
                return count_failed(total);
            // Closing runs the fix-ups the writer deferred to the end (the modes
            // of folders that had to stay writable while they were filled).
            if (archive_write_close(writer.get()) != ARCHIVE_OK)
                return fail("[ERROR] extractor(%d): archive_write_close failed: '%s'\n", __LINE__,
                            error_text(writer.get()));
            return 0;
        }
        // A warning here (a name that cannot be converted, say) is as fatal as an error.
        if (r != ARCHIVE_OK)
            return fail("[ERROR] extractor(%d): archive_read_next_header failed: '%s'\n", __LINE__,
                        error_text(reader));
        const char* name = archive_entry_pathname(entry);
        if (name == nullptr)
            return fail("[ERROR] extractor(%d): archive_entry_pathname failed", __LINE__);
        // As a folder such an entry is the destination already there; as
        // anything else the writer would unlink the destination to put it there.
        if (names_destination(name) && archive_entry_filetype(entry) != AE_IFDIR)
            return fail("[ERROR] extractor(%d): entry '%s' would take the place of the destination folder\n",
                        __LINE__, name);
        if (const char* kind = refused_kind(entry))
            return refuse("[WARNING] extractor(%d): entry '%s' is %s, refused: a package holds only files, "
                          "folders and links\n",
                          __LINE__, name, kind);
        if (names_record(name)) {
            // A record held already counts as written: this one replaces it.
            own += record ? 1 : 0;
            if (!report())
                return count_failed(tally.settle());
            if (!record.take(reader, entry, name, prefix))
                return -1;
            continue;
        }
        if (pool && for_writers(entry, name)) {
            if (!pool->begin(entry, name) || !hand_data(reader, *pool))
                return -1;
            if (!report())
                return count_failed(tally.settle());
            continue;
        }
        // Nothing else is in flight while this entry is written; the pairs
        // of those before it go out first, as they would in order.
        if (pool && !pool->drain())
            return -1;
        if (!report())
            return count_failed(tally.settle());
        // The stored name is kept as it is: an absolute name lands below the
        // destination, and the writer refuses a ".." component.
        archive_entry_set_pathname(entry, (prefix + name).c_str_utf8());
        const char* target = archive_entry_hardlink(entry);
        if (target != nullptr && record && names_record(target) && record.copy_into(entry)) {
            if (!record.write(writer.get(), entry))
                return -1;
        } else {
            // A package's hard links point at its own entries, never at a file of
            // the working directory; a ".." in the target is refused the same way.
            if (target != nullptr)
                archive_entry_set_hardlink(entry, (prefix + target).c_str_utf8());
            // ARCHIVE_WARN covers refused entries (a ".." path, for one): fatal too.
            if (archive_read_extract2(reader, entry, writer.get()) != ARCHIVE_OK) {
                fail("[ERROR] extractor(%d): archive_read_extract2 failed: '%s'\n", __LINE__,
                     error_text(writer.get()));
                // The writer has no text when reading the entry failed (a truncated
                // package), nor when a write failed: its error went to the reader.
                if (*error_text(writer.get()) == '\0')
                    read_failed(reader);
                return -1;
            }
            if (archive_write_finish_entry(writer.get()) != ARCHIVE_OK)
                return fail("[ERROR] extractor(%d): archive_write_finish_entry failed: '%s'\n", __LINE__,
                            error_text(writer.get()));
        }
        ++own;
        if (!report())
            return count_failed(tally.settle());
    }
}

int Extractor::Count()
{
    PackageFile package;
    Pass pass(package);
    if (!open_for_walk(dest_path, archive_path, package, pass))
        return -1;
    return walk_headers(pass.reader.get(), [](archive_entry*) {});
}

int Extractor::List()
{
    PackageFile package;
    Pass pass(package);
    if (!open_for_walk(dest_path, archive_path, package, pass))
        return -1;
    walk_headers(pass.reader.get(), [](archive_entry* entry) {
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
