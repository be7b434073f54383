#include "ustring.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

// The impossible allocation below must come back as null, not stop the run.
extern "C" const char* __asan_default_options() { return "allocator_may_return_null=1"; }

namespace {

const size_t npos = ustring::npos;

const unsigned short* u16(const char16_t* s) { return reinterpret_cast<const unsigned short*>(s); }
std::u16string utf16_of(const ustring& s) { return reinterpret_cast<const char16_t*>(s.c_str_utf16()); }

// Each warning is one line: fixed text, ICU error code, source line.
std::vector<std::string> warning_lines(const std::string& text, const std::string& call)
{
    const std::string head = "Warning: " + call + ": error code ";
    std::vector<std::string> found;
    std::istringstream in(text);
    for (std::string l; std::getline(in, l);) {
        int code = 0;
        int line = 0;
        std::string at;
        std::string line_word;
        std::istringstream rest(l.substr(std::min(head.size(), l.size())));
        EXPECT_EQ(l.compare(0, head.size(), head), 0) << l;
        EXPECT_TRUE(rest >> code >> at >> line_word >> line && at == "at" && line_word == "line" && line > 0) << l;
        EXPECT_TRUE(rest.eof()) << l;
        found.push_back(l);
    }
    return found;
}

std::string thrown_text(const std::function<void()>& f)
{
    try {
        f();
    } catch (const std::out_of_range& e) {
        return e.what();
    }
    return "(nothing thrown)";
}

}  // namespace

TEST(UstringTest, FreshAndMultiByteTexts)
{
    const ustring empty;
    EXPECT_EQ(empty.length(), 0u);
    EXPECT_TRUE(empty.empty());
    EXPECT_STREQ(empty.c_str(), "");
    EXPECT_EQ(empty.c_str_utf16()[0], 0);
    EXPECT_GE(malloc_usable_size(const_cast<char*>(empty.c_str())), 4u);

    const ustring e_acute("\xC3\xA9");
    EXPECT_EQ(e_acute.length(), 2u);
    EXPECT_EQ(utf16_of(e_acute), u"\u00E9");
    EXPECT_TRUE(ustring::is_valid(e_acute));
    EXPECT_FALSE(ustring::is_valid(e_acute.substr(1)));

    EXPECT_STREQ(ustring(std::string("ab\0cd", 5)).c_str(), "ab");
    EXPECT_STREQ(ustring(u16(u"h\u00E9llo")).c_str(), "h\xC3\xA9llo");
    EXPECT_STREQ((ustring("a") + 'b' + "c" + ustring("d") + u16(u"e") + static_cast<unsigned short>('f')).c_str(),
                 "abcdef");
}

TEST(UstringTest, SubstrAndPositionErrors)
{
    const ustring s("abc");
    EXPECT_TRUE(s.substr(3).empty());
    EXPECT_EQ(s.substr(0, npos), s);
    EXPECT_STREQ(s.substr(1, 1).c_str(), "b");
    EXPECT_EQ(thrown_text([&] { s.substr(4); }), "substr");

    ustring target("keep");
    EXPECT_EQ(thrown_text([&] { target.append(s, 4); }), "substr");
    EXPECT_STREQ(target.c_str(), "keep");
    EXPECT_EQ(thrown_text([&] { target.append(std::string("abc"), 4); }), "basic_string::substr");
    EXPECT_STREQ(target.c_str(), "keep");
    EXPECT_EQ(thrown_text([&] { target.assign(target, 5); }), "substr");
    EXPECT_STREQ(target.c_str(), "keep");  // self-assignment checks first
    EXPECT_EQ(thrown_text([&] { target.assign(s, 4); }), "substr");
    EXPECT_TRUE(target.empty());
    EXPECT_EQ(thrown_text([&] { target.assign(std::string("x"), 2); }), "basic_string::substr");

    target.assign(std::string("hello", 5), 1, 3);
    EXPECT_STREQ(target.c_str(), "ell");
}

