#include "ustring.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <new>
#include <stdexcept>

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

namespace {

// ICU spells UTF-16 code units char16_t; we store unsigned short. Same size and
// representation, so the buffers are handed over as they are.
static_assert(sizeof(UChar) == sizeof(unsigned short), "UTF-16 unit size");
inline UChar* as_uchar(unsigned short* w)
{
    return reinterpret_cast<UChar*>(w);
}

// ICU takes int32_t capacities; a larger buffer is simply not used beyond that.
int32_t icu_capacity(size_t units)
{
    return units > static_cast<size_t>(INT32_MAX) ? INT32_MAX : static_cast<int32_t>(units);
}

// ICU failures are not thrown: the caller gets an empty side and a warning.
void icu_warning(const char* call, UErrorCode err, int line)
{
    std::cerr << "Warning: " << call << ": error code " << static_cast<int>(err) << " at line " << line
              << std::endl;
}

// old + added + 1 (the terminator); a sum that cannot exist cannot be allocated.
size_t grown(size_t old, size_t added)
{
    if (added >= SIZE_MAX - old)
        throw std::bad_alloc();
    return old + added + 1;
}

const UNormalization2Mode kModes[2] = {UNORM2_COMPOSE, UNORM2_DECOMPOSE};

// ASCII-only case folding: bytes of multi-byte characters compare as they are.
constexpr std::array<unsigned char, 256> make_fold_table()
{
    std::array<unsigned char, 256> t{};
    for (int i = 0; i < 256; ++i)
        t[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i - 'A' + 'a' : i);
    return t;
}
constexpr std::array<unsigned char, 256> kFold = make_fold_table();

int str_case_cmp(const char* a, const char* b)
{
    const unsigned char* x = reinterpret_cast<const unsigned char*>(a);
    const unsigned char* y = reinterpret_cast<const unsigned char*>(b);
    while (kFold[*x] == kFold[*y]) {
        if (*x == 0)
            return 0;
        ++x;
        ++y;
    }
    return kFold[*x] - kFold[*y];
}

// Byte-wise over at most n bytes; the terminator takes part, so a prefix is less.
int compare_bytes(const char* a, size_t la, const char* b, size_t lb, size_t n)
{
    const size_t common = std::min(la, lb);
    for (size_t i = 0; i < n && i <= common; ++i) {
        const int d = static_cast<unsigned char>(a[i]) - static_cast<unsigned char>(b[i]);
        if (d != 0)
            return d;
        if (i == common)  // an embedded NUL met the other's terminator
            return la == lb ? 0 : (la < lb ? -1 : 1);
    }
    return 0;
}

size_t text_length(const char* p)
{
    return p ? strlen(p) : 0;
}

// A null text argument counts as empty.
const char* or_empty(const char* p)
{
    return p ? p : "";
}

size_t units_length(const unsigned short* w, size_t n)
{
    size_t i = 0;
    while (i < n && w[i] != 0)
        ++i;
    return i;
}

bool in_set(char c, const char* set, size_t n)
{
    return n != 0 && memchr(set, c, n) != nullptr;
}

template <typename T> bool points_into(const T* p, const T* buf, size_t size)
{
    std::less<const T*> less;
    return !less(p, buf) && less(p, buf + size);
}

}  // namespace

// ---- set-up and capacity ----------------------------------------------------

void ustring::init()
{
    data = nullptr;
    data_len = data_size = 0;
    wdata = nullptr;
    wdata_len = wdata_size = 0;
    realloc_data(4);
    try {
        realloc_wdata(4);
    } catch (...) {
        free(data);
        data = nullptr;
        throw;
    }
    data[0] = 0;
    wdata[0] = 0;
}

void ustring::realloc_data(size_t n)
{
    if (n <= data_size && data_size / 2 <= n)
        return;
    void* p = realloc(data, n);
    if (!p)
        throw std::bad_alloc();
    data = static_cast<char*>(p);
    data_size = n;
}

