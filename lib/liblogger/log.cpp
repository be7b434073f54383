#include "log.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <ctime>
#include <string>
#include <thread>

#include "config.h"

// <syslog.h> defines LOG_WARNING, LOG_INFO and LOG_DEBUG as macros, which
// would rewrite Logger's own level names; it comes after log.h, and this file
// does not spell those names.
#include <syslog.h>

namespace {

// Rotation happens once the live file is strictly larger than this.
const int kMaxLogSize = 1048576;
// Threshold of a component that is not in log_level; no fall-back to
// "default_component".
const int kDefaultThreshold = 4;
// Logger::LOG_WARNING, which syslog's macro of that name (the same number) hides here.
const Logger::Level kWarning = static_cast<Logger::Level>(4);

// log_fp is tested without the lock (LogMsg2's fast path), so every store and
// that one load are atomic; all other uses happen under log_lock.
FILE* load_fp()
{
    return __atomic_load_n(&Logger::log_fp, __ATOMIC_ACQUIRE);
}
void store_fp(FILE* fp)
{
    __atomic_store_n(&Logger::log_fp, fp, __ATOMIC_RELEASE);
}

// Thread cancellation is held off while log_lock is taken, so a cancelled
// thread can never leave the lock behind.
class LogLockGuard {
public:
    LogLockGuard()
    {
        pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &old_state_);
        pthread_mutex_lock(&Logger::log_lock);
    }
    ~LogLockGuard()
    {
        pthread_mutex_unlock(&Logger::log_lock);
        int ignored;
        pthread_setcancelstate(old_state_, &ignored);
    }
    LogLockGuard(const LogLockGuard&) = delete;
    LogLockGuard& operator=(const LogLockGuard&) = delete;

private:
    int old_state_ = PTHREAD_CANCEL_ENABLE;
};

// Time stamp, then the caller's text; returns the bytes written (negative
// when a write failed and the sum went below zero).
int write_stamped(FILE* fp, const char* format, va_list args)
{
    char stamp[512];
    time_t now = time(nullptr);
    struct tm local;
    stamp[0] = '\0';
    if (localtime_r(&now, &local) != nullptr)
        strftime(stamp, sizeof stamp, "%b %d %H:%M:%S ", &local);
    int count = fprintf(fp, "%s", stamp);
    count += vfprintf(fp, format, args);
    fflush(fp);
    return count;
}

__attribute__((format(printf, 2, 3))) void write_own_line(FILE* fp, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    write_stamped(fp, format, args);
    va_end(args);
}

// log_path as the file calls use it: made absolute when it is set, so that a
// thread with a working folder of its own (the extractor's) logs to the same
// file as the others.
std::string log_file;

std::string absolute(const ustring& path)
{
    std::string file = path.c_str_utf8();
    char cwd[PATH_MAX];
    if (!file.empty() && file[0] != '/' && getcwd(cwd, sizeof cwd) != nullptr)
        file = std::string(cwd) + "/" + file;
    return file;
}

// The log's name holds a regular file and nothing else. A link there is never
// followed, so that no launch appends to, or creates, a file elsewhere;
// neither is a FIFO or a device opened for writing, which could block or
// write anywhere. Such a name is removed and the log takes its place: it is in
// the log's own folder, and what a link named is never touched. A folder
// there stays, and the log cannot be opened.
int open_regular(const char* path, int flags)
{
    const int fd = open(
        path, O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | flags, 0666);
    struct stat st;
    if (fd >= 0 && (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode))) {
        close(fd);
        return -1;
    }
    if (fd >= 0)
        fcntl(fd, F_SETFL, O_APPEND);  // blocking writes again, as stdio expects
    return fd;
}