TEST(UstringTest, SearchFamilies)
{
    enum Family { Find, RFind, FirstOf, FirstNotOf, LastOf, LastNotOf };
    struct Row {
        const char* name;
        const char* text;
        Family family;
        const char* needle;
        size_t pos;
        size_t expected;
    };
    const Row rows[] = {
        {"empty needle at pos", "abc", Find, "", 2, 2},
        {"empty needle at end", "abc", Find, "", 3, npos},
        {"find from pos", "abcbc", Find, "bc", 2, 3},
        {"find miss", "abcbc", Find, "cd", 0, npos},
        {"find needle longer than rest", "abc", Find, "bcd", 1, npos},
        {"find multibyte", "x\xC3\xA9y", Find, "\xA9", 0, 2},
        {"rfind last", "abcbc", RFind, "bc", npos, 3},
        {"rfind before pos", "abcbc", RFind, "bc", 2, 1},
        {"rfind runs past start", "abcbc", RFind, "bc", 3, 3},
        {"rfind empty needle", "abc", RFind, "", npos, 2},
        {"rfind empty text", "", RFind, "", npos, npos},
        {"first_of", "a/b:c", FirstOf, ":/", 0, 1},
        {"first_of empty set", "abc", FirstOf, "", 0, npos},
        {"first_of past end", "abc", FirstOf, "c", 3, npos},
        {"first_not_of", "  x", FirstNotOf, " ", 0, 2},
        {"first_not_of empty set", "abc", FirstNotOf, "", 1, 1},
        {"first_not_of all in set", "aaa", FirstNotOf, "a", 0, npos},
        {"last_of", "abcbc", LastOf, "b", npos, 3},
        {"last_of from pos", "abcbc", LastOf, "b", 2, 1},
        {"last_of empty set", "abc", LastOf, "", npos, npos},
        {"last_not_of", "x  ", LastNotOf, " ", npos, 0},
        {"last_not_of empty set", "abc", LastNotOf, "", 1, 1},
        {"last_not_of empty text", "", LastNotOf, "a", npos, npos},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const ustring s(r.text);
        // The std::string, char*, ustring and char needles must agree.
        auto check = [&](auto needle) {
            switch (r.family) {
            case Find: return s.find(needle, r.pos);
            case RFind: return s.rfind(needle, r.pos);
            case FirstOf: return s.find_first_of(needle, r.pos);
            case FirstNotOf: return s.find_first_not_of(needle, r.pos);
            case LastOf: return s.find_last_of(needle, r.pos);
            case LastNotOf: return s.find_last_not_of(needle, r.pos);
            }
            return size_t(0);
        };
        EXPECT_EQ(check(r.needle), r.expected);
        EXPECT_EQ(check(std::string(r.needle)), r.expected);
        EXPECT_EQ(check(ustring(r.needle)), r.expected);
        if (strlen(r.needle) == 1) {
            EXPECT_EQ(check(r.needle[0]), r.expected);
        }
    }
}

TEST(UstringTest, SelfAppendAndSelfAssign)
{
    ustring s("abcd");
    s += s;
    s.append(s.c_str());
    EXPECT_STREQ(s.c_str(), "abcdabcdabcdabcd");
    // Grow far enough that realloc has to move the buffer while it is read.
    for (int i = 0; i < 8; ++i)
        s.append(s.c_str(), s.length());
    EXPECT_EQ(s.length(), 4096u);
    EXPECT_EQ(s.find("dabc", 4000), 4003u);

    ustring m("abcdef");
    m.append(m.c_str() + 2);
    EXPECT_STREQ(m.c_str(), "abcdefcdef");
    m.append(m.c_str() + 1, 2);
    EXPECT_STREQ(m.c_str(), "abcdefcdefbc");
    m.assign(m.c_str() + 6, 4);
    EXPECT_STREQ(m.c_str(), "cdef");
    m.assign(m.c_str());
    const ustring& same = m;
    m = same;
    EXPECT_STREQ(m.c_str(), "cdef");
    m.assign(m.c_str(), 2);
    EXPECT_STREQ(m.c_str(), "cd");
    m.assign(m, 1);
    EXPECT_STREQ(m.c_str(), "d");

    ustring w("xy");
    w.append(w.c_str_utf16());
    EXPECT_STREQ(w.c_str(), "xyxy");
    w.assign(w.c_str_utf16() + 1, 2);
    EXPECT_STREQ(w.c_str(), "yx");
    EXPECT_EQ(utf16_of(w), u"yx");
}

TEST(UstringTest, IcuRejectsInvalidText)
{
    ustring bad("a\xFF" "b");
    testing::internal::CaptureStderr();
    EXPECT_EQ(bad.c_str_utf16()[0], 0);
    EXPECT_EQ(bad.c_str_utf16()[0], 0);
    EXPECT_EQ(warning_lines(testing::internal::GetCapturedStderr(), "u_strFromUTF8").size(), 2u);
    EXPECT_STREQ(bad.c_str(), "a\xFF" "b");
    EXPECT_FALSE(ustring::is_valid(bad));

    // The unbuilt cache counts as empty, so the 16-bit text replaces the bytes.
    testing::internal::CaptureStderr();
    bad.append(u16(u"z"));
    testing::internal::GetCapturedStderr();
    EXPECT_STREQ(bad.c_str(), "z");

    ustring lone("ab");
    testing::internal::CaptureStderr();
    lone.append(static_cast<unsigned short>(0xD800), 1);
    EXPECT_EQ(warning_lines(testing::internal::GetCapturedStderr(), "u_strToUTF8").size(), 1u);
    EXPECT_TRUE(lone.empty());
    EXPECT_EQ(lone.c_str_utf16()[0], 0);
}

