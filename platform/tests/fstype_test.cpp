#include <gtest/gtest.h>
#include <unistd.h>
#include <cerrno>

#include "fstype.h"

namespace {

TEST(FsTypeTest, NamesOnlyTheVolumesTheFileLayerAsksAbout)
{
    if (access("/dev/shm", F_OK) != 0) {
        GTEST_SKIP() << "no /dev/shm here";
    }
    char name[32];
    ASSERT_EQ(FSTypeName("/dev/shm", name, sizeof(name)), 0);
    EXPECT_STREQ(name, "unknown");  // a tmpfs
    ASSERT_EQ(FSTypeName("/dev/shm", name, 3), 0);
    EXPECT_STREQ(name, "un");
    errno = 0;
    EXPECT_EQ(FSTypeName("/no/such/path", name, sizeof(name)), -1);
    EXPECT_EQ(errno, ENOENT);
}

}  // namespace
