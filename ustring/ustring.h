// ustring: UTF-8 text with a UTF-16 copy built on demand.
//
// The UTF-8 side is authoritative; the UTF-16 side is a cache that is current
// when wdata_len != 0 or data_len == 0. Every UTF-8 edit drops the cache; every
// UTF-16 edit rebuilds the UTF-8 side from the cache. All positions, lengths and
// search results are byte offsets into the UTF-8 text; a miss is npos.
//
// Buffers come from realloc/free; a failed allocation throws std::bad_alloc and
// leaves the buffer being grown as it was. A null pointer argument counts as an
// empty text. A pointer into this string's own buffer (start or middle) is safe.
//
// Threads: nothing is locked. The const members that read only the UTF-8 side
// (c_str, length, find, compare, substr, copying from it, ...) never write and
// may run on one ustring from several threads at once. c_str_utf16() and
// normalize() (either form, on the string normalised) are const but fill the
// UTF-16 cache when it is not current, so they write: two threads calling them
// on the same ustring, or one calling them while another holds a pointer from
// c_str_utf16(), need a lock. Once the cache is filled they only read, except
// for a non-empty text whose UTF-16 form cannot be made (invalid UTF-8) or
// comes out empty (a leading NUL byte): that keeps no cache and is converted
// again on every call.
#ifndef DW_USTRING_USTRING_H
#define DW_USTRING_USTRING_H

#include <cstddef>
#include <iosfwd>
#include <string>

class ustring {
public:
    enum normalization_form { NFC = 0, NFD = 1 };
    static const size_t npos = static_cast<size_t>(-1);

    ustring();
    ustring(const ustring& s);
    ustring(const char* p);
    ustring(const unsigned short* w);
    ustring(const std::string& s);
    ustring(char c);
    ~ustring();

    // Assignment. The ustring/std::string forms with pos throw std::out_of_range
    // ("substr" / "basic_string::substr") when pos is past the source's end.
    ustring& assign(const ustring& s, size_t pos = 0, size_t n = npos);
    ustring& assign(const std::string& s, size_t pos = 0, size_t n = npos);
    ustring& assign(const char* p);
    ustring& assign(const char* p, size_t n);
    ustring& assign(const unsigned short* w);
    ustring& assign(const unsigned short* w, size_t n);
    ustring& assign(char c, size_t n);
    ustring& assign(unsigned short c, size_t n);

    ustring& operator=(const ustring& s);
    ustring& operator=(const std::string& s);
    ustring& operator=(const char* p);
    ustring& operator=(const unsigned short* w);
    ustring& operator=(char c);
    ustring& operator=(unsigned short c);

    void clear();
    void swap(ustring& other);

    // Appending. 16-bit forms edit the UTF-16 side, then regenerate UTF-8.
    ustring& append(const char* p);
    ustring& append(const char* p, size_t n);
    ustring& append(const unsigned short* w);
    ustring& append(const unsigned short* w, size_t n);
    ustring& append(char c, size_t n);
    ustring& append(unsigned short c, size_t n);
    ustring& append(const ustring& s, size_t pos = 0, size_t n = npos);
    ustring& append(const std::string& s, size_t pos = 0, size_t n = npos);

    ustring& operator+=(const ustring& s);
    ustring& operator+=(const std::string& s);
    ustring& operator+=(const char* p);
    ustring& operator+=(const unsigned short* w);
    ustring& operator+=(char c);
    ustring& operator+=(unsigned short c);

    // Access.
    const char* c_str() const { return data; }
    const char* c_str_utf8() const { return data; }
    const unsigned short* c_str_utf16() const;
    size_t length() const { return data_len; }
    size_t size() const { return data_len; }
    bool empty() const { return data_len == 0; }
    const char& operator[](size_t i) const { return data[i]; }
    char& operator[](size_t i);  // drops the UTF-16 cache
    ustring substr(size_t pos = 0, size_t n = npos) const;