void ustring::realloc_wdata(size_t n) const
{
    if (n <= wdata_size && wdata_size / 2 <= n)
        return;
    if (n > SIZE_MAX / sizeof(unsigned short))
        throw std::bad_alloc();
    void* p = realloc(wdata, n * sizeof(unsigned short));
    if (!p)
        throw std::bad_alloc();
    wdata = static_cast<unsigned short*>(p);
    wdata_size = n;
}

void ustring::clear_data()
{
    data_len = 0;
    data[0] = 0;
}

void ustring::clear_wdata() const
{
    wdata_len = 0;
    wdata[0] = 0;
}

bool ustring::owns(const char* p) const
{
    return points_into(p, data, data_size);
}

bool ustring::owns(const unsigned short* w) const
{
    return points_into<unsigned short>(w, wdata, wdata_size);
}

// ---- conversion ---------------------------------------------------------------

int ustring::convert_from_data() const
{
    UErrorCode err = U_ZERO_ERROR;
    int32_t units = 0;
    u_strFromUTF8(nullptr, 0, &units, data, -1, &err);
    err = U_ZERO_ERROR;  // the preflight's overflow report is expected
    realloc_wdata(static_cast<size_t>(units) + 1);
    const int line = __LINE__ + 1;
    u_strFromUTF8(as_uchar(wdata), icu_capacity(wdata_size), &units, data, -1, &err);
    if (U_FAILURE(err)) {
        // The UTF-8 text stays as it is; only the cache stays unbuilt.
        icu_warning("u_strFromUTF8", err, line);
        clear_wdata();
        return -1;
    }
    wdata_len = static_cast<size_t>(units);
    wdata[wdata_len] = 0;
    return 0;
}

int ustring::convert_from_wdata()
{
    UErrorCode err = U_ZERO_ERROR;
    int32_t bytes = 0;
    u_strToUTF8(nullptr, 0, &bytes, as_uchar(wdata), -1, &err);
    err = U_ZERO_ERROR;
    try {
        realloc_data(static_cast<size_t>(bytes) + 1);
    } catch (...) {
        // Keep the old UTF-8 text; the edited cache no longer matches it.
        clear_wdata();
        throw;
    }
    const int line = __LINE__ + 1;
    u_strToUTF8(data, icu_capacity(data_size), &bytes, as_uchar(wdata), -1, &err);
    if (U_FAILURE(err)) {
        // Nothing of a text ICU rejects is kept: both sides end up empty.
        icu_warning("u_strToUTF8", err, line);
        clear_data();
        clear_wdata();
        return -1;
    }
    data_len = static_cast<size_t>(bytes);
    data[data_len] = 0;
    return 0;
}

void ustring::ensure_wdata() const
{
    if (!wdata_current())
        convert_from_data();
}

// ---- construction -------------------------------------------------------------

ustring::ustring()
{
    init();
}

// The delegating forms count as constructed once ustring() returns, so a throw
// from the append below still frees the buffers.
ustring::ustring(const ustring& s) : ustring()
{
    append(s.c_str(), s.length());
}

ustring::ustring(const char* p) : ustring()
{
    append(p);
}

ustring::ustring(const unsigned short* w) : ustring()
{
    append(w);
}

ustring::ustring(const std::string& s) : ustring()
{
    append(s.c_str());
}

ustring::ustring(char c) : ustring()
{
    append(c, 1);
}

ustring::~ustring()
{
    free(data);
    free(wdata);
}

// ---- assignment ---------------------------------------------------------------

ustring& ustring::assign(const ustring& s, size_t pos, size_t n)
{
    if (&s == this) {
        const ustring part = substr(pos, n);
        return assign(part.c_str(), part.length());
    }
    clear();
    const ustring part = s.substr(pos, n);
    return append_bytes(part.c_str(), part.length());
}

ustring& ustring::assign(const std::string& s, size_t pos, size_t n)
{
    clear();
    return append(s, pos, n);
}

ustring& ustring::assign(const char* p)
{
    return assign(p, npos);
}

