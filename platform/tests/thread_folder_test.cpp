#include <gtest/gtest.h>

#ifdef __linux__
#include <sched.h>
#endif

#include <filesystem>
#include <future>
#include <string>
#include <thread>

#include "test_files.h"
#include "thread_folder.h"

namespace fs = std::filesystem;

namespace {

// Whether a thread may have a working folder of its own here: a container's
// system call filter may refuse unshare, and the extractor then keeps to
// absolute paths.
bool ThreadsMayHaveAFolder()
{
#ifdef __linux__
    bool allowed = false;
    std::thread probe([&] { allowed = unshare(CLONE_FS) == 0; });
    probe.join();
    return allowed;
#else
    return true;
#endif
}

TEST(ThreadFolderTest, MovesOnlyTheCallingThreadAndComesBack)
{
    if (!ThreadsMayHaveAFolder())
        GTEST_SKIP() << "unshare(CLONE_FS) is refused here";
    const dwtest::TempDir tmp;
    ASSERT_TRUE(fs::create_directory(tmp.file("in")));
    const fs::path start = fs::current_path();

    std::promise<void> inside;
    std::promise<void> looked;
    fs::path seen_inside, seen_after, seen_after_missing;
    bool entered = false;
    bool entered_missing = true;
    std::thread mover([&] {
        {
            ThreadFolder folder(tmp.file("in").c_str());
            entered = folder.entered();
            seen_inside = fs::current_path();
            dwtest::WriteFile("here", "relative");
            inside.set_value();
            looked.get_future().wait();
        }
        seen_after = fs::current_path();
        ThreadFolder missing(tmp.file("missing").c_str());
        entered_missing = missing.entered();
        seen_after_missing = fs::current_path();
    });
    inside.get_future().wait();
    // While the other thread is inside, this one is where it was.
    EXPECT_EQ(fs::current_path(), start);
    looked.set_value();
    mover.join();

    EXPECT_TRUE(entered);
    EXPECT_EQ(seen_inside, fs::path(tmp.file("in")));
    EXPECT_EQ(dwtest::ReadFile(tmp.file("in/here")), "relative");
    EXPECT_EQ(seen_after, start);
    EXPECT_FALSE(entered_missing);
    EXPECT_EQ(seen_after_missing, start);
    EXPECT_EQ(fs::current_path(), start);
}

}  // namespace
