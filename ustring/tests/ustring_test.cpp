#include "ustring.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <regex>
#include <stdexcept>
#include <string>

// The impossible allocation below must come back as null, not stop the run.
extern "C" const char* __asan_default_options()
{
    return "allocator_may_return_null=1";
}

namespace {

const size_t npos = ustring::npos;

std::u16string utf16_of(const ustring& s)
{
    return reinterpret_cast<const char16_t*>(s.c_str_utf16());
}

// Ends a stderr capture; every line must be one warning of `call`: fixed
// text, ICU error code, source line. Returns the number of lines.
size_t warnings(const std::string& call)
{
    const std::string text = testing::internal::GetCapturedStderr();
    const std::string line = "Warning: " + call + ": error code -?\\d+ at line [1-9]\\d*\n";
    EXPECT_TRUE(std::regex_match(text, std::regex("(" + line + ")*"))) << text;
    return std::count(text.begin(), text.end(), '\n');
}

}  // namespace

// Appending and assigning the string's own bytes from any offset is the
// fuzzer's (fuzz_ustring checks it against std::string; seeds self-*).
TEST(UstringTest, AssignsItselfAndFromItsOwnUtf16AndTrimsByItsOwnBytes)
{
    ustring m("cdef");
    m.assign(m.c_str());
    m = static_cast<const ustring&>(m);
    EXPECT_STREQ(m.c_str(), "cdef");

    ustring w("xy");
    w.append(w.c_str_utf16());
    EXPECT_STREQ(w.c_str(), "xyxy");
    w.assign(w.c_str_utf16() + 1, 2);
    EXPECT_EQ(utf16_of(w), u"yx");

    // The set is read as it was before either end was cut.
    ustring own("xaxbx");
    own.trim(own.c_str() + 4);
    EXPECT_STREQ(own.c_str(), "axb");
}

TEST(UstringTest, IcuRejectsInvalidTextWithAWarningPerCall)
{
    const ustring bad("a\xFF"
                      "b");
    testing::internal::CaptureStderr();
    EXPECT_EQ(bad.c_str_utf16()[0], 0);
    EXPECT_EQ(bad.c_str_utf16()[0], 0);
    EXPECT_FALSE(ustring::is_valid(bad));  // silently
    EXPECT_EQ(warnings("u_strFromUTF8"), 2u);
    EXPECT_STREQ(bad.c_str(), "a\xFF"
                              "b");

    ustring lone("ab");
    testing::internal::CaptureStderr();
    lone.append(static_cast<unsigned short>(0xD800), 1);
    EXPECT_EQ(warnings("u_strToUTF8"), 1u);
    EXPECT_TRUE(lone.empty());
    EXPECT_EQ(lone.c_str_utf16()[0], 0);
}

TEST(UstringTest, NormalizesBothWays)
{
    const ustring decomposed("e\xCC\x81");
    const ustring composed = decomposed.normalize(ustring::NFC);
    EXPECT_STREQ(composed.c_str(), "\xC3\xA9");
    EXPECT_EQ(utf16_of(composed), u"\u00E9");
    EXPECT_EQ(ustring::normalize(composed, ustring::NFD), decomposed);
    // A file name in Latin-1 is no Unicode text: kept byte for byte.
    testing::internal::CaptureStderr();
    EXPECT_STREQ(ustring("Jos\xE9").normalize(ustring::NFC).c_str(), "Jos\xE9");
    EXPECT_EQ(warnings("u_strFromUTF8"), 0u);
}

TEST(UstringTest, Utf8EditsDropTheUtf16Cache)
{
    ustring s("a/b/c");
    EXPECT_EQ(utf16_of(s), u"a/b/c");
    s.replace('/', ':');
    EXPECT_EQ(utf16_of(s), u"a:b:c");
    s[0] = 'x';
    EXPECT_EQ(utf16_of(s), u"x:b:c");
    // A 16-bit append after an 8-bit one rebuilds the cache before editing it.
    s += "d";
    s += static_cast<unsigned short>(0x00E9);
    EXPECT_STREQ(s.c_str(), "x:b:cd\xC3\xA9");
}

TEST(UstringTest, BuffersAreExactFit)
{
    auto capacity = [](const void* p) { return malloc_usable_size(const_cast<void*>(p)); };
    ustring s;
    for (int i = 0; i < 1500; ++i)
        s += 'x';
    // Doubling would have left at least 2048 bytes; allocator rounding is small.
    EXPECT_LT(capacity(s.c_str()), 1501u + 64u);
    EXPECT_LT(capacity(s.c_str_utf16()), 1501u * 2 + 64u);

    const char* before = s.c_str();
    s.assign(std::string(800, 'y'));  // needs more than half: kept
    EXPECT_EQ(s.c_str(), before);
    s.assign("ab");  // needs less than half: shrunk
    EXPECT_LT(capacity(s.c_str()), 64u);

    ustring kept("text");  // the size must not wrap around
    EXPECT_THROW(kept.append('x', npos), std::bad_alloc);
    EXPECT_STREQ(kept.c_str(), "text");
}

