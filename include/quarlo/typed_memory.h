/**
 * @file typed_memory.h
 * Named blocks of memory, found again by name and read and written as typed values, every access
 * checked against the block's size. Up to 256 exist at once, shared by the whole process without a
 * lock. Their data comes from memory space #G_SPACE_TYPED_MEMORY.
 *
 * A block goes by the address of its data, as GMGMemCreate() and GMGMemSelect() give it; an address
 * inside it is not the block's. Offsets are bytes from its begin and need no alignment. Values
 * stand in the machine's own byte order.
 *
 * A value that does not lie wholly inside its block, or a block that does not exist, reads as 0 and
 * is not written.
 */
#ifndef QUARLO_TYPED_MEMORY_H
#define QUARLO_TYPED_MEMORY_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Limits. */
enum {
    G_TYPED_MEMORY_COUNT = 256,   /**< most blocks at once */
    G_TYPED_MEMORY_NAME_SIZE = 16 /**< units of a block's name, its NUL included */
};

/**
 * Makes a block, filled with zeros, or finds one of the same name and size.
 *
 * @param name 1 to 15 units, case-sensitive
 * @param size bytes
 * @return the block; null for a name or size that is refused, a block of that name and another
 *     size, the 257th block, or when memory is short
 */
QUARLO_API void* GMGMemCreate(const char16_t* name, int32_t size);

/** Finds a block by name. @return the block, or null */
QUARLO_API void* GMGMemSelect(const char16_t* name);

/** Frees a block; nothing happens for an address that is none. */
QUARLO_API void GMGMemDelete(void* block);

/** Reads a signed 8-bit value. */
QUARLO_API int32_t GMGMemGetChar(const void* block, uint32_t offset);

/** Writes an 8-bit value. */
QUARLO_API void GMGMemSetChar(void* block, uint32_t offset, int8_t value);

/** Reads a signed 16-bit value. */
QUARLO_API int32_t GMGMemGetShort(const void* block, uint32_t offset);

/** Writes a 16-bit value. */
QUARLO_API void GMGMemSetShort(void* block, uint32_t offset, int16_t value);

/** Reads a 32-bit value. */
QUARLO_API int32_t GMGMemGetLong(const void* block, uint32_t offset);

/** Writes a 32-bit value. */
QUARLO_API void GMGMemSetLong(void* block, uint32_t offset, int32_t value);

/** Reads a floating-point value of 64 bits. */
QUARLO_API double GMGMemGetDouble(const void* block, uint32_t offset);

/** Writes a floating-point value of 64 bits. */
QUARLO_API void GMGMemSetDouble(void* block, uint32_t offset, double value);

/**
 * The address of a string in a block.
 *
 * @param offset up to the size of the block; whether the string ends inside it is not checked
 * @return the address, aligned only if the offset is; null where there is none
 */
QUARLO_API char16_t* GMGMemGetString(void* block, uint32_t offset);

/** Writes a string with its NUL, or nothing of it when it does not fit whole. */
QUARLO_API void GMGMemSetString(void* block, uint32_t offset, const char16_t* text);

QUARLO_END

#endif
