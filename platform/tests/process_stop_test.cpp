// Real child processes (sleep, with SIGTERM kept or ignored) stopped through
// HeldProcess and through the fallback that goes by number; and a number
// handed to a new process of the same program after its owner ended.
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <fstream>

#include <gtest/gtest.h>

#include "process_stop.h"
#include "test_files.h"

namespace {

const char kSleep[] = "/bin/sleep";

// Runs /bin/sleep in a child (SIGTERM ignored if asked: that survives exec)
// and waits until the exec has happened. Only as pid when want is given.
pid_t StartSleep(bool ignore_term, pid_t want = 0)
{
    const pid_t pid = fork();
    if (pid == 0) {
        if (want != 0 && getpid() != want)
            _exit(0);
        if (ignore_term)
            signal(SIGTERM, SIG_IGN);
        execl(kSleep, "sleep", "60", static_cast<char*>(nullptr));
        _exit(127);
    }
    if (want != 0 && pid != want) {
        waitpid(pid, nullptr, 0);
        return -1;
    }
    dwtest::WaitFor([&] { return MatchProcessExecutable(pid, kSleep) == PROCESS_MATCHES; }, 6000);
    return pid;
}

// The signal that ended the reaped child, 0 when it exited by itself.
int Reap(pid_t pid)
{
    int status = 0;
    if (waitpid(pid, &status, 0) != pid)
        return -1;
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

// The next process this namespace makes gets pid (if it is free); needs the
// right to set kernel.ns_last_pid.
bool NextPidWillBe(pid_t pid)
{
    std::ofstream out("/proc/sys/kernel/ns_last_pid");
    out << pid - 1 << std::flush;
    return out.good();
}

// Held through the pin, a child ends on SIGTERM; by number (the fallback where
// pidfds are refused, the number checked before each signal and probe), one
// that ignores SIGTERM ends only on SIGKILL. Not reaped, a zombie has ended.
TEST(ProcessStop, EndsOnSigtermOrOnlyOnSigkill)
{
    const pid_t ends = StartSleep(false), ignores = StartSleep(true);
    HeldProcess held;
    ASSERT_EQ(held.Open(ends, kSleep), PROCESS_MATCHES);
    EXPECT_TRUE(held.Pinned()) << "pidfds refused here: the pin is not tested";
    EXPECT_FALSE(held.WaitForExit(200));
    EXPECT_EQ(held.Signal(SIGTERM), 0);
    EXPECT_TRUE(held.WaitForExit(60000));
    EXPECT_TRUE(held.WaitForExit(0));
    EXPECT_EQ(held.Signal(SIGKILL), ESRCH);
    EXPECT_EQ(Reap(ends), SIGTERM);

    EXPECT_EQ(SignalIfRunning(ignores, "/bin/sh", SIGKILL), ESRCH);
    EXPECT_EQ(SignalIfRunning(ignores, kSleep, SIGTERM), 0);
    EXPECT_FALSE(ProbeForExit(ignores, kSleep, 200));
    EXPECT_FALSE(dwtest::ProcessGone(ignores));
    EXPECT_EQ(SignalIfRunning(ignores, kSleep, SIGKILL), 0);
    EXPECT_TRUE(ProbeForExit(ignores, kSleep, 60000));
    EXPECT_EQ(SignalIfRunning(ignores, kSleep, SIGKILL), ESRCH);
    EXPECT_EQ(Reap(ignores), SIGKILL);
    EXPECT_TRUE(ProbeForExit(ignores, kSleep, 0));
}

TEST(ProcessStop, HoldsNothingButTheNamedProgram)
{
    const pid_t zombie = fork();
    if (zombie == 0)
        _exit(0);
    const pid_t other = StartSleep(false);
    const struct {
        const char* name;
        pid_t pid;
        const char* exe;
        ProcessMatch match;
    } rows[] = {
        {"zero", 0, kSleep, PROCESS_MISSING},
        {"negative", -1, kSleep, PROCESS_MISSING},
        {"process_group", -other, kSleep, PROCESS_MISSING},
        {"zombie", zombie, "/proc/self/exe", PROCESS_MISSING},
        {"other_program", other, "/bin/sh", PROCESS_OTHER},
    };
    // Until the zombie is one, it may still count as us.
    dwtest::WaitFor([&] { return MatchProcessExecutable(zombie, "/proc/self/exe") == PROCESS_MISSING; },
                    6000);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        HeldProcess held;
        EXPECT_EQ(held.Open(row.pid, row.exe), row.match);
        EXPECT_EQ(held.Signal(SIGKILL), ESRCH);
        EXPECT_FALSE(held.WaitForExit(0));
        EXPECT_EQ(SignalIfRunning(row.pid, row.exe, SIGKILL), ESRCH);
    }
    EXPECT_FALSE(dwtest::ProcessGone(other));
    kill(other, SIGKILL);
    Reap(other);
    Reap(zombie);
}

// The held client ends and its number goes to a new process of the very same
// program: an identity check by number cannot tell them apart, the pidfd can.
TEST(ProcessStop, NumberReusedBySameProgramIsNeverSignalled)
{
    const pid_t first = StartSleep(false);
    HeldProcess held;
    ASSERT_EQ(held.Open(first, kSleep), PROCESS_MATCHES);
    if (!held.Pinned())
        GTEST_SKIP() << "pidfds refused here";
    kill(first, SIGKILL);
    ASSERT_EQ(Reap(first), SIGKILL);
    pid_t second = -1;
    for (int attempt = 0; attempt < 20 && second < 0; ++attempt) {
        if (!NextPidWillBe(first))
            GTEST_SKIP() << "cannot choose the next pid (kernel.ns_last_pid)";
        second = StartSleep(false, first);
    }
    ASSERT_EQ(second, first) << "another process took the number first every time";
    ASSERT_EQ(MatchProcessExecutable(second, kSleep), PROCESS_MATCHES);

    EXPECT_TRUE(held.WaitForExit(0));
    EXPECT_EQ(held.Signal(SIGTERM), ESRCH);
    EXPECT_EQ(held.Signal(SIGKILL), ESRCH);
    EXPECT_FALSE(dwtest::ProcessGone(second));
    kill(second, SIGKILL);
    EXPECT_EQ(Reap(second), SIGKILL);
}

}  // namespace
