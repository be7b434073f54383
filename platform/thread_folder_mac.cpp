// macOS 11 and later: pthread_chdir_np gives the calling thread a working
// folder of its own; pthread_fchdir_np(-1) returns it to the process's.
#include "thread_folder.h"

#include <pthread.h>

ThreadFolder::ThreadFolder(const char* path)
{
    entered_ = pthread_chdir_np(path) == 0;
}

ThreadFolder::~ThreadFolder()
{
    if (entered_)
        pthread_fchdir_np(-1);
}
