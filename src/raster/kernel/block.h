// Sixteen bytes at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quarlo::kernel {

/// 16 bytes that the compiler keeps in one register where the processor has such.
using Block = uint8_t __attribute__((vector_size(16)));

/// The same of 8 bytes.
using HalfBlock = uint8_t __attribute__((vector_size(8)));

inline constexpr size_t kBlock = sizeof(Block);

template <typename Word>
inline Word loadWord(const uint8_t* at) {
    Word word;
    std::memcpy(&word, at, sizeof word);
    return word;
}

template <typename Word>
inline void storeWord(uint8_t* at, Word word) {
    std::memcpy(at, &word, sizeof word);
}

inline Block loadBlock(const uint8_t* at) {
    return loadWord<Block>(at);
}

inline void storeBlock(uint8_t* at, Block block) {
    storeWord(at, block);
}

/// Combines a word or a block with the bytes that are there.
template <typename Mode, typename Word>
inline void combineInto(uint8_t* at, Word color) {
    storeWord(at, Mode::combine(Mode::kReads ? loadWord<Word>(at) : Word{}, color));
}

} // namespace quarlo::kernel
