#include "tmp_name_gen.h"

#include <gtest/gtest.h>
#include <string>

namespace {

const std::string kAlphabet = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

// Computed once from the generator and checked against an RC4 written apart
// from it: the textbook key schedule over the zero-padded 256-byte key, the
// output indices afresh for every name, six keystream bytes cut into eight
// 6-bit digits, high bits first. The second key differs in its last byte.
TEST(TmpNameGenTest, NamesAreTheRc4KeystreamOfTheKey)
{
    TmpNameGen a("1700000000-123456"), b("1700000000-123456"), other("1700000000-123457");
    for (const char* name : {"4e-5Metp", "J8x3FAX9", "2SrkJCfK", "rl5LIP9j", "j78u7b32"}) {
        EXPECT_STREQ(a.getTmpName().c_str(), name);
        EXPECT_STREQ(b.getTmpName().c_str(), name);
    }
    EXPECT_STREQ(other.getTmpName().c_str(), "Y87j_mzH");
}

TEST(TmpNameGenTest, NamesAreEightAlphabetCharactersAndPathsJoinWithSlash)
{
    auto isName = [](const std::string& name) {
        return name.size() == 8 && name.find_first_not_of(kAlphabet) == std::string::npos;
    };
    TmpNameGen* gen = TmpNameGen::getInstance();
    for (int n = 0; n < 1000; ++n) {
        ASSERT_TRUE(isName(gen->getTmpName().c_str()));
    }
    const std::string path = gen->getTmpPath("/some/folder/").c_str();
    EXPECT_EQ(path.substr(0, 14), "/some/folder//");
    EXPECT_TRUE(isName(path.substr(14))) << path;
}

}  // namespace