ustring& ustring::assign(const char* p, size_t n)
{
    if (p && owns(p)) {
        // Our own text: move the wanted part to the front, no buffer change.
        const size_t off = static_cast<size_t>(p - data);
        const size_t count = std::min(n, off <= data_len ? data_len - off : 0);
        if (off == 0 && count == data_len)
            return *this;
        memmove(data, data + off, count);
        data_len = count;
        data[data_len] = 0;
        clear_wdata();
        return *this;
    }
    clear();
    return append(p, n);
}

ustring& ustring::assign(const unsigned short* w)
{
    return assign(w, npos);
}

ustring& ustring::assign(const unsigned short* w, size_t n)
{
    if (w && owns(w)) {
        const size_t off = static_cast<size_t>(w - wdata);
        ensure_wdata();
        const size_t count = std::min(n, off <= wdata_len ? wdata_len - off : 0);
        if (off == 0 && count == wdata_len)
            return *this;
        memmove(wdata, wdata + off, count * sizeof(unsigned short));
        wdata_len = 0;
        return commit_units(count);
    }
    clear();
    return append(w, n);
}

ustring& ustring::assign(char c, size_t n)
{
    clear();
    return append(c, n);
}

ustring& ustring::assign(unsigned short c, size_t n)
{
    clear();
    return append(c, n);
}

ustring& ustring::operator=(const ustring& s)
{
    if (&s == this)
        return *this;
    return assign(s, 0, npos);
}

ustring& ustring::operator=(const std::string& s)
{
    return assign(s.c_str());
}
ustring& ustring::operator=(const char* p)
{
    return assign(p);
}
ustring& ustring::operator=(const unsigned short* w)
{
    return assign(w);
}
ustring& ustring::operator=(char c)
{
    return assign(c, 1);
}
ustring& ustring::operator=(unsigned short c)
{
    return assign(c, 1);
}

void ustring::clear()
{
    clear_data();
    clear_wdata();
}

void ustring::swap(ustring& other)
{
    std::swap(data, other.data);
    std::swap(data_len, other.data_len);
    std::swap(data_size, other.data_size);
    std::swap(wdata, other.wdata);
    std::swap(wdata_len, other.wdata_len);
    std::swap(wdata_size, other.wdata_size);
}

void swap(ustring& a, ustring& b)
{
    a.swap(b);
}

// ---- appending ------------------------------------------------------------------

ustring& ustring::append(const char* p)
{
    return append(p, npos);
}

ustring& ustring::append(const char* p, size_t n)
{
    if (!p)
        return append_bytes("", 0);
    if (owns(p)) {
        // Counted from data_len: the text may hold a NUL written through operator[].
        const size_t off = static_cast<size_t>(p - data);
        return append_bytes(p, std::min(n, off <= data_len ? data_len - off : 0));
    }
    return append_bytes(p, strnlen(p, n));
}

// Copies exactly n bytes of p. When p is our own text, it is read again from
// the buffer after the reallocation, which may have moved it.
ustring& ustring::append_bytes(const char* p, size_t n)
{
    const bool own = owns(p);
    const size_t off = own ? static_cast<size_t>(p - data) : 0;
    realloc_data(grown(data_len, n));
    memcpy(data + data_len, own ? data + off : p, n);
    data_len += n;
    data[data_len] = 0;
    clear_wdata();
    return *this;
}

ustring& ustring::append(const unsigned short* w)
{
    return append(w, npos);
}

ustring& ustring::append(const unsigned short* w, size_t n)
{
    return append_units(w, n);
}

// Adds at most n units of w (up to its NUL) on the UTF-16 side. When w is our
// own cache, it is read again after the cache was built and grown.
ustring& ustring::append_units(const unsigned short* w, size_t n)
{
    static const unsigned short kNone[1] = {0};
    if (!w)
        w = kNone;
    const bool own = owns(w);
    const size_t off = own ? static_cast<size_t>(w - wdata) : 0;
    ensure_wdata();
    const size_t count = own ? std::min(n, off <= wdata_len ? wdata_len - off : 0) : units_length(w, n);
    realloc_wdata(grown(wdata_len, count));
    memcpy(wdata + wdata_len, own ? wdata + off : w, count * sizeof(unsigned short));
    return commit_units(count);
}

