// Short random names for temporary files: an RC4 keystream keyed by the time
// of day at first use, eight characters at a time in a file-name-safe
// 64-character alphabet. Names only: nothing is created or checked on disk.
#ifndef DW_LIB_LIBTMPNAME_TMP_NAME_GEN_H
#define DW_LIB_LIBTMPNAME_TMP_NAME_GEN_H

#include <pthread.h>

#include "ustring.h"

class TmpNameGen {
public:
    // The process-wide generator, keyed by the clock on the first call.
    static TmpNameGen* getInstance();

    TmpNameGen();
    // Keyed by the given text instead of the clock (zero-padded to 256
    // bytes), for a reproducible sequence of names.
    explicit TmpNameGen(const char* key);
    ~TmpNameGen();

    // Eight characters of "0-9a-zA-Z-_"; every call moves the permutation on.
    ustring getTmpName();
    // folder + "/" + getTmpName(); a folder ending in "/" gives a doubled "/".
    ustring getTmpPath(const ustring& folder);

    // "<seconds>-<microseconds>" of the time of day, at most length bytes
    // with the terminator.
    static void get_key(unsigned char* buffer, unsigned long length);
    // RC4 key schedule over all 256 key bytes, padding included. A key whose
    // first byte is 0 is first filled from rand() after srand(time(NULL)).
    static void rc4_init(unsigned char* state, unsigned char* key);
    // count keystream bytes; the indices start at 0 on every call, only the
    // permutation carries over.
    static void rc4_randomize(unsigned char* state, unsigned char* out, int count);

private:
    unsigned char m_state[256];
    unsigned char m_key[256];
    unsigned char m_out[6];

    static pthread_mutex_t m_lock;
};

#endif
