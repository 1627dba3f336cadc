// Named memory blocks, read and written as typed values inside their bounds.
#include "memory/block_registry.h"
#include "memory/memory.h"

#include <quarlo/memory.h>
#include <quarlo/typed_memory.h>

#include <cstring>

using namespace quarlo;

namespace {

BlockRegistry registry;

/// A block of that size in the first free entry for which there is memory.
Block* addBlock(const BlockName& name, int32_t size) {
    for (Block& block : registry.blocks()) {
        if (block.data != nullptr) {
            continue;
        }
        void* const data = allocateCleared(G_SPACE_TYPED_MEMORY, size);
        if (data != nullptr) {
            block = {name, 0, static_cast<uint32_t>(size), static_cast<unsigned char*>(data)};
            registry.enter(block);
            return &block;
        }
    }
    return nullptr;
}

/// Where a value of `width` bytes lies; null unless the block has all of it.
unsigned char* locate(const void* data, uint32_t offset, uint64_t width) {
    const Block* const block = registry.findByAddress(data);
    return block != nullptr && offset + width <= block->size ? block->data + offset : nullptr;
}

template <typename Value>
Value read(const void* data, uint32_t offset) {
    Value value{};
    if (const unsigned char* const place = locate(data, offset, sizeof value)) {
        std::memcpy(&value, place, sizeof value);
    }
    return value;
}

template <typename Value>
void write(const void* data, uint32_t offset, Value value) {
    if (unsigned char* const place = locate(data, offset, sizeof value)) {
        std::memcpy(place, &value, sizeof value);
    }
}

/// Bytes of a string and its NUL. The string need not be aligned: it may lie in a block itself.
uint64_t bytesOf(const char16_t* text) {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text);
    uint64_t size = 0;
    char16_t unit = 0;
    do {
        std::memcpy(&unit, bytes + size, sizeof unit);
        size += sizeof unit;
    } while (unit != 0);
    return size;
}

} // namespace

void* GMGMemCreate(const char16_t* name, int32_t size) {
    BlockName unitsOfName;
    if (size <= 0 || !readName(unitsOfName, name)) {
        return nullptr;
    }
    const Block* block = registry.findByName(unitsOfName);
    if (block == nullptr) {
        block = addBlock(unitsOfName, size);
    }
    return block != nullptr && block->size == static_cast<uint32_t>(size) ? block->data : nullptr;
}

void* GMGMemSelect(const char16_t* name) {
    BlockName unitsOfName;
    if (!readName(unitsOfName, name)) {
        return nullptr;
    }
    const Block* const block = registry.findByName(unitsOfName);
    return block != nullptr ? block->data : nullptr;
}

void GMGMemDelete(void* block) {
    if (Block* const entry = registry.findByAddress(block)) {
        GMMemoryFree(G_SPACE_TYPED_MEMORY, 0, block);
        registry.remove(*entry);
    }
}

int32_t GMGMemGetChar(const void* block, uint32_t offset) {
    return read<int8_t>(block, offset);
}

void GMGMemSetChar(void* block, uint32_t offset, int8_t value) {
    write(block, offset, value);
}

int32_t GMGMemGetShort(const void* block, uint32_t offset) {
    return read<int16_t>(block, offset);
}

void GMGMemSetShort(void* block, uint32_t offset, int16_t value) {
    write(block, offset, value);
}

int32_t GMGMemGetLong(const void* block, uint32_t offset) {
    return read<int32_t>(block, offset);
}

void GMGMemSetLong(void* block, uint32_t offset, int32_t value) {
    write(block, offset, value);
}

double GMGMemGetDouble(const void* block, uint32_t offset) {
    return read<double>(block, offset);
}

void GMGMemSetDouble(void* block, uint32_t offset, double value) {
    write(block, offset, value);
}

char16_t* GMGMemGetString(void* block, uint32_t offset) {
    return reinterpret_cast<char16_t*>(locate(block, offset, 0));
}

void GMGMemSetString(void* block, uint32_t offset, const char16_t* text) {
    const uint64_t size = bytesOf(text);
    if (unsigned char* const place = locate(block, offset, size)) {
        std::memmove(place, text, static_cast<size_t>(size));
    }
}
