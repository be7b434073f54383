// One process's share of a log that several processes write at once, as the
// launcher and a refused second launcher do.
//   log_writer LOG_PATH ROTATE_COUNT TAG LINES
#include <cstdlib>
#include <string>

#include "log.h"

int main(int argc, char** argv)
{
    if (argc != 5 || Logger::Initialize(Logger::LOG_TYPE_FILE, argv[1], "", atoi(argv[2])) != 0)
        return 2;
    const std::string payload(80, 'p');
    for (int i = 0, n = atoi(argv[4]); i < n; ++i)
        Logger::LogMsg(Logger::LOG_WARNING, "c", "[WARNING] %s_%d(0): %s\n", argv[3], i, payload.c_str());
    return Logger::log_fp != nullptr ? 0 : 1;
}
