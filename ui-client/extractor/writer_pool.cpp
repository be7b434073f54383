#include "writer_pool.h"

#include <archive_entry.h>

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <iterator>

#include "log.h"
#include "thread_folder.h"

namespace {

const char kComponent[] = "extractor_debug";

// A chunk is handed over once this full: most files are one chunk, and a
// big one costs a wake-up per 256 KiB rather than per block read.
const size_t kChunkSize = 256 * 1024;

// Data read but not yet written. Writers that fall behind hold the reader
// here, so the extraction's memory stays bounded whatever the package holds.
// 4 MiB went past bsdtar's peak + 8 MiB on tar.zst and was no faster.
const size_t kBudget = 2 * 1024 * 1024;

// Files handed out and not yet written: bounds the headers held and the
// overlap check's work per file.
const size_t kMaxJobs = 256;

struct WriteFree {
    void operator()(archive* a) const { archive_write_free(a); }
};

const char* error_text(archive* a)
{
    const char* text = archive_error_string(a);
    return text != nullptr ? text : "";
}

// The path below the destination as compared for overlaps: "" and "."
// components dropped, ASCII letters folded (a volume that ignores case
// takes "A" and "a" for one path; a false overlap only costs a wait).
std::string path_key(const char* name)
{
    std::string key;
    for (const char* p = name; *p != '\0';) {
        const size_t length = strcspn(p, "/");
        if (length > 1 || (length == 1 && *p != '.')) {
            if (!key.empty())
                key += '/';
            for (size_t i = 0; i < length; ++i)
                key += static_cast<char>(p[i] >= 'A' && p[i] <= 'Z' ? p[i] - 'A' + 'a' : p[i]);
        }
        p += length + (p[length] == '/');
    }
    return key;
}

// Whether one path is the other or lies below it.
bool overlap(const std::string& a, const std::string& b)
{
    const std::string& shorter = a.size() < b.size() ? a : b;
    const std::string& longer = a.size() < b.size() ? b : a;
    return longer.compare(0, shorter.size(), shorter) == 0 &&
           (longer.size() == shorter.size() || shorter.empty() || longer[shorter.size()] == '/');
}

}  // namespace

WriterPool::WriterPool(int count, const ustring& root, int options) : root_(root), options_(options)
{
    for (int i = 0; i < count; ++i) {
        pthread_t thread;
        if (pthread_create(&thread, nullptr, &WriterPool::run, this) != 0)
            break;
        threads_.push_back(thread);
    }
}

WriterPool::~WriterPool()
{
    finish();
}

void* WriterPool::run(void* self)
{
    static_cast<WriterPool*>(self)->write_files();
    return nullptr;
}

void WriterPool::write_files()
{
    // Each writer names its entries relative to the destination as the
    // reading thread does, from a working folder of its own.
    ThreadFolder inside(root_.c_str_utf8());
    const ustring prefix = inside.entered() ? ustring("./") : root_ + "/";
    std::unique_ptr<archive, WriteFree> disk(archive_write_disk_new());
    if (disk)
        archive_write_disk_set_options(disk.get(), options_);
    else
        fail("[ERROR] extractor(%d): Allocate extractor failed\n", __LINE__);

    std::unique_lock<std::mutex> lock(mutex_);
    for (;;) {
        job_wake_.wait(lock, [this] { return !queue_.empty() || closed_; });
        if (queue_.empty())
            break;
        const Jobs::iterator job = queue_.front();
        queue_.pop_front();
        // After a failure the files still handed out are dropped.
        bool ok = disk && !failed_;
        bool opened = false;
        if (ok) {
            lock.unlock();
            archive_entry_set_pathname(job->entry.get(), (prefix + job->name.c_str()).c_str_utf8());
            // ARCHIVE_WARN leaves the file open, and counts as a failure as everywhere.
            const int r = archive_write_header(disk.get(), job->entry.get());
            opened = r >= ARCHIVE_WARN;
            if (r != ARCHIVE_OK) {
                fail("[ERROR] extractor(%d): archive_read_extract2 failed: '%s'\n", __LINE__,
                     error_text(disk.get()));
                ok = false;
            }
            lock.lock();
        }
        for (;;) {
            data_wake_.wait(lock, [&job] { return !job->chunks.empty() || job->complete; });
            if (job->chunks.empty())
                break;
            Chunk chunk = std::move(job->chunks.front());
            job->chunks.pop_front();
            ok = ok && !failed_;
            lock.unlock();
            if (ok && archive_write_data_block(disk.get(), chunk.bytes.data(), chunk.bytes.size(),
                                               chunk.offset) != ARCHIVE_OK) {
                fail("[ERROR] extractor(%d): archive_read_extract2 failed: '%s'\n", __LINE__,
                     error_text(disk.get()));
                ok = false;
            }
            lock.lock();
            bytes_ -= chunk.bytes.size();
            reader_wake_.notify_one();
        }
        lock.unlock();
        if (opened && archive_write_finish_entry(disk.get()) != ARCHIVE_OK && ok) {
            fail("[ERROR] extractor(%d): archive_write_finish_entry failed: '%s'\n", __LINE__,
                 error_text(disk.get()));
            ok = false;
        }
        lock.lock();
        jobs_.erase(job);
        if (ok)
            written_.fetch_add(1, std::memory_order_release);
        reader_wake_.notify_one();
    }
    lock.unlock();
    // Closing runs the fix-ups this writer deferred, on the paths as given:
    // still inside the destination.
    if (disk && archive_write_close(disk.get()) != ARCHIVE_OK)
        fail("[ERROR] extractor(%d): archive_write_close failed: '%s'\n", __LINE__, error_text(disk.get()));
}

