// Logger: the process-wide log writer; static state, no objects.
// A message is written when its level is at most its component's threshold
// (4 for a component that is not in log_level).
// Several processes may share one log file: writes and rotations take a lock
// on the log's folder, the live file's real size decides its rotation, and a
// process whose file another one rotated goes on in the new live file. A
// process waits for that lock 2 s at most, once: past that it writes without
// the lock (and does not rotate while another process holds it).
// The log's name is never followed: a link or a special file there is
// replaced by the log, with a warning, and what it named is left alone.
#ifndef DW_LIB_LIBLOGGER_LOG_H
#define DW_LIB_LIBLOGGER_LOG_H

#include <pthread.h>
#include <cstdarg>
#include <cstdio>
#include <map>

#include "ustring.h"

class Logger {
public:
    // Fixed underlying type: any int is a valid value (LogMSG_c passes plain ints,
    // and a type outside the list writes the bare message to standard error).
    enum Type : int {
        LOG_TYPE_SYSLOG = 1,  // vsyslog, always at priority 3
        LOG_TYPE_STDOUT = 2,
        LOG_TYPE_STDERR = 3,
        LOG_TYPE_FILE = 4,  // file with size accounting and rotation
    };
    enum Level : int {
        LOG_ERROR = 3,
        LOG_WARNING = 4,
        LOG_NOTE = 5,
        LOG_INFO = 6,
        LOG_DEBUG = 7,
    };

    // 0 on success, -1 when LOG_TYPE_FILE has an empty or unopenable path (the
    // previous stream stays in use). The level file is applied in every case;
    // a malformed one (left out) and a level that is not a number (read by
    // get_int, so a typo reads as 0) are said in a warning, and so is one that
    // is refused unread (not a regular file, or too large).
    static int Initialize(Type type, const ustring& log_path, const ustring& level_path, int rotate_count);
    static void LogMsg(Level level, const ustring& component, const char* format, ...)
        __attribute__((format(printf, 3, 4)));
    static void LogMsg2(Level level, const ustring& component, const char* format, va_list args)
        __attribute__((format(printf, 3, 0)));
    // Whether a line at level for component would be written now: for callers
    // whose debug lines need work that nothing else needs.
    static bool Writes(Level level, const ustring& component);
    // Renames archives k -> k+1, drops archive rotate_cnt-1, moves the live file
    // to archive 0 and reopens it. On failure logging stops for the process.
    // Not locked against other processes by itself: LogMsg2 calls it locked.
    static int Rotate();
    static void Destroy();

    static std::map<ustring, int> log_level;
    static Type log_type;
    static FILE* log_fp;
    static ustring log_path;
    static int log_size;  // the live file's size as last seen; -1: no log file
    static int rotate_cnt;
    static pthread_mutex_t log_lock;

private:
    static int open_destination(Type type, const ustring& log_path, int rotate_count);
};

void LogMSG_c(int level, const char* component, const char* format, va_list args)
    __attribute__((format(printf, 3, 0)));

#endif
