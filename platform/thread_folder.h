// A working folder of the calling thread's own. The extractor names entries
// relative to the destination: the disk writer checks every component of an
// entry's path for links, and an absolute path has several more of them than
// the package's own (a quarter of the extraction on a per-user copy below a
// home folder). The rest of the process keeps its working folder.
//
// Linux: unshare(CLONE_FS) gives the thread its own working folder and umask
// for the rest of its life; the destructor moves it back, but the copy stays
// unshared. Threads it creates afterwards inherit that copy (its folder and
// umask), not the process's: a thread that must see the process's own (the
// extractor's counting thread) has to be created before the object.
#ifndef DW_PLATFORM_THREAD_FOLDER_H
#define DW_PLATFORM_THREAD_FOLDER_H

class ThreadFolder {
public:
    // Makes path the calling thread's working folder. entered() is false, and
    // nothing changed, where the system cannot give a thread a folder of its
    // own or path cannot be entered.
    explicit ThreadFolder(const char* path);
    // Back to the folder the thread had; on the thread that made the object.
    ~ThreadFolder();
    ThreadFolder(const ThreadFolder&) = delete;
    ThreadFolder& operator=(const ThreadFolder&) = delete;

    bool entered() const { return entered_; }

private:
    int previous_ = -1;  // Linux: the folder to go back to
    bool entered_ = false;
};

#endif
