// What there is to know of each service: docs/porting.md has the same, made from this.
#pragma once

#include <cstdint>
#include <span>

namespace doctor {

/// How much a platform owes a service.
enum class Need : uint8_t {
    Needed,   ///< nothing starts, nothing is drawn or nothing shows without it
    Expected, ///< a function calls it without asking whether it is there
    Optional
};

/// When the library asks for a service that it has not got.
enum class Asked : uint8_t {
    AtStart, ///< by GetGPIFunction() alone
    Late     ///< while it is missing, also on each call that wants it
};

struct Service {
    int32_t number;
    const char* name; ///< what follows GPI_SERVICE_
    const char* type; ///< of its function, in include/gpi
    Need need;
    Asked asked;
    const char* gives;
    const char* without; ///< what its absence costs
};

/// Services that belong together, as in gpi.h.
struct Group {
    const char* title;
    std::span<const Service> services;
};

extern const Group kStartAndStop;
extern const Group kDisplays;
extern const Group kFontsAndText;
extern const Group kTools;
extern const Group kEventsAndTime;
extern const Group kMemorySpaces;
extern const Group kModulesAndPrograms;
extern const Group kFiles;
extern const Group kDataServerFiles;
extern const Group kProfiles;
extern const Group kNetwork;
extern const Group kMachineData;

/// All 145 services.
std::span<const Group* const> groups();

} // namespace doctor
