// Fuzzes ustring against std::string where the two agree, and its own
// invariants where they do not (UTF-16 cache, normalisation, self-append).
#include "fuzz_check.h"
#include "ustring.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstring>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

const size_t npos = ustring::npos;

bool same(const ustring& u, const std::string& s)
{
    return u.length() == s.size() && strlen(u.c_str()) == u.length() &&
           memcmp(u.c_str(), s.data(), s.size()) == 0;
}

int sign(int v)
{
    return (v > 0) - (v < 0);
}

// Where ustring's rules differ from std::string's, the difference is spelled
// out here: forward searches miss from pos >= length, backward ones miss on an
// empty text, and an empty rfind needle matches at the start position.
void check_searches(const ustring& s, const std::string& t, const std::string& needle, size_t pos)
{
    const bool past = pos >= t.size();
    CHECK(s.find(needle, pos) == (past ? npos : t.find(needle, pos)));
    CHECK(s.find_first_of(needle, pos) == (past ? npos : t.find_first_of(needle, pos)));
    CHECK(s.find_first_not_of(needle, pos) == (past ? npos : t.find_first_not_of(needle, pos)));
    CHECK(s.find_last_of(needle, pos) == t.find_last_of(needle, pos));
    CHECK(s.find_last_not_of(needle, pos) == t.find_last_not_of(needle, pos));
    size_t rfind_expected = t.rfind(needle, pos);
    if (t.empty())
        rfind_expected = npos;
    else if (needle.empty())
        rfind_expected = std::min(pos, t.size() - 1);
    CHECK(s.rfind(needle, pos) == rfind_expected);

    const ustring u(needle);
    CHECK(s.find(u, pos) == s.find(needle.c_str(), pos));
    CHECK(s.rfind(u, pos) == s.rfind(needle.c_str(), pos));
    CHECK(s.find_last_not_of(u, pos) == s.find_last_not_of(needle.c_str(), pos));
    if (!needle.empty()) {
        CHECK(s.find(needle[0], pos) == s.find(needle.substr(0, 1), pos));
        CHECK(s.find_last_of(needle[0], pos) == s.find_last_of(needle.substr(0, 1), pos));
    }
}

void check_trim(const std::string& t, const std::string& set)
{
    std::string expected = t;
    if (!set.empty()) {
        const size_t first = expected.find_first_not_of(set);
        expected.erase(0, first == npos ? expected.size() : first);
        const size_t last = expected.find_last_not_of(set);
        expected.erase(last == npos ? 0 : last + 1);
    }
    ustring s(t);
    CHECK(same(s.trim(set.c_str()), expected));
    ustring r(t);
    CHECK(same(r.ltrim(ustring(set)).rtrim(ustring(set)), expected));
}

void check_self_edits(const std::string& t, size_t k, size_t n)
{
    ustring s(t);
    std::string ref = t;
    s += s;
    ref += ref;
    CHECK(same(s, ref));
    const size_t off = k % (ref.size() + 1);
    s.append(s.c_str() + off);
    ref += ref.substr(off);
    CHECK(same(s, ref));
    s.append(s.c_str() + off, n);
    ref += ref.substr(off, n);
    CHECK(same(s, ref));
    s.assign(s.c_str() + off, n);
    ref = ref.substr(off, n);
    CHECK(same(s, ref));
    const size_t from = off % (ref.size() + 1);
    s.assign(s, from, n);
    ref = ref.substr(from, n);
    CHECK(same(s, ref));
}

void check_substr(const ustring& s, const std::string& t, size_t pos, size_t n)
{
    try {
        CHECK(same(s.substr(pos, n), t.substr(pos, n)));
    } catch (const std::out_of_range& e) {
        CHECK(pos > t.size() && strcmp(e.what(), "substr") == 0);
    }
}

void check_unicode(const ustring& s)
{
    const bool valid = ustring::is_valid(s);
    const unsigned short* w = s.c_str_utf16();
    CHECK(valid == (w[0] != 0 || s.empty()));
    const ustring nfc = s.normalize(ustring::NFC);
    if (!valid) {
        CHECK(nfc == s);
        ustring u(s);
        u.append(u.c_str_utf16());  // the empty cache replaces the rejected bytes
        CHECK(u.empty());
        return;
    }
    CHECK(ustring(w) == s);
    CHECK(ustring::is_valid(nfc));
    CHECK(nfc.normalize(ustring::NFC) == nfc);
    CHECK(nfc.normalize(ustring::NFD) == s.normalize(ustring::NFD));
    ustring twice(s);
    twice.append(twice.c_str_utf16());
    CHECK(twice == s + s);
}

void check_compare(const ustring& a, const std::string& ta, const ustring& b, const std::string& tb)
{
    CHECK(sign(a.compare(b)) == sign(ta.compare(tb)));
    CHECK((a < b) == (ta < tb) && (a <= b) == (ta <= tb) && (a == b) == (ta == tb));
    std::string upper = ta;
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    CHECK(ustring::compare(a, ustring(upper), true) == 0);
}

std::string without_nul(std::string s)
{
    s.erase(std::remove(s.begin(), s.end(), '\0'), s.end());
    return s;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // Rejected UTF-8 writes a warning per conversion; at fuzzing speed that is
    // all the fuzzer would do. Crash reports do not go through std::cerr.
    std::cerr.rdbuf(nullptr);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzedDataProvider in(data, size);
    const size_t pos = in.ConsumeBool() ? npos : in.ConsumeIntegralInRange<size_t>(0, 80);
    const size_t n = in.ConsumeBool() ? npos : in.ConsumeIntegralInRange<size_t>(0, 80);
    const std::string needle = without_nul(in.ConsumeRandomLengthString(12));
    const std::string text = without_nul(in.ConsumeRemainingBytesAsString());

    const ustring s(text.c_str());
    CHECK(same(s, text));
    check_searches(s, text, needle, pos);
    check_trim(text, needle);
    check_self_edits(text, pos, n);
    check_substr(s, text, pos, n);
    check_unicode(s);
    check_compare(s, text, ustring(needle), needle);
    return 0;
}
