/**
 * @file keys.h
 * What the parameters of keyboard and pointer messages say: numbers of keys and bits of words.
 *
 * The number of a key names what stands on it, whatever is held beside it. A key that has a Latin
 * letter or a digit on it goes by that character, upper case: 'A' to 'Z', '0' to '9'; all others go
 * by the names below.
 */
#ifndef GPI_KEYS_H
#define GPI_KEYS_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Keys: `param1` of #G_MESSAGE_KEY_DOWN and #G_MESSAGE_KEY_UP. */
enum {
    GPI_KEY_CANCEL = 0x03,        /**< Ctrl+Break's own */
    GPI_KEY_BACKSPACE = 0x08,     /**< Backspace */
    GPI_KEY_TAB = 0x09,           /**< Tab */
    GPI_KEY_CLEAR = 0x0C,         /**< Clear: 5 of the keypad without Num Lock */
    GPI_KEY_ENTER = 0x0D,         /**< that of the keypad too, which is an extended key */
    GPI_KEY_SHIFT = 0x10,         /**< either Shift */
    GPI_KEY_CONTROL = 0x11,       /**< either Ctrl */
    GPI_KEY_ALT = 0x12,           /**< either Alt */
    GPI_KEY_PAUSE = 0x13,         /**< Pause */
    GPI_KEY_CAPS_LOCK = 0x14,     /**< Caps Lock */
    GPI_KEY_ESCAPE = 0x1B,        /**< Escape */
    GPI_KEY_SPACE = 0x20,         /**< the space bar */
    GPI_KEY_PAGE_UP = 0x21,       /**< Page Up */
    GPI_KEY_PAGE_DOWN = 0x22,     /**< Page Down */
    GPI_KEY_END = 0x23,           /**< End */
    GPI_KEY_HOME = 0x24,          /**< Home */
    GPI_KEY_LEFT = 0x25,          /**< cursor left */
    GPI_KEY_UP = 0x26,            /**< cursor up */
    GPI_KEY_RIGHT = 0x27,         /**< cursor right */
    GPI_KEY_DOWN = 0x28,          /**< cursor down */
    GPI_KEY_SELECT = 0x29,        /**< Select */
    GPI_KEY_EXECUTE = 0x2B,       /**< Execute */
    GPI_KEY_PRINT = 0x2C,         /**< Print Screen */
    GPI_KEY_INSERT = 0x2D,        /**< Insert */
    GPI_KEY_DELETE = 0x2E,        /**< Delete */
    GPI_KEY_HELP = 0x2F,          /**< Help */
    GPI_KEY_LEFT_SYSTEM = 0x5B,   /**< the system key on the left */
    GPI_KEY_RIGHT_SYSTEM = 0x5C,  /**< the system key on the right */
    GPI_KEY_MENU = 0x5D,          /**< Menu */
    GPI_KEY_PAD_0 = 0x60,         /**< the digits of the keypad are 0x60 to 0x69 */
    GPI_KEY_PAD_9 = 0x69,         /**< 9 of the keypad */
    GPI_KEY_PAD_MULTIPLY = 0x6A,  /**< * of the keypad */
    GPI_KEY_PAD_ADD = 0x6B,       /**< + of the keypad */
    GPI_KEY_PAD_SEPARATOR = 0x6C, /**< separator of the keypad */
    GPI_KEY_PAD_SUBTRACT = 0x6D,  /**< - of the keypad */
    GPI_KEY_PAD_DECIMAL = 0x6E,   /**< decimal point of the keypad */
    GPI_KEY_PAD_DIVIDE = 0x6F,    /**< / of the keypad */
    GPI_KEY_F1 = 0x70,            /**< the function keys are 0x70 to 0x87 */
    GPI_KEY_F24 = 0x87,           /**< F24 */
    GPI_KEY_NUM_LOCK = 0x90,      /**< Num Lock */
    GPI_KEY_SCROLL_LOCK = 0x91,   /**< Scroll Lock */
    /* Keys of other characters, named by what a keyboard of the United States has in their place.
     */
    GPI_KEY_SEMICOLON = 0xBA,     /**< semicolon */
    GPI_KEY_EQUALS = 0xBB,        /**< equals sign */
    GPI_KEY_COMMA = 0xBC,         /**< comma */
    GPI_KEY_MINUS = 0xBD,         /**< minus sign */
    GPI_KEY_PERIOD = 0xBE,        /**< period */
    GPI_KEY_SLASH = 0xBF,         /**< slash */
    GPI_KEY_GRAVE = 0xC0,         /**< grave accent */
    GPI_KEY_LEFT_BRACKET = 0xDB,  /**< left bracket */
    GPI_KEY_BACKSLASH = 0xDC,     /**< backslash */
    GPI_KEY_RIGHT_BRACKET = 0xDD, /**< right bracket */
    GPI_KEY_APOSTROPHE = 0xDE,    /**< apostrophe */
    GPI_KEY_102ND = 0xE2          /**< beside the left shift key, where there is one */
};

/** Bits of `param2` of key messages. A release has its bit 31 set as well. */
enum {
    GPI_KEY_COUNT = 0xFFFF,     /**< how many times the key went down: repeats are counted here */
    GPI_KEY_PLACE = 0xFF << 16, /**< the key's place on the keyboard, its USB usage number */
    GPI_KEY_EXTENDED = 1 << 24, /**< Ctrl or Alt on the right, Enter or / of the keypad */
    GPI_KEY_ALT_HELD = 1 << 29, /**< Alt is down as well */
    GPI_KEY_WAS_DOWN = 1 << 30  /**< it was down before: this is a repeat, or a release */
};

/** Bits of `param1` of pointer messages: what is held down. */
enum {
    GPI_POINTER_LEFT = 1,   /**< the left button */
    GPI_POINTER_RIGHT = 2,  /**< the right button */
    GPI_POINTER_SHIFT = 4,  /**< Shift */
    GPI_POINTER_CONTROL = 8 /**< Ctrl */
};

QUARLO_END

#endif
