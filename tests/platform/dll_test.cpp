// quarlo.dll as programs load it, over the GPI.dll of the tests.
#include "raster/drawing.h"

#include <gtest/gtest.h>

#include <windows.h>
#include <winternl.h>

#include <cstring>
#include <fstream>
#include <string>
#include <thread>

using namespace quarlo::test;

namespace {

class Dll : public RasterTest {
  protected:
    ~Dll() override { FreeLibrary(module); }

    FARPROC at(int ordinal) const {
        // An ordinal is a pointer of 16 bits.
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        return GetProcAddress(module, reinterpret_cast<LPCSTR>(static_cast<uintptr_t>(ordinal)));
    }

    /// A function of the library in the shape of the one that the test itself is linked with.
    template <typename Function>
    Function* like(Function*, const char* name) const {
        return reinterpret_cast<Function*>(
            reinterpret_cast<void (*)()>(GetProcAddress(module, name)));
    }

    HMODULE module = LoadLibraryW(L"quarlo.dll");
};

TEST_F(Dll, HasEveryNameAtTheOrdinalOfItsLine) {
    ASSERT_NE(module, nullptr);
    std::ifstream list(QUARLO_EXPORTS);
    int ordinal = 0;
    for (std::string name; std::getline(list, name);) {
        const FARPROC function = at(++ordinal);
        EXPECT_NE(function, nullptr) << name;
        EXPECT_EQ(function, GetProcAddress(module, name.c_str())) << name;
    }
    EXPECT_EQ(ordinal, 264);
    EXPECT_EQ(at(ordinal + 1), nullptr);
}

TEST_F(Dll, DrawsOverThePlatformThatItFindsByOrdinal) {
    ASSERT_NE(module, nullptr);
    platform.unbind();
    ASSERT_EQ(like(&GDQueryGlobalError, "GDQueryGlobalError")(), 0U);
    like(&GetGPIFunction, "GetGPIFunction")();
    EXPECT_EQ(platform.requests.size(), 143U);
    GetGPIFunction(); // what the test's own copy draws with

    GuardedSurface surface(20, 10, 16);
    const auto setVram = like(&GDSetVram, "GDSetVram");
    GDrawHandle* const handle = like(&GDOpenDrawHandle, "GDOpenDrawHandle")(0, 0);
    ASSERT_NE(handle, nullptr);
    setVram(handle, G_MEMORY_SURFACE, surface.get());
    like(&GDSetPenColor, "GDSetPenColor")(handle, 0xFF8040);
    const GRect box{2, 1, 17, 8};
    like(&GDDrawOval, "GDDrawOval")(handle, &box);

    Drawing drawing(20, 10, 16);
    GDSetFillPattern(drawing, handle->fillPattern);
    GDSetPenColor(drawing, 0xFF8040);
    GDDrawOval(drawing, &box);
    EXPECT_EQ(std::memcmp(surface.memory().data(), drawing.surface().memory().data(),
                          surface.memory().size()),
              0);
    EXPECT_NE(pixelAt(*surface, 10, 1), 0U);
    like(&GDCloseDrawHandle, "GDCloseDrawHandle")(handle);
}

TEST_F(Dll, CountsFontsAndStopsEventsByOrdinal) {
    ASSERT_NE(module, nullptr);
    platform.answer(kFontCount, 12);
    EXPECT_EQ(like(&GFGetFontCount, "GFGetFontCount")(), 12);
    like(&GEQuitEvent, "GEQuitEvent")();
    EXPECT_EQ(platform.count(kShutdownEvents), 1U);
}

/// The loader's record of a module, as far as its flags.
struct LoadedModule {
    LIST_ENTRY inLoadOrder;
    LIST_ENTRY inMemoryOrder;
    LIST_ENTRY inInitializationOrder;
    void* base;
    void* entryPoint;
    ULONG size;
    UNICODE_STRING fullName;
    UNICODE_STRING name;
    ULONG flags;
};

constexpr ULONG kNoCallsForThreads = 0x00040000;

const LoadedModule* loaded(HMODULE module) {
    LIST_ENTRY* const list = &NtCurrentTeb()->ProcessEnvironmentBlock->Ldr->InMemoryOrderModuleList;
    for (LIST_ENTRY* entry = list->Flink; entry != list; entry = entry->Flink) {
        const auto* const record = CONTAINING_RECORD(entry, LoadedModule, inMemoryOrder);
        if (record->base == module) {
            return record;
        }
    }
    return nullptr;
}

TEST_F(Dll, HasNotificationsOfThreadsSwitchedOff) {
    ASSERT_NE(module, nullptr);
    const LoadedModule* const own = loaded(module);
    const LoadedModule* const other = loaded(GetModuleHandleW(L"GPI.dll"));
    ASSERT_NE(own, nullptr);
    ASSERT_NE(other, nullptr);
    EXPECT_NE(own->flags & kNoCallsForThreads, 0U);
    EXPECT_EQ(other->flags & kNoCallsForThreads, 0U) << "which never asked for it";
}

} // namespace
