// One process's share of a log that several processes write at once, as the
// launcher and a refused second launcher do. Prints its size count and the
// inode of the file it writes at the end.
//   log_writer LOG_PATH ROTATE_COUNT TAG LINES
#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "log.h"

int main(int argc, char** argv)
{
    if (argc != 5 || Logger::Initialize(Logger::LOG_TYPE_FILE, argv[1], "", atoi(argv[2])) != 0)
        return 2;
    const std::string payload(80, 'p');
    for (int i = 0, n = atoi(argv[4]); i < n; ++i)
        Logger::LogMsg(Logger::LOG_WARNING, "c", "[WARNING] %s(%d): %s\n", argv[3], i, payload.c_str());
    struct stat st;
    if (Logger::log_fp == nullptr || fstat(fileno(Logger::log_fp), &st) != 0)
        return 1;
    printf("%d %llu\n", Logger::log_size, static_cast<unsigned long long>(st.st_ino));
    return 0;
}
