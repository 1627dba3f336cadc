// The drawing modes: how a colour is combined with what is there, bit by bit.
#pragma once

namespace quarlo::kernel {

/// `kNumber` is the mode's number in the interface. `kReads` is false where the old value does not
/// matter, so that it need not be loaded.
struct Copy {
    static constexpr int kNumber = 0;
    static constexpr bool kReads = false;
    template <typename Word>
    static constexpr Word combine(Word, Word color) {
        return color;
    }
};

struct And {
    static constexpr int kNumber = 1;
    static constexpr bool kReads = true;
    template <typename Word>
    static constexpr Word combine(Word old, Word color) {
        return static_cast<Word>(old & color);
    }
};

struct Or {
    static constexpr int kNumber = 2;
    static constexpr bool kReads = true;
    template <typename Word>
    static constexpr Word combine(Word old, Word color) {
        return static_cast<Word>(old | color);
    }
};

struct Xor {
    static constexpr int kNumber = 3;
    static constexpr bool kReads = true;
    template <typename Word>
    static constexpr Word combine(Word old, Word color) {
        return static_cast<Word>(old ^ color);
    }
};

} // namespace quarlo::kernel
