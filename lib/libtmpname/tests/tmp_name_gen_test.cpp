#include "tmp_name_gen.h"

#include <gtest/gtest.h>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace {

const std::string kAlphabet = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

// Textbook RC4 over a zero-padded 256-byte key; the output indices start
// afresh for every name. Six keystream bytes make one 48-bit number, cut
// into 6-bit digits.
std::vector<std::string> ReferenceNames(const std::string& text, int count)
{
    unsigned char key[256] = {}, s[256];
    memcpy(key, text.data(), text.size());
    for (int i = 0; i < 256; ++i) {
        s[i] = static_cast<unsigned char>(i);
    }
    for (int i = 0, j = 0; i < 256; ++i) {
        j = (j + s[i] + key[i]) % 256;
        std::swap(s[i], s[j]);
    }
    std::vector<std::string> names(count);
    for (std::string& name : names) {
        uint64_t bits = 0;
        for (int n = 0, i = 0, j = 0; n < 6; ++n) {
            i = (i + 1) % 256;
            j = (j + s[i]) % 256;
            std::swap(s[i], s[j]);
            bits = (bits << 8) | s[(s[i] + s[j]) % 256];
        }
        for (int shift = 42; shift >= 0; shift -= 6) {
            name += kAlphabet[(bits >> shift) & 63];
        }
    }
    return names;
}

TEST(TmpNameGenTest, NamesAreTheRc4KeystreamOfTheKey)
{
    const char* key = "1700000000-123456";
    TmpNameGen a(key), b(key), other("1700000000-123457");
    const std::vector<std::string> expected = ReferenceNames(key, 5);
    for (const std::string& name : expected) {
        EXPECT_EQ(a.getTmpName().c_str(), name);
        EXPECT_EQ(b.getTmpName().c_str(), name);
    }
    EXPECT_NE(other.getTmpName().c_str(), expected[0]);
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
