// Real child processes: a program, scripts run by an interpreter, and each
// of them once reaped.
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>
#include <string>

#include <gtest/gtest.h>

#include "process_identity.h"
#include "test_files.h"

namespace {

TEST(ProcessIdentity, MatchesTheRunningProgramOrAScriptNamedOnItsCommandLine)
{
    const dwtest::TempDir tmp;
    const std::string dir = tmp.path();
    const std::string script = dir + "/drift-ui", plain = dir + "/plain", link = dir + "/link";
    ASSERT_TRUE(dwtest::WriteFile(script, "#!/bin/sh\nwhile :; do sleep 1; done\n", 0755));
    // Not a script: an interpreter reading it by name is not running it as a client.
    ASSERT_TRUE(dwtest::WriteFile(plain, "while :; do sleep 1; done\n"));
    ASSERT_EQ(symlink("/bin/sleep", link.c_str()), 0);

    const struct {
        const char* name;
        const char* argv[3];
        std::string file;
        ProcessMatch expected;
    } rows[] = {
        {"same_program", {"/bin/sleep", "60", nullptr}, "/bin/sleep", PROCESS_MATCHES},
        {"other_path_to_the_program", {"/bin/sleep", "60", nullptr}, link, PROCESS_MATCHES},
        {"other_program", {"/bin/sleep", "60", nullptr}, "/bin/sh", PROCESS_OTHER},
        {"no_such_file", {"/bin/sleep", "60", nullptr}, dir + "/none", PROCESS_OTHER},
        {"script_started_by_the_kernel", {script.c_str(), nullptr, nullptr}, script, PROCESS_MATCHES},
        {"script_as_relative_second_word", {"/bin/sh", "./drift-ui", nullptr}, script, PROCESS_MATCHES},
        {"plain_file_read_by_sh", {"/bin/sh", "plain", nullptr}, plain, PROCESS_OTHER},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const pid_t pid = fork();
        if (pid == 0) {
            if (chdir(dir.c_str()) == 0)
                execv(row.argv[0], const_cast<char* const*>(row.argv));
            _exit(127);
        }
        const std::string cmdline = "/proc/" + std::to_string(pid) + "/cmdline";  // before the exec: us
        dwtest::WaitFor([&] { return dwtest::ReadFile(cmdline).find(row.argv[0]) != std::string::npos; });
        EXPECT_EQ(MatchProcessExecutable(pid, row.file.c_str()), row.expected);
        kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
        // Reaped: no such process any more (a zombie is one of process_stop_test's rows).
        EXPECT_EQ(MatchProcessExecutable(pid, row.file.c_str()), PROCESS_MISSING);
    }
}

}  // namespace
