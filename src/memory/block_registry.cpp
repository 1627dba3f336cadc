#include "memory/block_registry.h"

#include <algorithm>

namespace quarlo {

bool readName(BlockName& out, const char16_t* name) {
    out = {};
    for (char16_t& unit : out) {
        if (*name == 0) {
            break;
        }
        unit = *name++;
    }
    return *name == 0 && out[0] != 0;
}

Block* BlockRegistry::findByName(const BlockName& name) {
    auto* const found = std::find_if(blocks_.begin(), blocks_.end(),
                                     [&](const Block& block) { return block.name == name; });
    return found != blocks_.end() ? found : nullptr;
}

void BlockRegistry::enter(Block& block) {
    uint16_t& first = buckets_[bucketOf(block.data)];
    block.next = first;
    first = linkTo(block);
}

void BlockRegistry::remove(Block& block) {
    uint16_t* link = &buckets_[bucketOf(block.data)];
    while (*link != linkTo(block)) {
        link = &blocks_[*link - 1].next;
    }
    *link = block.next;
    block = {};
}

} // namespace quarlo
