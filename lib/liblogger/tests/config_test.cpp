#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <string>
#include <tuple>

#include "config.h"
#include "test_files.h"

namespace {

using Entries = decltype(Config::entries);

TEST(ConfigRead, FileFormatTable)
{
    const std::string x8189(8189, 'x');
    using Row = std::tuple<const char*, std::string, int, Entries>;  // name, text, result, entries
    const Row rows[] = {
        {"empty_file", "", 0, {}},
        {"comments_and_blank_lines", "# a\n\n   \n\t# b = c\n", 0, {}},
        {"pid_file", "pid=812\n", 0, {{"pid", "812"}}},
        {"later_value_wins", "a=1\na=2\n", 0, {{"a", "2"}}},
        {"trailing_comment", "name = value # note\n", 0, {{"name", "value"}}},
        {"cr_before_lf_ends_bare_value", "pid=812\r\n", 0, {{"pid", "812"}}},
        {"single_quotes_keep_blanks_and_hash", "k = 'two words # x'\n", 0, {{"k", "two words # x"}}},
        {"bare_value_keeps_hash_quotes_high_bytes", "k=a#b'c\"\xc3\xa9\n", 0, {{"k", "a#b'c\"\xc3\xa9"}}},
        {"equals_first_is_empty_key", "=value\n", 0, {{"", "value"}}},
        {"key_directly_before_hash_ignored", "key#x\n", 0, {}},
        {"key_alone_on_last_line_ignored", "a=1\nlonely", 0, {{"a", "1"}}},
        {"key_blank_hash_malformed", "key #x\n", -1, {}},
        {"key_equals_nothing_malformed", "a=1\nkey = \n", -1, {}},
        {"section_header_malformed", "[section]\n", -1, {}},
        {"key_byte_above_127_malformed", "k\xc3\xa9y=1\n", -1, {}},
        {"second_word_malformed", "k=a b\n", -1, {}},
        {"high_byte_after_quote_malformed", "k='a'\xc3\xa9\n", -1, {}},
        // fgets stops after 8,191 bytes: the rest is parsed as a line of its own.
        {"long_line_split_into_two_entries", "a=" + x8189 + "b=2\n", 0, {{"a", x8189}, {"b", "2"}}},
    };

    dwtest::TempDir dir;
    ASSERT_TRUE(dir.ok());
    for (const auto& [name, text, result, entries] : rows) {
        SCOPED_TRACE(name);
        dwtest::WriteFile(dir.file(name), text);
        Config c;
        EXPECT_EQ(c.read(dir.file(name).c_str()), result);
        EXPECT_EQ(c.entries, entries);
    }
}

TEST(ConfigRead, MalformedLineEmptiesAlsoEarlierEntriesButNoFileKeepsThem)
{
    dwtest::TempDir dir;
    ASSERT_TRUE(dir.ok());
    Config c;
    c.entries["old"] = "1";
    EXPECT_EQ(c.read(dir.file("missing").c_str()), -1);
    EXPECT_EQ(c.entries, (Entries{{"old", "1"}}));

    // A good file adds to them, replacing a key that is already there.
    dwtest::WriteFile(dir.file("good"), "old=2\nnew=3\n");
    EXPECT_EQ(c.read(dir.file("good").c_str()), 0);
    EXPECT_EQ(c.entries, (Entries{{"new", "3"}, {"old", "2"}}));

    dwtest::WriteFile(dir.file("bad"), "more=4\nkey\n");
    EXPECT_EQ(c.read(dir.file("bad").c_str()), -1);
    EXPECT_TRUE(c.entries.empty());
}

// What is not a regular file of a few KiB is refused as a missing file is,
// and without blocking: a FIFO that nobody writes, a link to an endless device.
TEST(ConfigRead, OnlyASmallRegularFileIsRead)
{
    const std::string most = "a=1\n" + std::string(Config::kMaxFileSize - 4, '#');
    // name, how the file is made, why it is refused (null: read)
    using Row = std::tuple<const char*, std::function<bool(const std::string&)>, const char*>;
    const Row rows[] = {
        {"fifo", [](const std::string& p) { return mkfifo(p.c_str(), 0600) == 0; }, "not a regular file"},
        {"link_to_dev_zero", [](const std::string& p) { return symlink("/dev/zero", p.c_str()) == 0; },
         "not a regular file"},
        {"folder", [](const std::string& p) { return mkdir(p.c_str(), 0700) == 0; }, "not a regular file"},
        {"gibibyte",
         [](const std::string& p) { return dwtest::WriteFile(p, "") && truncate(p.c_str(), 1 << 30) == 0; },
         "larger than 65536 bytes"},
        {"largest_read", [&](const std::string& p) { return dwtest::WriteFile(p, most); }, nullptr},
    };
    dwtest::TempDir dir;
    ASSERT_TRUE(dir.ok());
    alarm(60);  // a read that blocks ends the test instead of hanging it
    for (const auto& [name, make, why] : rows) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(make(dir.file(name)));
        Config c;
        c.entries["kept"] = "1";
        ustring refused;
        EXPECT_EQ(c.read(dir.file(name).c_str(), &refused), why ? -1 : 0);
        EXPECT_STREQ(refused.c_str(), why ? why : "");
        EXPECT_EQ(c.entries.count("a"), why ? 0u : 1u);
        EXPECT_EQ(c.entries["kept"], "1");
    }
    alarm(0);
}

TEST(ConfigGetInt, ReadsLeadingDecimalIntAndAddsMissingKey)
{
    Config c;
    for (auto [value, expected] :
         {std::pair{"7", 7}, {"12ab", 12}, {"abc", 0}, {"", 0}, {"-5", -5}, {" +3", 3}}) {
        c.entries["k"] = value;
        EXPECT_EQ(c.get_int("k"), expected) << value;
    }
    EXPECT_EQ(c.get_int("missing"), 0);
    EXPECT_EQ(c.entries, (Entries{{"k", " +3"}, {"missing", ""}}));
}

}  // namespace