TEST(UstringTest, PositionsBeyondTheSourceThrowOutOfRange)
{
    // The whole and past the end are among fuzz_ustring's seeds.
    const ustring s("abc");
    EXPECT_TRUE(s.substr(3).empty());

    const auto ours = testing::ThrowsMessage<std::out_of_range>(testing::StrEq("substr"));
    const auto std_s = testing::ThrowsMessage<std::out_of_range>(testing::StrEq("basic_string::substr"));
    ustring target("keep");
    EXPECT_THAT([&] { target.append(s, 4); }, ours);
    EXPECT_THAT([&] { target.append(std::string("abc"), 4); }, std_s);
    EXPECT_THAT([&] { target.assign(target, 5); }, ours);
    EXPECT_STREQ(target.c_str(), "keep");  // failed appends and a self-assignment leave it alone
    EXPECT_THAT([&] { target.assign(s, 4); }, ours);
    EXPECT_TRUE(target.empty());
    EXPECT_THAT([&] { target.assign(std::string("x"), 2); }, std_s);
}

// More inputs of each family, compared with std::string, are fuzz_ustring's
// seeds (fuzz/seeds/ustring/search-*).
TEST(UstringTest, SearchFamilies)
{
    enum Family { Find, RFind, FirstOf, FirstNotOf, LastOf, LastNotOf };
    const struct {
        const char *name, *text;
        Family family;
        const char* needle;
        size_t pos, expected;
    } rows[] = {
        {"empty needle at end", "abc", Find, "", 3, npos},
        {"find from pos", "abcbc", Find, "bc", 2, 3},
        {"rfind before pos", "abcbc", RFind, "bc", 2, 1},
        {"rfind runs past start", "abcbc", RFind, "bc", 3, 3},
        {"first_of", "a/b:c", FirstOf, ":/", 0, 1},
        {"first_not_of", "  x", FirstNotOf, " ", 0, 2},
        {"last_of", "abcbc", LastOf, "b", npos, 3},
        {"last_not_of", "x  ", LastNotOf, " ", npos, 0},
        {"last_not_of empty set", "abc", LastNotOf, "", 1, 1},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        const ustring s(r.text);
        // The std::string, char*, ustring and char needles must agree.
        auto check = [&](auto needle) {
            const size_t found[] = {s.find(needle, r.pos),          s.rfind(needle, r.pos),
                                    s.find_first_of(needle, r.pos), s.find_first_not_of(needle, r.pos),
                                    s.find_last_of(needle, r.pos),  s.find_last_not_of(needle, r.pos)};
            return found[r.family];
        };
        EXPECT_EQ(check(r.needle), r.expected);
        EXPECT_EQ(check(std::string(r.needle)), r.expected);
        EXPECT_EQ(check(ustring(r.needle)), r.expected);
        if (strlen(r.needle) == 1) {
            EXPECT_EQ(check(r.needle[0]), r.expected);
        }
    }
}

// An empty text is a fuzz_ustring seed (trim-empty-text).
TEST(UstringTest, TrimRemovesSetBytesAtEitherEnd)
{
    const struct {
        const char *text, *set, *both, *left, *right;
    } rows[] = {
        {" \t x y \t", " \t", "x y", "x y \t", " \t x y"},
        {"   ", " ", "", "", ""},
        {"abc", "", "abc", "abc", "abc"},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.text);
        EXPECT_STREQ(ustring(r.text).trim(r.set).c_str(), r.both);
        EXPECT_STREQ(ustring(r.text).ltrim(ustring(r.set)).c_str(), r.left);
        EXPECT_STREQ(ustring(r.text).rtrim(r.set).c_str(), r.right);
        EXPECT_STREQ(ustring(r.text).trim(ustring(r.set)).c_str(), r.both);
        EXPECT_STREQ(ustring(r.text).ltrim(r.set).c_str(), r.left);
        EXPECT_STREQ(ustring(r.text).rtrim(ustring(r.set)).c_str(), r.right);
    }
}

TEST(UstringTest, ComparesBytesAndFoldsOnlyAsciiCase)
{
    EXPECT_EQ(ustring("abc").compare(ustring("abd")), 'c' - 'd');
    EXPECT_EQ(ustring("ab").compare(ustring("a")), 'b');
    EXPECT_EQ(ustring("abc").compare(ustring("abd"), 2), 0);
    EXPECT_EQ(ustring("x").compare(ustring("y"), 0), 0);
    EXPECT_EQ(ustring::compare(ustring("ABC"), ustring("abc"), true), 0);
    EXPECT_NE(ustring::compare(ustring("\xC3\x89"), ustring("\xC3\xA9"), true), 0);
    EXPECT_NE(ustring::compare(ustring("ABC"), ustring("abc"), false), 0);

    EXPECT_LT(ustring("a"), ustring("b"));
    EXPECT_GT(ustring("ab"), ustring("a"));
    EXPECT_GT(ustring("\xC3\xA9"), ustring("z"));
    EXPECT_TRUE(ustring("a") <= ustring("a") && ustring("a") >= ustring("a"));
    EXPECT_TRUE(ustring("a") <= ustring("b") && !(ustring("a") >= ustring("b")));
    EXPECT_NE(ustring("a"), ustring("ab"));
}
