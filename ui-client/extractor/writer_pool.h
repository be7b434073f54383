// Writer threads for the extractor's regular files. The thread reading the
// package hands each file over with its data in chunks; a writer thread,
// each with a disk writer of its own and the destination as its own working
// folder, writes it. Writing a file is where an extraction spends its time
// (creating and filling files in the kernel), and that is what runs side by
// side; the package is still read once, in order.
//
// What the pool promises the reader:
// - At most kBudget bytes of data wait for a writer (plus the chunk being
//   filled), so a big file never sits whole in memory.
// - A file is not handed out while an entry at its path, below it or above
//   it is still being written: two entries of one path keep the package's
//   order, and a file never races a folder made in its place.
// - The first failure is logged once, by the thread that met it; from then
//   on nothing more is written, and every call of the reader returns false.
// - No thread outlives the pool: its end writes out what was handed over
//   (an entry cut short as far as its data went) and joins the threads.
#ifndef DW_UI_CLIENT_EXTRACTOR_WRITER_POOL_H
#define DW_UI_CLIENT_EXTRACTOR_WRITER_POOL_H

#include <archive.h>

#include <pthread.h>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "ustring.h"

struct archive_entry;

class WriterPool {
public:
    // Starts count threads writing below root with the disk writer options
    // given. size() tells how many could be started.
    WriterPool(int count, const ustring& root, int options);
    ~WriterPool();
    WriterPool(const WriterPool&) = delete;
    WriterPool& operator=(const WriterPool&) = delete;

    int size() const { return static_cast<int>(threads_.size()); }

    // Hands out a regular file stored as name, a copy of entry; waits while
    // an entry of an overlapping path is being written. Then its data by
    // data(), in the order read, and end(). false once the pool has failed.
    bool begin(archive_entry* entry, const char* name);
    bool data(const void* block, size_t size, la_int64_t offset);
    bool end();

    // Waits until every file handed out is written; false when one failed.
    bool drain();
    // Writes what was handed out, closes the disk writers (their deferred
    // fix-ups) and joins the threads; false when anything failed.
    bool finish();

    // Files written so far, in whatever order they finished.
    int written() const { return written_.load(std::memory_order_acquire); }

private:
    struct Chunk {
        std::vector<char> bytes;
        la_int64_t offset = 0;
    };
    struct Job {
        std::unique_ptr<archive_entry, void (*)(archive_entry*)> entry{nullptr, nullptr};
        std::string name;
        std::string key;  // the path as compared for overlaps
        std::deque<Chunk> chunks;
        bool queued = false;    // a writer may take it
        bool complete = false;  // all its data is among chunks or written
    };
    using Jobs = std::list<Job>;

    static void* run(void* self);
    void write_files();
    bool overlaps_in_flight(const std::string& key) const;
    // Moves the chunk being filled to the current job; waits for room unless
    // told not to. Called with the lock held.
    bool hand_over(std::unique_lock<std::mutex>& lock, bool wait);
    // Logs a failure if it is the first, and stops all writing.
    void fail(const char* format, ...) __attribute__((format(printf, 2, 3)));

    const ustring root_;
    const int options_;
    std::vector<pthread_t> threads_;

    mutable std::mutex mutex_;
    std::condition_variable reader_wake_;
    std::condition_variable job_wake_;  // a file queued
    // Data for, or the end of, the file being read: only its writer waits
    // here, as every file before it is complete.
    std::condition_variable data_wake_;
    Jobs jobs_;                         // handed out and not yet written, in order
    std::deque<Jobs::iterator> queue_;  // waiting for a writer
    Jobs::iterator current_;            // the one being read, when filling
    bool filling_ = false;
    Chunk chunk_;       // the reader's, filled outside the lock
    size_t bytes_ = 0;  // in chunks handed over, not yet written
    bool closed_ = false;
    bool failed_ = false;
    std::atomic<int> written_{0};
};

#endif
