#include "every_call/calls.h"

namespace quarlo::test {

namespace {

/// A function of a typed block, called with the last one that was made.
template <typename Result, typename Block, typename... Args>
ProgramCall onBlock(const char* name, Result (*function)(Block*, Args...)) {
    return own(name, [=](Panel& panel) {
        const std::tuple<Block*, Args...> arguments{panel.typedBlock(),
                                                    argumentOf<Args>(panel, 8)...};
        std::apply(function, arguments);
    });
}

} // namespace

ProgramCalls memoryCalls() {
    return {
        with("GMSetMemorySpace", GMSetMemorySpace),
        with("GMDeleteMemorySpace", GMDeleteMemorySpace),
        own("GMMemoryAlloc", [](Panel& panel) { panel.allocate(panel.number<int32_t>(100)); }),
        own("GMMemoryRealloc", [](Panel& panel) { panel.reallocate(panel.number<int32_t>(200)); }),
        own("GMMemoryFree", [](Panel& panel) { panel.free(); }),
        with("GMSetMemoryMode", GMSetMemoryMode, {0}),
        with("GMBeginResetMemorySpace", GMBeginResetMemorySpace),
        with("GMEndResetMemorySpace", GMEndResetMemorySpace),
        with("GMCancelResetMemorySpace", GMCancelResetMemorySpace),
        own("GMGMemCreate",
            [](Panel& panel) {
                const char16_t name[] = {panel.number<char16_t>(u'A'), u'\0'};
                panel.createTypedBlock(name, panel.number<int32_t>(64));
            }),
        own("GMGMemSelect",
            [](Panel& panel) {
                const char16_t name[] = {panel.number<char16_t>(u'A'), u'\0'};
                GMGMemSelect(name);
            }),
        onBlock("GMGMemGetChar", GMGMemGetChar),
        onBlock("GMGMemSetChar", GMGMemSetChar),
        onBlock("GMGMemGetShort", GMGMemGetShort),
        onBlock("GMGMemSetShort", GMGMemSetShort),
        onBlock("GMGMemGetLong", GMGMemGetLong),
        onBlock("GMGMemSetLong", GMGMemSetLong),
        onBlock("GMGMemGetDouble", GMGMemGetDouble),
        onBlock("GMGMemSetDouble", GMGMemSetDouble),
        onBlock("GMGMemGetString", GMGMemGetString),
        onBlock("GMGMemSetString", GMGMemSetString),
        own("GMGMemDelete", [](Panel& panel) { panel.deleteTypedBlock(); }),
    };
}

} // namespace quarlo::test