TEST(UstringTest, Normalization)
{
    const ustring decomposed("e\xCC\x81");
    const ustring composed = decomposed.normalize(ustring::NFC);
    EXPECT_STREQ(composed.c_str(), "\xC3\xA9");
    EXPECT_EQ(utf16_of(composed), u"\u00E9");
    EXPECT_EQ(ustring::normalize(composed, ustring::NFD), decomposed);
    EXPECT_TRUE(ustring().normalize(ustring::NFD).empty());
}

TEST(UstringTest, Utf8EditsDropTheCache)
{
    ustring s("a/b/c");
    EXPECT_EQ(utf16_of(s), u"a/b/c");
    s.replace('/', ':');
    EXPECT_EQ(utf16_of(s), u"a:b:c");
    s[0] = 'x';
    EXPECT_EQ(utf16_of(s), u"x:b:c");
    s.trim("x");
    EXPECT_EQ(utf16_of(s), u":b:c");
    // A 16-bit append after an 8-bit one rebuilds the cache before editing it.
    s += "d";
    s += static_cast<unsigned short>(0x00E9);
    EXPECT_STREQ(s.c_str(), ":b:cd\xC3\xA9");
    s.assign(static_cast<unsigned short>('z'), 3);
    EXPECT_STREQ(s.c_str(), "zzz");
    s.clear();
    EXPECT_EQ(utf16_of(s), u"");
}

TEST(UstringTest, BuffersAreExactFit)
{
    auto capacity = [](const void* p) { return malloc_usable_size(const_cast<void*>(p)); };
    ustring s;
    for (int i = 0; i < 1500; ++i)
        s += 'x';
    // Doubling would have left at least 2048 bytes; allocator rounding is small.
    EXPECT_LT(capacity(s.c_str()), 1501u + 64u);
    EXPECT_GE(capacity(s.c_str_utf16()), 1501u * 2);
    EXPECT_LT(capacity(s.c_str_utf16()), 1501u * 2 + 64u);

    const char* before = s.c_str();
    s.assign(std::string(800, 'y'));  // needs more than half: kept
    EXPECT_EQ(s.c_str(), before);
    EXPECT_GE(capacity(s.c_str()), 1501u);
    s.assign("ab");  // needs less than half: shrunk
    EXPECT_LT(capacity(s.c_str()), 64u);

    ustring kept("text");
    EXPECT_THROW(kept.append('x', SIZE_MAX / 4), std::bad_alloc);
    EXPECT_THROW(kept.append('x', npos), std::bad_alloc);
    EXPECT_STREQ(kept.c_str(), "text");
}

TEST(UstringTest, Trim)
{
    struct Row {
        const char* text;
        const char* set;
        const char* both;
        const char* left;
        const char* right;
    };
    const Row rows[] = {
        {" \t x y \t", " \t", "x y", "x y \t", " \t x y"},
        {"   ", " ", "", "", ""},
        {"abc", "", "abc", "abc", "abc"},
        {"", " ", "", "", ""},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.text);
        EXPECT_STREQ(ustring(r.text).trim(r.set).c_str(), r.both);
        EXPECT_STREQ(ustring(r.text).ltrim(ustring(r.set)).c_str(), r.left);
        EXPECT_STREQ(ustring(r.text).rtrim(r.set).c_str(), r.right);
    }
}

TEST(UstringTest, NullAndOwnTextArguments)
{
    const char* none = nullptr;
    ustring s(none);
    EXPECT_TRUE(s.empty());
    s.append("ab").append(none).append(static_cast<const unsigned short*>(nullptr));
    EXPECT_STREQ(s.c_str(), "ab");
    EXPECT_EQ(s.find(none, 1), 1u);
    EXPECT_EQ(s.rfind(none), 1u);
    EXPECT_EQ(s.find_first_of(none), npos);
    EXPECT_STREQ(s.trim(none).c_str(), "ab");
    EXPECT_TRUE(s.assign(none).empty());

    // The set is read as it was before either end was cut.
    ustring own("xaxbx");
    own.trim(own.c_str() + 4);
    EXPECT_STREQ(own.c_str(), "axb");
}

TEST(UstringTest, ComparisonAndOrder)
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

TEST(UstringTest, Streams)
{
    std::ostringstream out;
    out << ustring("h\xC3\xA9") << '|';
    EXPECT_EQ(out.str(), "h\xC3\xA9|");
    std::istringstream in("  one two");
    ustring word("old");
    in >> word;
    EXPECT_STREQ(word.c_str(), "one");
}
