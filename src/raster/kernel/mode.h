// The drawing modes: how a colour is combined with what is there, bit by bit.
#pragma once

namespace quarlo::kernel {

/// `kReads` is false where the old value does not matter, so that it need not be loaded.
struct Copy {
    static constexpr bool kReads = false;
    template <typename Word>
    static constexpr Word combine(Word, Word color) {
        return color;
    }
};

struct And {
    static constexpr bool kReads = true;
    template <typename Word>
    static constexpr Word combine(Word old, Word color) {
        return static_cast<Word>(old & color);
    }
};

struct Or {
    static constexpr bool kReads = true;
    template <typename Word>
    static constexpr Word combine(Word old, Word color) {
        return static_cast<Word>(old | color);
    }
};

struct Xor {
    static constexpr bool kReads = true;
    template <typename Word>
    static constexpr Word combine(Word old, Word color) {
        return static_cast<Word>(old ^ color);
    }
};

} // namespace quarlo::kernel
