#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "fsref.h"
#include "fstype.h"

namespace {

const unsigned char* U(const std::string& s)
{
    return reinterpret_cast<const unsigned char*>(s.c_str());
}

TEST(FsRefTest, GivesCanonicalSpellingOfExistingPathsOnly)
{
    std::string tmpl = std::filesystem::temp_directory_path().string() + "/fsref-XXXXXX";
    char real[PATH_MAX];
    ASSERT_TRUE(mkdtemp(&tmpl[0]) && realpath(tmpl.c_str(), real));
    const std::string expected = std::string(real) + "/sub";
    ASSERT_EQ(mkdir(expected.c_str(), 0700), 0);
    ASSERT_EQ(symlink("sub", (tmpl + "/link").c_str()), 0);

    FSRef ref;
    bool isDir = false;
    ASSERT_EQ(FSPathMakeRef(U(tmpl + "/./link/../link"), &ref, &isDir), 0);
    EXPECT_TRUE(isDir);
    unsigned char out[PATH_MAX];
    // The text and its terminator must fit.
    EXPECT_NE(FSRefMakePath(&ref, out, expected.size()), 0);
    ASSERT_EQ(FSRefMakePath(&ref, out, expected.size() + 1), 0);
    EXPECT_EQ(reinterpret_cast<char*>(out), expected);

    EXPECT_NE(FSPathMakeRef(U(tmpl + "/missing"), &ref, nullptr), 0);
    EXPECT_NE(FSPathMakeRef(U(""), &ref, nullptr), 0);
    std::filesystem::remove_all(tmpl);
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
