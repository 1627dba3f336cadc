#include "raster/kernel/long_row.h"

#include "raster/kernel/mode.h"

#include <algorithm>
#include <cstring>

// One copy of a function for every processor and one for those with 32-byte vectors, chosen when
// the library is loaded. It halves the time of
// full-screen fills.
#if defined(__x86_64__) && defined(__gnu_linux__) && !defined(__SANITIZE_THREAD__)
#define QUARLO_WIDEST __attribute__((target_clones("default", "avx2")))
#else
#define QUARLO_WIDEST
#endif

namespace quarlo::kernel {
namespace {

template <typename Mode>
[[gnu::always_inline]] inline void combineTiles(uint8_t* at, size_t count, const LongTile& tile) {
    const LongTile colors = tile;
    for (; count > 0; --count, at += LongTile::kBytes) {
        for (size_t byte = 0; byte < LongTile::kBytes; ++byte) {
            at[byte] = Mode::combine(at[byte], colors.bytes[byte]);
        }
    }
}

// Plain functions, since no compiler but one clones templates.

QUARLO_WIDEST void andTiles(uint8_t* at, size_t count, const LongTile& tile) {
    combineTiles<And>(at, count, tile);
}

QUARLO_WIDEST void orTiles(uint8_t* at, size_t count, const LongTile& tile) {
    combineTiles<Or>(at, count, tile);
}

QUARLO_WIDEST void xorTiles(uint8_t* at, size_t count, const LongTile& tile) {
    combineTiles<Xor>(at, count, tile);
}

} // namespace

void copyAlong(uint8_t* at, size_t length, size_t part) {
    for (size_t done = part; done < length; done += part) {
        std::memcpy(at + done, at, std::min(part, length - done));
    }
}

const CombineLong kCombineLong[4] = {nullptr, andTiles, orTiles, xorTiles};

} // namespace quarlo::kernel
