// What stands between the numerical-control services and a machine.
#pragma once

#include "nc/program.h"

#include <quarlo/nc_data.h>

#include <cstdint>
#include <memory>
#include <string>

namespace gpi::nc {

/// What a call gives that succeeded; a failure is one of G_NC_UNKNOWN and so on.
inline constexpr int32_t kDone = 1;

/// Where a value stands: an area of nc_data.h, and the number and index that it takes.
struct ValueAddress {
    int32_t area;
    int32_t number;
    int32_t index;
};

/// How far a controller's addresses go.
struct Extent {
    int32_t axes;
    int32_t spindles;
    int32_t tools;     ///< numbered from 1
    double mostFeed;   ///< of a jog, millimetres a minute
    bool macros;       ///< whether it shows its macro variables
    double mostTravel; ///< of a jog step, millimetres
};

/// A machine's control.
///
/// Every call returns at once, or soon; calls may come from any thread. Addresses and values have
/// been held against address.h and the extent: what a controller still refuses it refuses for what
/// it is doing.
class Controller {
  public:
    Controller() = default;
    virtual ~Controller() = default;
    Controller(const Controller&) = delete;
    Controller& operator=(const Controller&) = delete;

    virtual Extent extent() const = 0;

    virtual int32_t setValue(const ValueAddress& address, double value) = 0;
    virtual int32_t getValue(const ValueAddress& address, double& value) = 0;

    /// Chooses the program to run.
    virtual int32_t choose(std::shared_ptr<const Program> program) = 0;
    /// Runs one block.
    virtual int32_t runBlock(const std::string& block) = 0;
    /// @param string G_NC_PROGRAM_NAME and so on @param text receives UTF-8
    virtual int32_t getText(int32_t string, int32_t number, std::string& text) = 0;

    virtual int32_t setSystem(int32_t number, int32_t value) = 0;
    virtual int32_t getSystem(int32_t number, int32_t& value) = 0;
};

} // namespace gpi::nc