    // Searching: byte-wise, naive.
    size_t find(const std::string& s, size_t pos = 0) const;
    size_t find(const char* s, size_t pos = 0) const;
    size_t find(const ustring& s, size_t pos = 0) const;
    size_t find(char c, size_t pos = 0) const;
    size_t rfind(const std::string& s, size_t pos = npos) const;
    size_t rfind(const char* s, size_t pos = npos) const;
    size_t rfind(const ustring& s, size_t pos = npos) const;
    size_t rfind(char c, size_t pos = npos) const;
    size_t find_first_of(const std::string& s, size_t pos = 0) const;
    size_t find_first_of(const char* s, size_t pos = 0) const;
    size_t find_first_of(const ustring& s, size_t pos = 0) const;
    size_t find_first_of(char c, size_t pos = 0) const;
    size_t find_first_not_of(const std::string& s, size_t pos = 0) const;
    size_t find_first_not_of(const char* s, size_t pos = 0) const;
    size_t find_first_not_of(const ustring& s, size_t pos = 0) const;
    size_t find_first_not_of(char c, size_t pos = 0) const;
    size_t find_last_of(const std::string& s, size_t pos = npos) const;
    size_t find_last_of(const char* s, size_t pos = npos) const;
    size_t find_last_of(const ustring& s, size_t pos = npos) const;
    size_t find_last_of(char c, size_t pos = npos) const;
    size_t find_last_not_of(const std::string& s, size_t pos = npos) const;
    size_t find_last_not_of(const char* s, size_t pos = npos) const;
    size_t find_last_not_of(const ustring& s, size_t pos = npos) const;
    size_t find_last_not_of(char c, size_t pos = npos) const;

    // Editing in place.
    ustring& ltrim(const char* set);
    ustring& ltrim(const ustring& set);
    ustring& rtrim(const char* set);
    ustring& rtrim(const ustring& set);
    ustring& trim(const char* set);
    ustring& trim(const ustring& set);
    ustring& replace(char from, char to);

    // Comparison: difference of the first differing bytes as unsigned values.
    int compare(const ustring& s) const;
    int compare(const ustring& s, size_t n) const;
    static int compare(const ustring& a, const ustring& b, bool ignore_case);

    // Unicode (ICU). Text that is not valid UTF-8 is normalised to itself,
    // silently.
    static bool is_valid(const ustring& s);
    ustring normalize(normalization_form f) const;
    static ustring normalize(const ustring& s, normalization_form f);

private:
    void init();
    void realloc_data(size_t n);
    void realloc_wdata(size_t n) const;
    int convert_from_data() const;
    int convert_from_wdata();
    void clear_data();
    void clear_wdata() const;
    bool wdata_current() const { return wdata_len != 0 || data_len == 0; }
    void ensure_wdata() const;
    bool owns(const char* p) const;
    bool owns(const unsigned short* w) const;
    ustring& append_bytes(const char* p, size_t n);
    ustring& append_units(const unsigned short* w, size_t n);
    ustring& commit_units(size_t added);
    size_t find_seq(const char* s, size_t n, size_t pos) const;
    size_t rfind_seq(const char* s, size_t n, size_t pos) const;
    size_t find_set(const char* set, size_t n, size_t pos, bool member) const;
    size_t rfind_set(const char* set, size_t n, size_t pos, bool member) const;
    size_t backward_start(size_t pos) const;
    ustring& trim_set(const char* set, size_t n, bool left, bool right);

    char* data;
    size_t data_len;
    size_t data_size;
    mutable unsigned short* wdata;
    mutable size_t wdata_len;
    mutable size_t wdata_size;
};

void swap(ustring& a, ustring& b);

ustring operator+(const ustring& a, const ustring& b);
ustring operator+(const ustring& a, const char* b);
ustring operator+(const ustring& a, char b);
ustring operator+(const ustring& a, const unsigned short* b);
ustring operator+(const ustring& a, unsigned short b);

bool operator==(const ustring& a, const ustring& b);
bool operator!=(const ustring& a, const ustring& b);
bool operator<(const ustring& a, const ustring& b);
bool operator>(const ustring& a, const ustring& b);
bool operator<=(const ustring& a, const ustring& b);
bool operator>=(const ustring& a, const ustring& b);

std::ostream& operator<<(std::ostream& os, const ustring& s);
std::istream& operator>>(std::istream& is, ustring& s);

#endif
