#include "platform/vector_registers.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#endif

namespace bornika {

#if defined(__x86_64__) && defined(__GNUC__)

namespace {

__attribute__((target("avx"))) void Liberer() {
    _mm256_zeroupper();
}

}  // namespace

void LibererRegistresVectoriels() {
    if (__builtin_cpu_supports("avx")) Liberer();
}

#else

void LibererRegistresVectoriels() {}

#endif

}  // namespace bornika
