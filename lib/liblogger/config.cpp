#include "config.h"

#include <cstdio>
#include <sstream>
#include <string>

namespace {

// fgets buffer: a physical line longer than LINE_BUF - 1 bytes is parsed as
// several lines. Part of the file format, not a tuning knob.
const int kLineBufferSize = 8192;

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

int Config::read(const ustring& path)
{
    if (path.empty())
        return -1;
    FILE* fp = std::fopen(path.c_str_utf8(), "r");
    if (fp == nullptr)
        return -1;

    char line[kLineBufferSize];
    int result = 0;
    ustring key, value;
    while (std::fgets(line, sizeof line, fp) != nullptr) {
        LineResult r = parse_line(line, key, value);
        if (r == LINE_MALFORMED) {
            // One bad line makes the whole file unusable, including what was there before.
            entries.clear();
            result = -1;
            break;
        }
        if (r == LINE_ENTRY)
            entries[key] = value;
    }
    std::fclose(fp);
    return result;
}

int Config::get_int(const ustring& key)
{
    const ustring& text = entries[key];
    std::istringstream in(std::string(text.c_str_utf8(), text.length()));
    int n = 0;
    in >> n;
    return n;
}
