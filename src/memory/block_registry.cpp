#include "memory/block_registry.h"

#include <algorithm>

namespace quarlo {

bool readName(BlockName& out, const char16_t* name) {
    out = {};
    for (char16_t& unit : out) {
        unit = *name++;
        if (unit == 0) {
            return out[0] != 0;
        }
    }
    return false;
}

Block* BlockRegistry::findByName(const BlockName& name) {
    auto* const found = std::find_if(blocks_.begin(), blocks_.end(),
                                     [&](const Block& block) { return block.name == name; });
    return found != blocks_.end() ? found : nullptr;
}

void BlockRegistry::enter(Block& block) {
    Block*& first = buckets_[bucketOf(block.data)];
    block.next = first;
    first = &block;
}

void BlockRegistry::remove(Block& block) {
    Block** link = &buckets_[bucketOf(block.data)];
    while (*link != &block) {
        link = &(*link)->next;
    }
    *link = block.next;
    block = {};
}

} // namespace quarlo
