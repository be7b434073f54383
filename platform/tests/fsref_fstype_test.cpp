#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <climits>
#include <string>

#include "fsref.h"
#include "fstype.h"
#include "test_files.h"

namespace {

const unsigned char* U(const std::string& s)
{
    return reinterpret_cast<const unsigned char*>(s.c_str());
}

TEST(FsRefTest, GivesCanonicalSpellingOfExistingPathsOnly)
{
    const dwtest::TempDir tmp;
    const std::string expected = tmp.file("sub");
    ASSERT_EQ(mkdir(expected.c_str(), 0700), 0);
    ASSERT_EQ(symlink("sub", tmp.file("link").c_str()), 0);

    FSRef ref;
    bool isDir = false;
    ASSERT_EQ(FSPathMakeRef(U(tmp.path() + "/./link/../link"), &ref, &isDir), 0);
    EXPECT_TRUE(isDir);
    unsigned char out[PATH_MAX];
    // The text and its terminator must fit.
    EXPECT_NE(FSRefMakePath(&ref, out, expected.size()), 0);
    ASSERT_EQ(FSRefMakePath(&ref, out, expected.size() + 1), 0);
    EXPECT_EQ(reinterpret_cast<char*>(out), expected);

    EXPECT_NE(FSPathMakeRef(U(tmp.path() + "/missing"), &ref, nullptr), 0);
    EXPECT_NE(FSPathMakeRef(U(""), &ref, nullptr), 0);

    // A dangling link and a file taken for a folder name nothing; a FIFO is
    // named without being opened for reading (which would block).
    ASSERT_EQ(symlink("nowhere", tmp.file("dangling").c_str()), 0);
    EXPECT_NE(FSPathMakeRef(U(tmp.file("dangling")), &ref, nullptr), 0);
    dwtest::WriteFile(tmp.file("sub/file"), "x");
    EXPECT_NE(FSPathMakeRef(U(tmp.file("sub/file/")), &ref, nullptr), 0);
    ASSERT_EQ(mkfifo(tmp.file("fifo").c_str(), 0600), 0);
    ASSERT_EQ(FSPathMakeRef(U(tmp.file("fifo")), &ref, &isDir), 0);
    EXPECT_FALSE(isDir);
    EXPECT_STREQ(ref.path, tmp.file("fifo").c_str());

    // A relative path is spelled from the working folder, absolutely.
    char cwd[PATH_MAX];
    ASSERT_NE(getcwd(cwd, sizeof(cwd)), nullptr);
    ASSERT_EQ(chdir(tmp.file("sub").c_str()), 0);
    const OSStatus relative = FSPathMakeRef(U("../link/file"), &ref, &isDir);
    ASSERT_EQ(chdir(cwd), 0);
    ASSERT_EQ(relative, 0);
    EXPECT_FALSE(isDir);
    EXPECT_STREQ(ref.path, tmp.file("sub/file").c_str());
}

TEST(FsTypeTest, NamesVolumesTheBsdWay)
{
    if (access("/dev/shm", F_OK) != 0) {
        GTEST_SKIP() << "no /dev/shm here";
    }
    char name[32];
    ASSERT_EQ(FSTypeName("/dev/shm", name, sizeof(name)), 0);
    EXPECT_STREQ(name, "tmpfs");
    ASSERT_EQ(FSTypeName("/dev/shm", name, 3), 0);
    EXPECT_STREQ(name, "tm");
    errno = 0;
    EXPECT_EQ(FSTypeName("/no/such/path", name, sizeof(name)), -1);
    EXPECT_EQ(errno, ENOENT);
}

}  // namespace
