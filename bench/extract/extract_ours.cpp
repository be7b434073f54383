// The measured program for our extractor: one Extract, as the service calls
// it. No receiver is connected to the bridge, and the logger keeps its
// start-up defaults (errors to standard error).
#include <cstdio>
#include <cstdlib>

#include "extractor.h"

int main(int argc, char** argv)
{
    if (argc != 3) {
        fprintf(stderr, "usage: extract_ours ARCHIVE DEST\n");
        return 2;
    }
    Extractor extractor;
    extractor.archive_path = argv[1];
    extractor.dest_path = argv[2];
    // EXTRACT_WRITERS=n forces the writer threads, to compare counts by hand.
    if (const char* writers = getenv("EXTRACT_WRITERS"))
        extractor.writers = atoi(writers);
    return extractor.Extract() == 0 ? 0 : 1;
}