ustring& ustring::append(char c, size_t n)
{
    realloc_data(grown(data_len, n));
    memset(data + data_len, c, n);
    data_len += n;
    data[data_len] = 0;
    clear_wdata();
    return *this;
}

ustring& ustring::append(unsigned short c, size_t n)
{
    ensure_wdata();
    const size_t count = c == 0 ? 0 : n;  // a NUL unit ends the source at once
    realloc_wdata(grown(wdata_len, count));
    std::fill_n(wdata + wdata_len, count, c);
    return commit_units(count);
}

// The UTF-16 side grew by `added` units written after wdata_len: terminate it
// and make the UTF-8 side follow.
ustring& ustring::commit_units(size_t added)
{
    wdata_len += added;
    wdata[wdata_len] = 0;
    convert_from_wdata();
    return *this;
}

ustring& ustring::append(const ustring& s, size_t pos, size_t n)
{
    const ustring part = s.substr(pos, n);
    return append_bytes(part.c_str(), part.length());
}

ustring& ustring::append(const std::string& s, size_t pos, size_t n)
{
    if (pos > s.size())
        throw std::out_of_range("basic_string::substr");
    const std::string part = s.substr(pos, n);
    return append(part.c_str());
}

ustring& ustring::operator+=(const ustring& s)
{
    return append(s.c_str(), s.length());
}
ustring& ustring::operator+=(const std::string& s)
{
    return append(s.c_str());
}
ustring& ustring::operator+=(const char* p)
{
    return append(p);
}
ustring& ustring::operator+=(const unsigned short* w)
{
    return append(w);
}
ustring& ustring::operator+=(char c)
{
    return append(c, 1);
}
ustring& ustring::operator+=(unsigned short c)
{
    return append(c, 1);
}

ustring operator+(const ustring& a, const ustring& b)
{
    return ustring(a) += b;
}
ustring operator+(const ustring& a, const char* b)
{
    return ustring(a) += b;
}
ustring operator+(const ustring& a, char b)
{
    return ustring(a) += b;
}
ustring operator+(const ustring& a, const unsigned short* b)
{
    return ustring(a) += b;
}
ustring operator+(const ustring& a, unsigned short b)
{
    return ustring(a) += b;
}

// ---- access -----------------------------------------------------------------------

const unsigned short* ustring::c_str_utf16() const
{
    ensure_wdata();
    return wdata;
}

char& ustring::operator[](size_t i)
{
    clear_wdata();
    return data[i];
}

ustring ustring::substr(size_t pos, size_t n) const
{
    if (pos > data_len)
        throw std::out_of_range("substr");
    ustring part;
    part.append(data + pos, n);
    return part;
}

// ---- searching ----------------------------------------------------------------------

size_t ustring::find_seq(const char* s, size_t n, size_t pos) const
{
    if (pos >= data_len)
        return npos;
    for (size_t i = pos; n <= data_len - i; ++i) {
        if (memcmp(data + i, s, n) == 0)
            return i;
    }
    return npos;
}

size_t ustring::backward_start(size_t pos) const
{
    return pos >= data_len ? data_len - 1 : pos;
}

size_t ustring::rfind_seq(const char* s, size_t n, size_t pos) const
{
    if (data_len == 0)
        return npos;
    for (size_t i = backward_start(pos) + 1; i-- > 0;) {
        // The needle may run past the start, up to the end of the text.
        if (n <= data_len - i && memcmp(data + i, s, n) == 0)
            return i;
    }
    return npos;
}

size_t ustring::find_set(const char* set, size_t n, size_t pos, bool member) const
{
    for (size_t i = pos; i < data_len; ++i) {
        if (in_set(data[i], set, n) == member)
            return i;
    }
    return npos;
}

