/**
 * @file search.h
 * Binary search.
 */
#ifndef QUARLO_SEARCH_H
#define QUARLO_SEARCH_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Compares a key with an element. @return negative, 0 or positive: before, equal or after */
typedef int (*GUBCompare)(const void* key, const void* element);

/**
 * Forwards to service 78, which the platform must have: finds an element of a sorted array.
 *
 * @param key handed to `compare` first
 * @param elements the array
 * @param count its elements
 * @param size bytes of one element
 * @param compare the order that the array is sorted by
 * @return an element equal to the key, of several any; null when there is none, or when an argument
 *     is null
 */
QUARLO_API void* GUBSearch(const void* key, const void* elements, uint32_t count, uint32_t size,
                           GUBCompare compare);

QUARLO_END

#endif