FILE* open_log_file(const std::string& path)
{
    int fd = open_regular(path.c_str(), 0);
    struct stat st;
    const bool replaced = fd < 0 && lstat(path.c_str(), &st) == 0 && !S_ISREG(st.st_mode) &&
                          !S_ISDIR(st.st_mode) && unlink(path.c_str()) == 0;
    if (replaced)
        fd = open_regular(path.c_str(), O_EXCL);
    FILE* fp = fd >= 0 ? fdopen(fd, "a") : nullptr;
    if (fp == nullptr) {
        if (fd >= 0)
            close(fd);
        return nullptr;
    }
    if (replaced)
        write_own_line(
            fp,
            "[WARNING] log(%d): '%s' was a link or a special file; replaced by the log, nothing it "
            "named was touched\n",
            __LINE__, path.c_str());
    return fp;
}

// The size of the file behind the stream, at most INT_MAX; -1 when unknown.
int file_size(FILE* fp)
{
    struct stat st;
    if (fstat(fileno(fp), &st) != 0)
        return -1;
    return st.st_size > INT_MAX ? INT_MAX : static_cast<int>(st.st_size);
}

void archive_name(char (&buf)[1024], int k)
{
    snprintf(buf, sizeof buf, "%s_%d", log_file.c_str(), k);
}

// Other processes (a second launcher) append to the same log and rotate it
// too. The log's folder, opened once, is the lock they
// share: a lock file would be one more name beside the archives, and the log
// file itself changes under rotation. -1 when there is no file to share.
int log_dir_fd = -1;

void close_log_dir()
{
    if (log_dir_fd >= 0)
        close(log_dir_fd);
    log_dir_fd = -1;
}