size_t ustring::rfind_set(const char* set, size_t n, size_t pos, bool member) const
{
    if (data_len == 0)
        return npos;
    for (size_t i = backward_start(pos) + 1; i-- > 0;) {
        if (in_set(data[i], set, n) == member)
            return i;
    }
    return npos;
}

size_t ustring::find(const std::string& s, size_t pos) const
{
    return find(s.c_str(), pos);
}
size_t ustring::find(const char* s, size_t pos) const
{
    return find_seq(or_empty(s), text_length(s), pos);
}
size_t ustring::find(const ustring& s, size_t pos) const
{
    return find_seq(s.data, s.data_len, pos);
}
size_t ustring::find(char c, size_t pos) const
{
    return find_seq(&c, 1, pos);
}

size_t ustring::rfind(const std::string& s, size_t pos) const
{
    return rfind(s.c_str(), pos);
}
size_t ustring::rfind(const char* s, size_t pos) const
{
    return rfind_seq(or_empty(s), text_length(s), pos);
}
size_t ustring::rfind(const ustring& s, size_t pos) const
{
    return rfind_seq(s.data, s.data_len, pos);
}
size_t ustring::rfind(char c, size_t pos) const
{
    return rfind_seq(&c, 1, pos);
}

size_t ustring::find_first_of(const std::string& s, size_t pos) const
{
    return find_first_of(s.c_str(), pos);
}
size_t ustring::find_first_of(const char* s, size_t pos) const
{
    return find_set(s, text_length(s), pos, true);
}
size_t ustring::find_first_of(const ustring& s, size_t pos) const
{
    return find_set(s.data, s.data_len, pos, true);
}
size_t ustring::find_first_of(char c, size_t pos) const
{
    return find_set(&c, 1, pos, true);
}

size_t ustring::find_first_not_of(const std::string& s, size_t pos) const
{
    return find_first_not_of(s.c_str(), pos);
}
size_t ustring::find_first_not_of(const char* s, size_t pos) const
{
    return find_set(s, text_length(s), pos, false);
}
size_t ustring::find_first_not_of(const ustring& s, size_t pos) const
{
    return find_set(s.data, s.data_len, pos, false);
}
size_t ustring::find_first_not_of(char c, size_t pos) const
{
    return find_set(&c, 1, pos, false);
}

size_t ustring::find_last_of(const std::string& s, size_t pos) const
{
    return find_last_of(s.c_str(), pos);
}
size_t ustring::find_last_of(const char* s, size_t pos) const
{
    return rfind_set(s, text_length(s), pos, true);
}
size_t ustring::find_last_of(const ustring& s, size_t pos) const
{
    return rfind_set(s.data, s.data_len, pos, true);
}
size_t ustring::find_last_of(char c, size_t pos) const
{
    return rfind_set(&c, 1, pos, true);
}

size_t ustring::find_last_not_of(const std::string& s, size_t pos) const
{
    return find_last_not_of(s.c_str(), pos);
}
size_t ustring::find_last_not_of(const char* s, size_t pos) const
{
    return rfind_set(s, text_length(s), pos, false);
}
size_t ustring::find_last_not_of(const ustring& s, size_t pos) const
{
    return rfind_set(s.data, s.data_len, pos, false);
}
size_t ustring::find_last_not_of(char c, size_t pos) const
{
    return rfind_set(&c, 1, pos, false);
}

// ---- editing in place -------------------------------------------------------------

// Both ends are found before anything moves, so a set that points into our
// own text is read as it was when the call began.
ustring& ustring::trim_set(const char* set, size_t n, bool left, bool right)
{
    size_t first = 0;
    while (left && first < data_len && in_set(data[first], set, n))
        ++first;
    size_t last = data_len;
    while (right && last > first && in_set(data[last - 1], set, n))
        --last;
    if (first == 0 && last == data_len)
        return *this;
    memmove(data, data + first, last - first);
    data_len = last - first;
    data[data_len] = 0;
    clear_wdata();
    return *this;
}

