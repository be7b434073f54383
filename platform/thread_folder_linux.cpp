// unshare(CLONE_FS) gives the calling thread its own copy of the working
// folder (and umask, which stays as it was); chdir then moves only this thread.
// The copy stays the thread's for its life: going back is a fchdir.
#include "thread_folder.h"

#include <fcntl.h>
#include <sched.h>
#include <unistd.h>

ThreadFolder::ThreadFolder(const char* path)
{
    previous_ = open(".", O_PATH | O_DIRECTORY | O_CLOEXEC);
    entered_ = previous_ >= 0 && unshare(CLONE_FS) == 0 && chdir(path) == 0;
}

ThreadFolder::~ThreadFolder()
{
    // fchdir fails only when the folder we left has gone since; the thread
    // then stays where it is, as a process would.
    const bool back = !entered_ || fchdir(previous_) == 0;
    static_cast<void>(back);
    if (previous_ >= 0)
        close(previous_);
}
