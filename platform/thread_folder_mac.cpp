// pthread_chdir_np gives the calling thread a working folder of its own;
// pthread_fchdir_np(-1) returns it to the process's.
#include "thread_folder.h"

// libSystem has exported both for many releases, but only recent SDKs
// declare them in <pthread.h>: declared here, with the signatures those SDKs
// give, so that older ones build too. No macOS toolchain exists on these
// machines: neither the declarations nor the behaviour were checked here.
extern "C" int pthread_chdir_np(const char* path);
extern "C" int pthread_fchdir_np(int fd);

ThreadFolder::ThreadFolder(const char* path)
{
    entered_ = pthread_chdir_np(path) == 0;
}

ThreadFolder::~ThreadFolder()
{
    if (entered_)
        pthread_fchdir_np(-1);
}
