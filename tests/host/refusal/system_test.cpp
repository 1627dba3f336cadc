// Time, messages, memory, modules, programs and search.
#include "refusing.h"

#include <gtest/gtest.h>

namespace {

using namespace gpi::test;

TEST(TimeRefuses, RecordsThatThereAreNot) {
    EXPECT_EQ(refuser<GPISetSystemTime>(27)(nullptr), 0);
    EXPECT_LT(refuser<GPIGetSystemTime>(28)(nullptr), 0);
    EXPECT_EQ(refuser<GPIBrokenDownTime>(77)(nullptr, 0), nullptr);
    EXPECT_NE(service<GPITime>(76)(nullptr), 0U); // allowed
}

TEST(MessagesRefuse, ARecordThatThereIsNot) {
    EXPECT_EQ(refuser<GPINextMessage>(124)(nullptr), 0);
}

constexpr int32_t kSpace = 4711;

TEST(MemoryRefuses, SizesThatAreNone) {
    const auto alloc = refuser<GPIMemoryAlloc>(GPI_SERVICE_MEMORY_ALLOC);
    const auto realloc = refuser<GPIMemoryRealloc>(GPI_SERVICE_MEMORY_REALLOC);
    void* const block = alloc(kSpace, 0, 8);
    for (const int32_t size : {0, -1, INT32_MIN}) {
        EXPECT_EQ(alloc(kSpace, 0, size), nullptr) << size;
        EXPECT_EQ(realloc(kSpace, 0, nullptr, size), nullptr) << size;
        EXPECT_EQ(realloc(kSpace, 0, block, size), nullptr) << size;
    }
    EXPECT_EQ(service<GPIMemoryFree>(42)(kSpace, 0, block), 1); // still there
}

TEST(MemoryRefuses, BlocksThatThereAreNot) {
    char foreign[16];
    const auto free = refuser<GPIMemoryFree>(GPI_SERVICE_MEMORY_FREE);
    const auto realloc = refuser<GPIMemoryRealloc>(GPI_SERVICE_MEMORY_REALLOC);
    void* const block = service<GPIMemoryAlloc>(41)(kSpace, 0, 8);
    EXPECT_EQ(free(kSpace, 0, foreign), 0);
    EXPECT_EQ(free(kSpace + 1, 0, block), 0);
    EXPECT_EQ(free(kSpace, 0, static_cast<char*>(block) + 1), 0);
    EXPECT_EQ(realloc(kSpace, 0, foreign, 8), nullptr);
    EXPECT_EQ(free(kSpace, 0, block), 1);
    EXPECT_EQ(free(kSpace, 0, block), 0);
}

TEST(MemoryRefuses, SpacesThatThereAreNot) {
    constexpr int32_t kNoSpace = 4713;
    EXPECT_EQ(refuser<GPIDeleteMemorySpace>(40)(kNoSpace, 0), 0);
    EXPECT_EQ(refuser<GPIBeginResetMemorySpace>(80)(kNoSpace, 0), 0);
    EXPECT_EQ(refuser<GPIEndResetMemorySpace>(81)(kNoSpace, 0), 0);
    EXPECT_EQ(refuser<GPICancelResetMemorySpace>(82)(kNoSpace, 0), 0);
}

TEST(MemoryRefuses, LimitsBelowWhatIsInUseAndModesThatThereAreNot) {
    void* const block = service<GPIMemoryAlloc>(41)(kSpace, 0, 1000);
    EXPECT_EQ(refuser<GPISetMemorySpace>(39)(kSpace, 10), 0);
    EXPECT_EQ(service<GPIMemoryFree>(42)(kSpace, 0, block), 1);
    for (const int32_t mode : {INT32_MIN, -1, 2, INT32_MAX}) {
        EXPECT_EQ(refuser<GPISetMemoryMode>(57)(mode), 0) << mode;
    }
}

TEST(ModulesRefuse, WhatThereIsNot) {
    const TemporaryFolder folder;
    const StartedPlatform platform{{"QUARLO_MODULES", folder.path()}};
    const auto load = refuser<GPILoadModule>(GPI_SERVICE_LOAD_MODULE);
    EXPECT_EQ(load(nullptr, 0), nullptr);
    EXPECT_EQ(load(u"", 0), nullptr);
    EXPECT_EQ(load(u"none", 0), nullptr);
    EXPECT_EQ(load(u"none", 2), nullptr);
    EXPECT_EQ(refuser<GPILoadModuleEx>(128)(nullptr), nullptr);
    EXPECT_EQ(refuser<GPILoadModuleEx>(128)(u"none"), nullptr);
    char foreign;
    for (GModule* const module :
         {static_cast<GModule*>(nullptr), reinterpret_cast<GModule*>(&foreign)}) {
        EXPECT_EQ(refuser<GPIFreeModule>(46)(module), 0);
        EXPECT_EQ(refuser<GPIGetModuleFunction>(47)(module, u"main"), nullptr);
        EXPECT_EQ(refuser<GPIGetModuleFunction>(47)(module, nullptr), nullptr);
    }
}

TEST(ProgramsRefuse, WhatThereIsNot) {
    const TemporaryFolder folder;
    const StartedPlatform platform{{"QUARLO_PROGRAMS", folder.path()}};
    const auto execute = refuser<GPIExecute>(GPI_SERVICE_EXECUTE);
    int32_t result = 7;
    EXPECT_EQ(execute(nullptr, nullptr, nullptr, 0, &result), G_IO_ARGUMENT);
    EXPECT_EQ(execute(u"none", nullptr, nullptr, 4, &result), G_IO_ARGUMENT);
    EXPECT_EQ(execute(u"none", nullptr, nullptr, 0, &result), G_IO_NOT_FOUND);
    EXPECT_EQ(result, 7);
    for (const int32_t number : {INT32_MIN, -1, 1, INT32_MAX}) {
        EXPECT_EQ(refuser<GPIExit>(118)(number), G_IO_NOT_FOUND) << number;
    }
}

int neverCalled(const void*, const void*) {
    ADD_FAILURE() << "compared";
    return 0;
}

TEST(SearchRefuses, WhatThereIsNot) {
    const auto search = refuser<GPISearch>(GPI_SERVICE_SEARCH);
    const int32_t numbers[] = {1, 2, 3};
    EXPECT_EQ(search(nullptr, numbers, 3, 4, neverCalled), nullptr);
    EXPECT_EQ(search(numbers, nullptr, 3, 4, neverCalled), nullptr);
    EXPECT_EQ(search(numbers, numbers, 0, 4, neverCalled), nullptr);
    EXPECT_EQ(search(numbers, numbers, 3, 0, neverCalled), nullptr);
    EXPECT_EQ(search(numbers, numbers, 3, 4, nullptr), nullptr);
}

} // namespace