ustring& ustring::ltrim(const char* set)
{
    return trim_set(set, text_length(set), true, false);
}
ustring& ustring::ltrim(const ustring& set)
{
    return trim_set(set.data, set.data_len, true, false);
}
ustring& ustring::rtrim(const char* set)
{
    return trim_set(set, text_length(set), false, true);
}
ustring& ustring::rtrim(const ustring& set)
{
    return trim_set(set.data, set.data_len, false, true);
}
ustring& ustring::trim(const char* set)
{
    return trim_set(set, text_length(set), true, true);
}
ustring& ustring::trim(const ustring& set)
{
    return trim_set(set.data, set.data_len, true, true);
}

ustring& ustring::replace(char from, char to)
{
    std::replace(data, data + data_len, from, to);
    clear_wdata();
    return *this;
}

// ---- comparison -----------------------------------------------------------------------

int ustring::compare(const ustring& s) const
{
    return compare_bytes(data, data_len, s.data, s.data_len, npos);
}

int ustring::compare(const ustring& s, size_t n) const
{
    return compare_bytes(data, data_len, s.data, s.data_len, n);
}

int ustring::compare(const ustring& a, const ustring& b, bool ignore_case)
{
    return ignore_case ? str_case_cmp(a.data, b.data) : a.compare(b);
}

bool operator==(const ustring& a, const ustring& b)
{
    return a.compare(b) == 0;
}
bool operator!=(const ustring& a, const ustring& b)
{
    return a.compare(b) != 0;
}
bool operator<(const ustring& a, const ustring& b)
{
    return a.compare(b) < 0;
}
bool operator>(const ustring& a, const ustring& b)
{
    return a.compare(b) > 0;
}
bool operator<=(const ustring& a, const ustring& b)
{
    return a.compare(b) <= 0;
}
bool operator>=(const ustring& a, const ustring& b)
{
    return a.compare(b) >= 0;
}

// ---- Unicode ---------------------------------------------------------------------------

bool ustring::is_valid(const ustring& s)
{
    if (s.data_len == 0)
        return true;
    UErrorCode err = U_ZERO_ERROR;
    int32_t units = 0;
    u_strFromUTF8(nullptr, 0, &units, s.data, -1, &err);
    return err != U_INVALID_CHAR_FOUND;
}

ustring ustring::normalize(normalization_form f) const
{
    return normalize(*this, f);
}

ustring ustring::normalize(const ustring& s, normalization_form f)
{
    ustring result;
    if (s.data_len == 0)
        return result;
    // A Linux file name may hold any bytes: with no Unicode form of its own,
    // it stays as it is and still names its file.
    if (!is_valid(s))
        return s;
    UErrorCode err = U_ZERO_ERROR;
    const int get_line = __LINE__ + 1;
    const UNormalizer2* norm = unorm2_getInstance(nullptr, "nfc", kModes[f == NFD ? 1 : 0], &err);
    if (U_FAILURE(err) || !norm) {
        icu_warning("unorm2_getInstance", err, get_line);
        return result;
    }
    s.ensure_wdata();
    int32_t units = unorm2_normalize(norm, as_uchar(s.wdata), -1, nullptr, 0, &err);
    result.realloc_wdata(static_cast<size_t>(units) + 1);
    err = U_ZERO_ERROR;
    const int line = __LINE__ + 1;
    units = unorm2_normalize(norm, as_uchar(s.wdata), -1, as_uchar(result.wdata),
                             icu_capacity(result.wdata_size), &err);
    if (U_FAILURE(err)) {
        icu_warning("unorm2_normalize", err, line);
        result.clear();
        return result;
    }
    result.commit_units(static_cast<size_t>(units));
    return result;
}

// ---- streams -----------------------------------------------------------------------------

std::ostream& operator<<(std::ostream& os, const ustring& s)
{
    return os << s.c_str();
}

std::istream& operator>>(std::istream& is, ustring& s)
{
    std::string word;
    is >> word;
    s = word;
    return is;
}
