/**
 * @file memory.h
 * Memory spaces: all memory of the library and of its programs, handed out by the platform from
 * numbered spaces.
 *
 * Every function forwards its arguments to one service, bound on demand, and returns 0 or null when
 * the platform lacks it. Whether a space serves several threads at once is the platform's matter.
 */
#ifndef QUARLO_MEMORY_H
#define QUARLO_MEMORY_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Spaces that the library itself takes memory from. Programs are free to use any other. */
enum {
    G_SPACE_LIBRARY = 1,     /**< draw handles, surfaces and working memory */
    G_SPACE_TYPED_MEMORY = 8 /**< the data of typed memory blocks */
};

/** Bits of the flag word of GMMemoryAlloc() and GMMemoryRealloc(). The library passes 0. */
enum { G_MEMORY_ZERO = 1 /**< fresh bytes are handed out as zeros */ };

/** Bits of the flag word of GMDeleteMemorySpace(). */
enum { G_SPACE_FORCE = 1 /**< blocks still in use are freed with their space */ };

/** Modes of GMSetMemoryMode(). */
enum {
    G_MEMORY_PLAIN = 0,  /**< fresh and freed bytes are left as they are */
    G_MEMORY_CHECKED = 1 /**< fresh and freed bytes are overwritten, so that misuse shows */
};

/**
 * Forwards to service 39: opens a space, or changes the limit of an open one. A space that was
 * never opened opens without a limit when it is first used.
 *
 * @param space any number
 * @param limit bytes that the space may hand out in all; 0 for no limit
 * @return 1; 0 when the limit is below what is in use
 */
QUARLO_API int32_t GMSetMemorySpace(int32_t space, GWord limit);

/**
 * Forwards to service 40: closes a space.
 *
 * @param flags 0 or #G_SPACE_FORCE
 * @return 1; 0 when there is no such space, or when it has blocks in use and is not forced
 */
QUARLO_API int32_t GMDeleteMemorySpace(int32_t space, GWord flags);

/**
 * Forwards to service 41: allocates a block, aligned for any type.
 *
 * @param space number of the space
 * @param flags 0 or #G_MEMORY_ZERO
 * @param size bytes
 * @return the block; null when memory is short, the space's limit is reached, or the size is zero
 *     or less
 */
QUARLO_API void* GMMemoryAlloc(int32_t space, uint32_t flags, int32_t size);

/**
 * Forwards to service 66: changes the size of a block, which may move.
 *
 * @param space the space that the block came from
 * @param flags 0 or #G_MEMORY_ZERO, for the bytes that are new
 * @param block the block; null allocates one
 * @param size bytes
 * @return the block; null, with the old block left as it was, where GMMemoryAlloc() gives null
 */
QUARLO_API void* GMMemoryRealloc(int32_t space, uint32_t flags, void* block, int32_t size);

/**
 * Forwards to service 42: frees a block.
 *
 * @param space the space that the block came from
 * @param flags 0
 * @param block the block; null is allowed
 * @return 1; 0 when the space has no such block
 */
QUARLO_API int32_t GMMemoryFree(int32_t space, uint32_t flags, void* block);

/**
 * Forwards to service 57: sets how all spaces treat bytes that nobody has written.
 *
 * @param mode #G_MEMORY_PLAIN or #G_MEMORY_CHECKED
 * @return 1; 0 for any other mode
 */
QUARLO_API int32_t GMSetMemoryMode(int32_t mode);

/**
 * Forwards to service 80: begins a reset of a space. Blocks stay valid, and new ones can be
 * allocated, until the reset ends.
 *
 * @param flags 0
 * @return 1; 0 when there is no such space or its reset has begun already
 */
QUARLO_API int32_t GMBeginResetMemorySpace(int32_t space, GWord flags);

/**
 * Forwards to service 81: completes a reset: frees every block that the space held when the reset
 * began. Blocks allocated since then stay.
 *
 * @param flags 0
 * @return 1; 0 when no reset of that space has begun
 */
QUARLO_API int32_t GMEndResetMemorySpace(int32_t space, GWord flags);

/**
 * Forwards to service 82: abandons a reset; every block stays.
 *
 * @param flags 0
 * @return 1; 0 when no reset of that space has begun
 */
QUARLO_API int32_t GMCancelResetMemorySpace(int32_t space, GWord flags);

QUARLO_END

#endif