bool WriterPool::overlaps_in_flight(const std::string& key) const
{
    for (const Job& job : jobs_) {
        if (overlap(job.key, key))
            return true;
    }
    return false;
}

bool WriterPool::begin(archive_entry* entry, const char* name)
{
    Job job;
    job.entry = {archive_entry_clone(entry), archive_entry_free};
    if (!job.entry) {
        fail("[ERROR] extractor(%d): Allocate extractor failed\n", __LINE__);
        return false;
    }
    job.name = name;
    job.key = path_key(name);
    std::unique_lock<std::mutex> lock(mutex_);
    reader_wake_.wait(lock,
                      [&] { return failed_ || (jobs_.size() < kMaxJobs && !overlaps_in_flight(job.key)); });
    if (failed_)
        return false;
    jobs_.push_back(std::move(job));
    current_ = std::prev(jobs_.end());
    filling_ = true;
    chunk_ = Chunk();
    const la_int64_t size = archive_entry_size_is_set(entry) ? archive_entry_size(entry) : 0;
    chunk_.bytes.reserve(
        static_cast<size_t>(std::clamp<la_int64_t>(size, 0, static_cast<la_int64_t>(kChunkSize))));
    return true;
}

bool WriterPool::data(const void* block, size_t size, la_int64_t offset)
{
    // A jump in the offsets (a sparse file's hole) starts a chunk of its own.
    if (!chunk_.bytes.empty() && chunk_.offset + static_cast<la_int64_t>(chunk_.bytes.size()) != offset) {
        std::unique_lock<std::mutex> lock(mutex_);
        if (!hand_over(lock, true))
            return false;
    }
    if (chunk_.bytes.empty()) {
        chunk_.offset = offset;
        if (chunk_.bytes.capacity() == 0)
            chunk_.bytes.reserve(kChunkSize);
    }
    const char* bytes = static_cast<const char*>(block);
    chunk_.bytes.insert(chunk_.bytes.end(), bytes, bytes + size);
    if (chunk_.bytes.size() < kChunkSize)
        return true;
    std::unique_lock<std::mutex> lock(mutex_);
    return hand_over(lock, true);
}

bool WriterPool::end()
{
    std::unique_lock<std::mutex> lock(mutex_);
    if (!filling_)
        return !failed_;
    // Queues an empty file too. Complete even after a failure: a writer that
    // took the file waits for nothing more.
    const bool ok = hand_over(lock, true);
    current_->complete = true;
    filling_ = false;
    data_wake_.notify_one();
    return ok;
}

bool WriterPool::hand_over(std::unique_lock<std::mutex>& lock, bool wait)
{
    const size_t size = chunk_.bytes.size();
    if (wait)
        reader_wake_.wait(lock, [&] { return failed_ || bytes_ == 0 || bytes_ + size <= kBudget; });
    if (failed_)
        return false;
    if (size > 0 || chunk_.offset > 0) {
        current_->chunks.push_back(std::move(chunk_));
        bytes_ += size;
    }
    chunk_ = Chunk();
    // One writer is woken, and only one that has a use for it: a wake-up per
    // small file is a good part of what the threads cost.
    if (!current_->queued) {
        current_->queued = true;
        queue_.push_back(current_);
        job_wake_.notify_one();
    } else {
        data_wake_.notify_one();
    }
    return true;
}

bool WriterPool::drain()
{
    std::unique_lock<std::mutex> lock(mutex_);
    // After a failure nothing more is written: no use waiting for the rest.
    reader_wake_.wait(lock, [this] { return jobs_.empty() || failed_; });
    return !failed_;
}

bool WriterPool::finish()
{
    {
        std::unique_lock<std::mutex> lock(mutex_);
        // An entry cut short by a failed read is written as far as it was read.
        if (filling_) {
            hand_over(lock, false);
            current_->complete = true;
            filling_ = false;
        }
        closed_ = true;
        job_wake_.notify_all();
        data_wake_.notify_all();
    }
    for (pthread_t thread : threads_)
        pthread_join(thread, nullptr);
    threads_.clear();
    std::lock_guard<std::mutex> lock(mutex_);
    return !failed_;
}

void WriterPool::fail(const char* format, ...)
{
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (failed_)
            return;
        failed_ = true;
        reader_wake_.notify_all();
        job_wake_.notify_all();
        data_wake_.notify_all();
    }
    va_list args;
    va_start(args, format);
    Logger::LogMsg2(Logger::LOG_ERROR, kComponent, format, args);
    va_end(args);
}
