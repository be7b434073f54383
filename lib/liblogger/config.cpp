#include "config.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <sstream>
#include <string>

namespace {

// A line is what fgets gives into this buffer: a physical line longer than
// kLineBufferSize - 1 bytes is parsed as several lines. Part of the file
// format, not a tuning knob.
const size_t kLineBufferSize = 8192;

// The line that starts at `start`, as fgets would give it (its line feed
// kept); `start` moves past it. A zero byte inside ends the text that the
// parser sees, as it does with fgets.
std::string next_line(const std::string& text, size_t& start)
{
    size_t length = std::min(kLineBufferSize - 1, text.size() - start);
    const size_t feed = text.find('\n', start);
    if (feed != std::string::npos && feed - start < length)
        length = feed - start + 1;
    const size_t begin = start;
    start += length;
    return text.substr(begin, length);
}

// The file's bytes, but never more than `most`: a huge or endless file costs
// no more than that. False on a read error.
bool read_up_to(int fd, size_t most, std::string& text)
{
    text.resize(most);
    size_t got = 0;
    ssize_t n = 1;
    while (got < most && n != 0) {
        n = ::read(fd, &text[got], most - got);
        if (n < 0 && errno != EINTR)
            return false;
        got += n > 0 ? static_cast<size_t>(n) : 0;
    }
    text.resize(got);
    return true;
}

// Tab, line feed, vertical tab, form feed, carriage return, space; fixed here
// so the process locale cannot change what the parser accepts.
bool is_space(unsigned char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool is_key_char(unsigned char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '.' || c == '_';
}

// Control bytes and delete may not appear inside a value.
bool is_control(unsigned char c)
{
    return c < 32 || c == 127;
}

const char* skip_space(const char* p)
{
    while (is_space(static_cast<unsigned char>(*p)))
        ++p;
    return p;
}

enum LineResult { LINE_SKIPPED, LINE_ENTRY, LINE_MALFORMED };

LineResult parse_line(const char* line, ustring& key, ustring& value)
{
    const char* p = skip_space(line);
    const char* key_begin = p;
    while (is_key_char(static_cast<unsigned char>(*p)))
        ++p;
    const char* key_end = p;

    // Checked before any blank is skipped: "key#x" is ignored, "key #x" is not.
    if (*p == '\0' || *p == '#')
        return LINE_SKIPPED;
    p = skip_space(p);
    if (*p != '=')
        return LINE_MALFORMED;
    p = skip_space(p + 1);
    if (*p == '\0')
        return LINE_MALFORMED;

    const char* value_begin;
    const char* value_end;
    if (*p == '"' || *p == '\'') {
        const char quote = *p++;
        value_begin = p;
        // The line's terminating zero is a control byte too: an unclosed quote fails here.
        while (*p != quote) {
            if (is_control(static_cast<unsigned char>(*p)))
                return LINE_MALFORMED;
            ++p;
        }
        value_end = p++;
    } else {
        value_begin = p;
        while (*p != ' ' && !is_control(static_cast<unsigned char>(*p)))
            ++p;
        value_end = p;
    }

    p = skip_space(p);
    if (*p != '\0' && *p != '#')
        return LINE_MALFORMED;

    key.assign(key_begin, static_cast<size_t>(key_end - key_begin));
    value.assign(value_begin, static_cast<size_t>(value_end - value_begin));
    return LINE_ENTRY;
}

}  // namespace

int Config::read(const ustring& path, ustring* refused)
{
    if (refused != nullptr)
        refused->clear();
    if (path.empty())
        return -1;
    // O_NONBLOCK: a FIFO opens at once instead of waiting for a writer; a
    // regular file reads as without it.
    const int fd = open(path.c_str_utf8(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0)
        return -1;
    std::string text;
    struct stat st;
    bool read_all = false;
    ustring why;
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode))
        why = "not a regular file";
    else if ((read_all = read_up_to(fd, kMaxFileSize + 1, text)) && text.size() > kMaxFileSize)
        why = "larger than " + std::to_string(kMaxFileSize) + " bytes";
    close(fd);
    // A read error counts as a file that cannot be opened.
    if (!why.empty() || !read_all) {
        if (refused != nullptr)
            *refused = why;
        return -1;
    }

    ustring key, value;
    for (size_t start = 0; start < text.size();) {
        const std::string line = next_line(text, start);
        LineResult r = parse_line(line.c_str(), key, value);
        if (r == LINE_MALFORMED) {
            // One bad line makes the whole file unusable, including what was there before.
            entries.clear();
            return -1;
        }
        if (r == LINE_ENTRY)
            entries[key] = value;
    }
    return 0;
}

int Config::get_int(const ustring& key)
{
    const ustring& text = entries[key];
    std::istringstream in(std::string(text.c_str_utf8(), text.length()));
    int n = 0;
    in >> n;
    return n;
}