void open_log_dir()
{
    close_log_dir();
    const std::string& file = log_file;
    const size_t slash = file.rfind('/');
    const std::string dir = slash == std::string::npos ? "." : slash == 0 ? "/" : file.substr(0, slash);
    log_dir_fd = open(dir.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

// A healthy holder keeps the lock for one line and at most one rotation (a
// few renames): microseconds, milliseconds on a slow network home. One that
// keeps it for 2 s is stopped or hung (SIGSTOP, a debugger, a home that no
// longer answers) and may never let go; 2 s is still short beside the wait
// for the client. Past it the line is written without the lock rather than
// lost, and the process waits no more: later lines only try the lock, so a
// stuck holder costs a launcher 2 s once, not at every line.
const std::chrono::milliseconds kLockWait(2000);
bool lock_wait_spent = false;  // under log_lock

// Held across a file write, its size check and a rotation, so that no other
// process rotates in between. Without the folder, or on a file system that
// has no such locks, it does nothing: one process alone is served by
// log_lock.
class ProcessLock {
public:
    explicit ProcessLock(bool wanted)
    {
        if (!wanted || log_dir_fd < 0)
            return;
        if (flock(log_dir_fd, LOCK_EX | LOCK_NB) == 0) {
            held_ = true;
            return;
        }
        if (errno != EWOULDBLOCK)
            return;  // no such locks on this file system
        busy_ = true;
        if (lock_wait_spent)
            return;
        const auto deadline = std::chrono::steady_clock::now() + kLockWait;
        for (auto pause = std::chrono::microseconds(50); std::chrono::steady_clock::now() < deadline;
             pause = std::min(pause * 2, std::chrono::microseconds(10000))) {
            std::this_thread::sleep_for(pause);
            if (flock(log_dir_fd, LOCK_EX | LOCK_NB) == 0) {
                held_ = true;
                busy_ = false;
                return;
            }
        }
        lock_wait_spent = true;
        waited_out_ = true;
    }
    ~ProcessLock()
    {
        if (held_)
            flock(log_dir_fd, LOCK_UN);
    }
    ProcessLock(const ProcessLock&) = delete;
    ProcessLock& operator=(const ProcessLock&) = delete;

    // Another process holds it: the log is written but not rotated, as that
    // process may be rotating it.
    bool busy() const { return busy_; }
    // This call gave up waiting for it.
    bool waited_out() const { return waited_out_; }

private:
    bool held_ = false;
    bool busy_ = false;
    bool waited_out_ = false;
};

// When another process has rotated the log since our last write, our stream
// is an archive now: go on in the live file.
void follow_rotation()
{
    struct stat ours;
    struct stat live;
    if (log_dir_fd < 0 || Logger::log_fp == nullptr || fstat(fileno(Logger::log_fp), &ours) != 0)
        return;
    if (lstat(log_file.c_str(), &live) == 0 && live.st_dev == ours.st_dev && live.st_ino == ours.st_ino)
        return;
    // If the live file cannot be opened, the old stream still keeps the lines.
    FILE* fp = open_log_file(log_file);
    if (fp == nullptr)
        return;
    fclose(Logger::log_fp);
    store_fp(fp);
}

struct LevelFileProblem {
    bool malformed = false;
    ustring refused;       // why Config refused to read it (a FIFO, a device, a huge file)
    ustring not_a_number;  // the last key whose value is not a whole number
    int read_as = 0;       // what get_int made of it
};

bool is_decimal(const ustring& text)
{
    const char* p = text.c_str_utf8();
    if (*p == '-' || *p == '+')
        ++p;
    if (*p == '\0')
        return false;
    for (; *p != '\0'; ++p)
        if (*p < '0' || *p > '9')
            return false;
    return true;
}

// A missing level file is the normal case and says nothing. A value that is
// not a number still converts as get_int does (a typo reads as 0 and silences
// the component), so the warning names it.
LevelFileProblem apply_level_file(const ustring& level_path)
{
    LevelFileProblem problem;
    if (level_path.empty())
        return problem;
    Config levels;
    if (levels.read(level_path, &problem.refused) < 0) {
        problem.malformed = problem.refused.empty() && access(level_path.c_str_utf8(), F_OK) == 0;
        return problem;
    }
    for (const auto& entry : levels.entries) {
        Logger::log_level[entry.first] = levels.get_int(entry.first);
        if (!is_decimal(entry.second)) {
            problem.not_a_number = entry.first;
            problem.read_as = Logger::log_level[entry.first];
        }
    }
    return problem;
}

}  // namespace

std::map<ustring, int> Logger::log_level;
Logger::Type Logger::log_type = Logger::LOG_TYPE_STDOUT;
FILE* Logger::log_fp = stderr;
ustring Logger::log_path;
int Logger::log_size = -1;
int Logger::rotate_cnt = 50;
pthread_mutex_t Logger::log_lock = PTHREAD_MUTEX_INITIALIZER;

int Logger::Initialize(Type type, const ustring& path, const ustring& level_path, int rotate_count)
{
    log_level["default_component"] = kDefaultThreshold;
    const LevelFileProblem problem = apply_level_file(level_path);
    const int result = open_destination(type, path, rotate_count);
    // Said once the destination is open: thresholds the file meant to set
    // are not in force.
    if (!problem.refused.empty())
        LogMsg(kWarning, "default_component",
               "[WARNING] log(%d): level file '%s' is %s, default levels apply\n", __LINE__,
               level_path.c_str_utf8(), problem.refused.c_str_utf8());
    if (problem.malformed)
        LogMsg(kWarning, "default_component",
               "[WARNING] log(%d): level file '%s' is malformed, default levels apply\n", __LINE__,
               level_path.c_str_utf8());
    if (!problem.not_a_number.empty())
        LogMsg(kWarning, "default_component",
               "[WARNING] log(%d): level file '%s': level of '%s' is not a number, read as %d\n", __LINE__,
               level_path.c_str_utf8(), problem.not_a_number.c_str_utf8(), problem.read_as);
    return result;
}

int Logger::open_destination(Type type, const ustring& path, int rotate_count)
{
    log_type = type;
    switch (type) {
    case LOG_TYPE_STDERR:
        store_fp(stderr);
        break;
    case LOG_TYPE_STDOUT:
        store_fp(stdout);
        break;
    case LOG_TYPE_SYSLOG:
        store_fp(nullptr);
        break;
    default: {
        // On failure the previous stream stays in use, uncounted.
        if (path.empty())
            return -1;
        const std::string file = absolute(path);
        FILE* fp = open_log_file(file);
        if (fp == nullptr)
            return -1;
        store_fp(fp);
        log_size = std::max(file_size(fp), 0);
        log_path = path;
        log_file = file;
        rotate_cnt = rotate_count;
        open_log_dir();
        return 0;
    }
    }
    close_log_dir();
    log_path.clear();
    log_file.clear();
    log_size = -1;
    return 0;
}

void Logger::LogMsg(Level level, const ustring& component, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    LogMsg2(level, component, format, args);
    va_end(args);
}

bool Logger::Writes(Level level, const ustring& component)
{
    if (log_type != LOG_TYPE_SYSLOG && load_fp() == nullptr)
        return false;
    LogLockGuard guard;
    auto found = log_level.find(component);
    return (found != log_level.end() ? found->second : kDefaultThreshold) >= level;
}

void Logger::LogMsg2(Level level, const ustring& component, const char* format, va_list args)
{
    // After a failed rotation log_fp stays null: logging has stopped for good.
    if (log_type != LOG_TYPE_SYSLOG && load_fp() == nullptr)
        return;

    LogLockGuard guard;
    auto found = log_level.find(component);
    const int threshold = found != log_level.end() ? found->second : kDefaultThreshold;
    if (threshold < level)
        return;

    // Only a log file is shared with other processes.
    ProcessLock shared(log_type == LOG_TYPE_FILE);
    if (log_type == LOG_TYPE_FILE)
        follow_rotation();
    if (shared.waited_out() && log_fp != nullptr)
        write_own_line(
            log_fp,
            "[WARNING] log(%d): another process has held the lock on the folder of '%s' for %d ms; lines go "
            "on without it\n",
            __LINE__, log_file.c_str(), static_cast<int>(kLockWait.count()));
    int count = 0;
    switch (log_type) {
    case LOG_TYPE_SYSLOG:
        vsyslog(LOG_ERR, format, args);
        break;
    case LOG_TYPE_STDOUT:
    case LOG_TYPE_STDERR:
    case LOG_TYPE_FILE:
        if (log_fp != nullptr)
            count = write_stamped(log_fp, format, args);
        break;
    default:
        vfprintf(stderr, format, args);
        break;
    }

    // The live file's real size decides, not what this process wrote: other
    // processes append to it too. log_size is negative while the file type
    // writes to a console stream (no log file could be opened).
    if (log_type == LOG_TYPE_FILE && log_size >= 0 && log_fp != nullptr) {
        const int size = file_size(log_fp);
        log_size = size >= 0 ? size : count >= 0 ? log_size + count : log_size;
        if (log_size > kMaxLogSize && !shared.busy()) {
            // Whatever Rotate returns: on failure log_fp is null and nothing
            // more gets written anyway.
            Rotate();
            log_size = 0;
        }
    }
}

int Logger::Rotate()
{
    char from[1024];
    char to[1024];
    // Missing archives simply fail to rename; ignored.
    for (int k = rotate_cnt - 2; k >= 0; --k) {
        archive_name(from, k);
        archive_name(to, k + 1);
        rename(from, to);
    }
    archive_name(from, rotate_cnt - 1);
    remove(from);

    // log_fp keeps its (closed) value until the outcome is known: a thread on
    // the unlocked fast path then waits for the lock and writes to the new
    // file instead of dropping its message. Nobody dereferences it meanwhile.
    if (log_fp != nullptr)
        fclose(log_fp);
    archive_name(to, 0);
    if (rename(log_file.c_str(), to) != 0) {
        store_fp(nullptr);
        return -1;
    }
    FILE* fp = open_log_file(log_file);
    store_fp(fp);
    return fp != nullptr ? 0 : -1;
}

void Logger::Destroy()
{
    if (log_type != LOG_TYPE_FILE)
        return;
    if (log_fp != nullptr)
        fclose(log_fp);
    close_log_dir();
    store_fp(stdout);
    log_size = -1;
    log_type = LOG_TYPE_STDERR;
    log_path.clear();
    log_file.clear();
    rotate_cnt = 32;
}

void LogMSG_c(int level, const char* component, const char* format, va_list args)
{
    Logger::LogMsg2(static_cast<Logger::Level>(level), ustring(component), format, args);
}
