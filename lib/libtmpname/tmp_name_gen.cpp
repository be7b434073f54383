#include "tmp_name_gen.h"

#include <sys/time.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <utility>

pthread_mutex_t TmpNameGen::m_lock = PTHREAD_MUTEX_INITIALIZER;

TmpNameGen* TmpNameGen::getInstance()
{
    static TmpNameGen tmp_name;
    return &tmp_name;
}

TmpNameGen::TmpNameGen() : m_state(), m_key(), m_out()
{
    get_key(m_key, sizeof(m_key));
    rc4_init(m_state, m_key);
}

TmpNameGen::TmpNameGen(const char* key) : m_state(), m_key(), m_out()
{
    if (key != nullptr) {
        snprintf(reinterpret_cast<char*>(m_key), sizeof(m_key), "%s", key);
    }
    rc4_init(m_state, m_key);
}

TmpNameGen::~TmpNameGen() {}

ustring TmpNameGen::getTmpName()
{
    static const char map[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
    char name[9];

    pthread_mutex_lock(&m_lock);
    rc4_randomize(m_state, m_out, 6);
    // Two groups of three bytes, four 6-bit values each, high bits first.
    for (int g = 0; g < 2; ++g) {
        const unsigned char* b = m_out + 3 * g;
        char* c = name + 4 * g;
        c[0] = map[b[0] >> 2];
        c[1] = map[((b[0] & 3) << 4) | (b[1] >> 4)];
        c[2] = map[((b[1] & 15) << 2) | (b[2] >> 6)];
        c[3] = map[b[2] & 63];
    }
    name[8] = '\0';
    pthread_mutex_unlock(&m_lock);
    return ustring(name);
}

ustring TmpNameGen::getTmpPath(const ustring& folder)
{
    return folder + "/" + getTmpName();
}

void TmpNameGen::get_key(unsigned char* buffer, unsigned long length)
{
    struct timeval now;
    gettimeofday(&now, nullptr);
    snprintf(reinterpret_cast<char*>(buffer), length, "%lu-%lu", static_cast<unsigned long>(now.tv_sec),
             static_cast<unsigned long>(now.tv_usec));
}

void TmpNameGen::rc4_init(unsigned char* state, unsigned char* key)
{
    for (int i = 0; i < 256; ++i) {
        state[i] = static_cast<unsigned char>(i);
    }
    if (key[0] == 0) {
        srand(static_cast<unsigned int>(time(nullptr)));
        for (int i = 0; i < 256; ++i) {
            key[i] = static_cast<unsigned char>(rand() & 0xFF);
        }
    }
    unsigned int j = 0;
    for (int i = 0; i < 256; ++i) {
        j = (j + state[i] + key[i]) & 0xFF;
        std::swap(state[i], state[j]);
    }
}

void TmpNameGen::rc4_randomize(unsigned char* state, unsigned char* out, int count)
{
    unsigned int j = 0;
    for (int k = 0; k < count; ++k) {
        unsigned int i = static_cast<unsigned int>(k + 1) & 0xFF;
        unsigned char t = state[i];
        j = (j + t) & 0xFF;
        std::swap(state[i], state[j]);
        out[k] = state[(state[i] + t) & 0xFF];
    }
}
