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
