#include "tmp_name_gen.h"

#include <gtest/gtest.h>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <utility>

namespace {

const std::string kAlphabet = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

// Textbook RC4 over a zero-padded 256-byte key; the output indices start
// afresh for every name, as the generator does.
class ReferenceRc4 {
public:
    explicit ReferenceRc4(const std::string& text)
    {
        unsigned char key[256] = {};
        memcpy(key, text.data(), text.size());
        for (int i = 0; i < 256; ++i) {
            s[i] = static_cast<unsigned char>(i);
        }
        for (int i = 0, j = 0; i < 256; ++i) {
            j = (j + s[i] + key[i]) % 256;
            std::swap(s[i], s[j]);
        }
    }
    // Six keystream bytes as one 48-bit number, cut into 6-bit digits.
    std::string NextName()
    {
        uint64_t bits = 0;
        for (int n = 0, i = 0, j = 0; n < 6; ++n) {
            i = (i + 1) % 256;
            j = (j + s[i]) % 256;
            std::swap(s[i], s[j]);
            bits = (bits << 8) | s[(s[i] + s[j]) % 256];
        }
        std::string name;
        for (int shift = 42; shift >= 0; shift -= 6) {
            name += kAlphabet[(bits >> shift) & 63];
        }
        return name;
    }

private:
    unsigned char s[256];
};

bool IsName(const std::string& name)
{
    return name.size() == 8 && name.find_first_not_of(kAlphabet) == std::string::npos;
}

TEST(TmpNameGenTest, NamesArePureFunctionOfKey)
{
    const char* key = "1700000000-123456";
    TmpNameGen a(key), b(key);
    ReferenceRc4 reference(key);
    for (int n = 0; n < 5; ++n) {
        std::string name = a.getTmpName().c_str();
        EXPECT_EQ(name, reference.NextName()) << "name " << n;
        EXPECT_EQ(name, b.getTmpName().c_str()) << "name " << n;
    }
    TmpNameGen other("1700000000-123457");
    EXPECT_NE(std::string(other.getTmpName().c_str()), ReferenceRc4(key).NextName());
}

TEST(TmpNameGenTest, NamesAndPathsHaveTheirShape)
{
    TmpNameGen* gen = TmpNameGen::getInstance();
    EXPECT_EQ(gen, TmpNameGen::getInstance());
    for (int n = 0; n < 1000; ++n) {
        ASSERT_TRUE(IsName(gen->getTmpName().c_str()));
    }
    std::string path = gen->getTmpPath("/some/folder/").c_str();
    EXPECT_EQ(path.substr(0, 14), "/some/folder//");
    EXPECT_TRUE(IsName(path.substr(14)));
}

TEST(TmpNameGenTest, ClockKeyText)
{
    unsigned char key[256] = {};
    time_t before = time(nullptr);
    TmpNameGen::get_key(key, sizeof(key));
    unsigned long sec = 0, usec = 0;
    ASSERT_EQ(sscanf(reinterpret_cast<char*>(key), "%lu-%lu", &sec, &usec), 2);
    EXPECT_GE(static_cast<time_t>(sec), before);
    EXPECT_LT(usec, 1000000ul);

    unsigned char shortKey[8];
    memset(shortKey, 0xAA, sizeof(shortKey));
    TmpNameGen::get_key(shortKey, 5);
    EXPECT_EQ(strlen(reinterpret_cast<char*>(shortKey)), 4u);
    EXPECT_EQ(shortKey[5], 0xAA);
}

TEST(TmpNameGenTest, EmptyKeyIsDrawnFromRand)
{
    // Retry when the second turns between the generator's srand and ours.
    for (int attempt = 0; attempt < 5; ++attempt) {
        unsigned char state[256], key[256] = {};
        time_t before = time(nullptr);
        TmpNameGen::rc4_init(state, key);
        if (time(nullptr) != before) {
            continue;
        }
        srand(static_cast<unsigned int>(before));
        for (int i = 0; i < 256; ++i) {
            ASSERT_EQ(key[i], rand() & 0xFF) << "byte " << i;
        }
        return;
    }
    GTEST_SKIP() << "the clock kept turning over a second";
}

}  // namespace
