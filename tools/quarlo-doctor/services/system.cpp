// Events and time, memory spaces, modules and programs.
#include "services/service.h"

namespace doctor {
namespace {

using enum Need;
using enum Asked;

constexpr Service kEvents[] = {
    {26, "START_EVENT_SIGNAL", "GPIStartEventSignal", Optional, AtStart,
     "GEInitEvent(), after 29: makes the queue's signal", "GEInitEvent() goes on without it"},
    {27, "SET_SYSTEM_TIME", "GPISetSystemTime", Expected, AtStart,
     "GESetSystemTime(): sets the clock", "GESetSystemTime() gives 0"},
    {28, "GET_SYSTEM_TIME", "GPIGetSystemTime", Optional, AtStart,
     "GEGetSystemTime(), timers: reads the clock",
     "GEGetSystemTime() and GESetTimer() give 0; GECheckTimer() does nothing"},
    {29, "START_EVENT_LOCK", "GPIStartEventLock", Optional, AtStart,
     "GEInitEvent(): makes the queue's lock", "GEInitEvent() goes on without it"},
    {31, "SIGNAL_EVENT", "GPISignalEvent", Optional, AtStart, "GESetEvent(): an event was posted",
     "posting does not end a wait in 33"},
    {32, "EVENT_TAKEN", "GPIEventTaken", Optional, AtStart,
     "GEGetEvent(), GEClearTimerEvent(): an event was taken or removed", "nothing"},
    {33, "WAIT_EVENT", "GPIWaitEvent", Optional, AtStart, "GEGetEvent(): waits for a signal",
     "GEGetEvent() does not wait"},
    {34, "LOCK_EVENTS", "GPILockEvents", Optional, AtStart,
     "GESetEvent(), GEGetEvent(), GEClearTargetEvent(), GEClearWindowsEvent(): locks the queue",
     "the queue is for one thread only"},
    {35, "UNLOCK_EVENTS", "GPIUnlockEvents", Optional, AtStart, "undoes one 34",
     "with 34, the first thread that uses the queue keeps it locked"},
    {76, "TIME", "GPITime", Expected, AtStart, "GETime(): the time of day", "GETime() gives 0"},
    {77, "BROKEN_DOWN_TIME", "GPIBrokenDownTime", Expected, AtStart,
     "GEGmTime(): breaks a time of day down", "GEGmTime() gives null"},
    {124, "NEXT_MESSAGE", "GPINextMessage", Optional, AtStart,
     "GEClearWindowsEvent(): the thread's next message",
     "GEClearWindowsEvent() drops pending events and nothing else"},
};

constexpr Service kMemory[] = {
    {39, "SET_MEMORY_SPACE", "GPISetMemorySpace", Optional, Late,
     "GMSetMemorySpace(): opens a space, or sets its limit", "GMSetMemorySpace() gives 0"},
    {40, "DELETE_MEMORY_SPACE", "GPIDeleteMemorySpace", Optional, Late,
     "GMDeleteMemorySpace(): closes a space", "GMDeleteMemorySpace() gives 0"},
    {41, "MEMORY_ALLOC", "GPIMemoryAlloc", Needed, Late,
     "GMMemoryAlloc(), and all memory of the library",
     "GMMemoryAlloc(), GDOpenDrawHandle(), GDCreateVram(), GDCreateVVram() and GMGMemCreate() give "
     "null; polygons, pies, wide lines and outlines, and captions are not drawn"},
    {42, "MEMORY_FREE", "GPIMemoryFree", Needed, Late, "GMMemoryFree(), likewise",
     "GMMemoryFree() gives 0; nothing is given back, so memory runs out"},
    {57, "SET_MEMORY_MODE", "GPISetMemoryMode", Optional, Late,
     "GMSetMemoryMode(): how unwritten bytes are treated", "GMSetMemoryMode() gives 0"},
    {66, "MEMORY_REALLOC", "GPIMemoryRealloc", Optional, Late,
     "GMMemoryRealloc(), which asks for it first", "GMMemoryRealloc() gives null"},
    {80, "BEGIN_RESET_MEMORY_SPACE", "GPIBeginResetMemorySpace", Optional, Late,
     "GMBeginResetMemorySpace(): begins a reset of a space", "GMBeginResetMemorySpace() gives 0"},
    {81, "END_RESET_MEMORY_SPACE", "GPIEndResetMemorySpace", Optional, Late,
     "GMEndResetMemorySpace(): ends a reset, freeing the space's blocks",
     "GMEndResetMemorySpace() gives 0"},
    {82, "CANCEL_RESET_MEMORY_SPACE", "GPICancelResetMemorySpace", Optional, Late,
     "GMCancelResetMemorySpace(): abandons a reset", "GMCancelResetMemorySpace() gives 0"},
};

constexpr Service kModules[] = {
    {45, "LOAD_MODULE", "GPILoadModule", Optional, Late, "GDFCLoadModule(): loads a module",
     "GDFCLoadModule() gives null"},
    {46, "FREE_MODULE", "GPIFreeModule", Optional, Late, "GDFCFreeModule(): frees a module",
     "GDFCFreeModule() gives 0"},
    {47, "GET_MODULE_FUNCTION", "GPIGetModuleFunction", Optional, Late,
     "GDFCGetModuleFuncAddress(): finds a function of a module",
     "GDFCGetModuleFuncAddress() gives null"},
    {78, "SEARCH", "GPISearch", Expected, AtStart,
     "GUBSearch(): finds an element of a sorted array", "GUBSearch() gives null"},
    {117, "EXECUTE", "GPIExecute", Optional, AtStart, "GAppExecute(): starts a program",
     "GAppExecute() gives 0"},
    {118, "EXIT", "GPIExit", Optional, AtStart, "GAppExit(): asks a program to end",
     "GAppExit() gives 0"},
    {128, "LOAD_MODULE_EX", "GPILoadModuleEx", Optional, Late, "GDFCLoadModuleEx(): loads a module",
     "GDFCLoadModuleEx() gives null"},
};

} // namespace

const Group kEventsAndTime{"Events and time", kEvents};
const Group kMemorySpaces{"Memory spaces", kMemory};
const Group kModulesAndPrograms{"Modules, programs, search", kModules};

} // namespace doctor
