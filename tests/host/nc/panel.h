// The numerical-control services as a panel has them.
#pragma once

#include "eventually.h"
#include "support/started_platform.h"

#include <gpi/forwards.h>
#include <gpi/nc.h>
#include <quarlo/nc_data.h>

#include <gtest/gtest.h>

#include <string>

namespace gpi::nc::test {

using gpi::test::service;

inline const auto setValue = service<GPISetNCValue>(GPI_SERVICE_SET_NC_VALUE);
inline const auto getValue = service<GPIGetNCValue>(GPI_SERVICE_GET_NC_VALUE);
inline const auto setString = service<GPISetNCString>(GPI_SERVICE_SET_NC_STRING);
inline const auto getString = service<GPIGetNCString>(GPI_SERVICE_GET_NC_STRING);
inline const auto isUnset = service<GPIIsNCValueUnset>(GPI_SERVICE_IS_NC_VALUE_UNSET);
inline const auto setSystem = service<GPISetNCSystemValue>(GPI_SERVICE_SET_NC_SYSTEM_VALUE);
inline const auto getSystem = service<GPIGetNCSystemValue>(GPI_SERVICE_GET_NC_SYSTEM_VALUE);

inline double value(int32_t area, int32_t number = 0, int32_t index = 0) {
    double found = 0.0;
    EXPECT_EQ(getValue(1, area, number, index, &found), 1);
    return found;
}

inline int32_t write(int32_t area, int32_t number, int32_t index, double what) {
    return setValue(1, area, number, index, &what);
}

inline int32_t system(int32_t number) {
    int32_t found = 0;
    EXPECT_EQ(getSystem(number, &found), 1);
    return found;
}

inline int32_t command(int32_t what) {
    return setSystem(G_NC_SYSTEM_COMMAND, what);
}

inline std::u16string text(int32_t string, int32_t number = 0) {
    char16_t found[300] = {};
    EXPECT_EQ(getString(1, string, number, found, 300), 1);
    return found;
}

/// Waits for a state of the machine, which moves in real time.
inline bool reaches(int32_t state) {
    return eventually([state] { return system(G_NC_SYSTEM_STATE) == state; });
}

} // namespace gpi::nc::test
