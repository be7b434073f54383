// Real child processes: ourselves, a program, scripts run by an interpreter,
// a zombie and a reaped child.
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <chrono>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "process_identity.h"

namespace {

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

// Forks a child that changes into dir and execs argv; returns once its
// command line begins with shows (before the exec it is still us).
pid_t Start(const std::string& dir, const char* const* argv, const char* shows)
{
    const pid_t pid = fork();
    if (pid == 0) {
        if (chdir(dir.c_str()) != 0)
            _exit(126);
        execv(argv[0], const_cast<char* const*>(argv));
        _exit(127);
    }
    const std::string cmdline = "/proc/" + std::to_string(pid) + "/cmdline";
    for (int i = 0; i < 600 && ReadFile(cmdline).rfind(shows, 0) != 0; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    return pid;
}

void Stop(pid_t pid)
{
    kill(pid, SIGKILL);
    waitpid(pid, nullptr, 0);
}

std::string RealPath(const char* path)
{
    char buf[PATH_MAX];
    return realpath(path, buf) != nullptr ? buf : "";
}

TEST(ProcessIdentity, ComparesTheRunningImageByFile)
{
    const std::string self = RealPath("/proc/self/exe");
    EXPECT_EQ(MatchProcessExecutable(getpid(), self.c_str()), PROCESS_MATCHES);
    EXPECT_EQ(MatchProcessExecutable(getpid(), "/bin/sh"), PROCESS_OTHER);
    EXPECT_EQ(MatchProcessExecutable(getpid(), "/nonexistent/drift-ui"), PROCESS_OTHER);

    // Another path to the same file still matches.
    QTemporaryDir tmp;
    const std::string link = tmp.path().toStdString() + "/link";
    ASSERT_EQ(symlink(self.c_str(), link.c_str()), 0);
    EXPECT_TRUE(ProcessRunsExecutable(getpid(), link.c_str()));

    const char* const sleep_argv[] = {"/bin/sleep", "60", nullptr};
    const pid_t sleeper = Start("/", sleep_argv, "/bin/sleep");
    EXPECT_EQ(MatchProcessExecutable(sleeper, self.c_str()), PROCESS_OTHER);
    EXPECT_EQ(MatchProcessExecutable(sleeper, "/bin/sleep"), PROCESS_MATCHES);
    Stop(sleeper);
}

TEST(ProcessIdentity, EndedProcessesAreMissing)
{
    EXPECT_EQ(MatchProcessExecutable(0, "/bin/sh"), PROCESS_MISSING);
    EXPECT_EQ(MatchProcessExecutable(-1, "/bin/sh"), PROCESS_MISSING);

    const pid_t child = fork();
    if (child == 0)
        _exit(0);
    // Not reaped yet: a zombie has ended all the same.
    const std::string stat = "/proc/" + std::to_string(child) + "/stat";
    for (int i = 0; i < 600 && ReadFile(stat).find(") Z ") == std::string::npos; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(MatchProcessExecutable(child, RealPath("/proc/self/exe").c_str()), PROCESS_MISSING);
    waitpid(child, nullptr, 0);
    EXPECT_EQ(MatchProcessExecutable(child, RealPath("/proc/self/exe").c_str()), PROCESS_MISSING);
}

TEST(ProcessIdentity, AScriptMatchesThroughItsCommandLine)
{
    QTemporaryDir tmp;
    const std::string dir = tmp.path().toStdString();
    const std::string script = dir + "/drift-ui";
    std::ofstream(script) << "#!/bin/sh\nwhile :; do sleep 1; done\n";
    ASSERT_EQ(chmod(script.c_str(), 0755), 0);
    // Not a script: an interpreter reading it by name is not running it as a client.
    const std::string plain = dir + "/plain";
    std::ofstream(plain) << "while :; do sleep 1; done\n";

    const struct {
        const char* name;
        const char* argv[3];
        const std::string* file;
        ProcessMatch expected;
    } rows[] = {
        {"started_by_the_kernel", {script.c_str(), nullptr, nullptr}, &script, PROCESS_MATCHES},
        {"relative_second_word", {"/bin/sh", "./drift-ui", nullptr}, &script, PROCESS_MATCHES},
        {"plain_file_read_by_sh", {"/bin/sh", "plain", nullptr}, &plain, PROCESS_OTHER},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        // The kernel puts the interpreter first.
        const pid_t pid = Start(dir, row.argv, "/bin/sh");
        EXPECT_EQ(MatchProcessExecutable(pid, row.file->c_str()), row.expected);
        Stop(pid);
    }
}

}  // namespace
