// Macro variables.
#pragma once

#include "gcode/expression.h"

#include <gpi/nc.h>

#include <array>
#include <limits>

namespace gpi::nc {

inline constexpr double kUnset = std::numeric_limits<double>::quiet_NaN();

/// The variables of a control: not a number while they are unset.
class Macros : public gcode::Variables {
  public:
    Macros() { values_.fill(kUnset); }

    static constexpr bool exists(int32_t variable) {
        return isIn(variable, GPI_NC_MACRO_LOCAL_FIRST, GPI_NC_MACRO_LOCAL_LAST) ||
               isIn(variable, GPI_NC_MACRO_COMMON_FIRST, GPI_NC_MACRO_COMMON_LAST) ||
               isIn(variable, GPI_NC_MACRO_KEPT_FIRST, GPI_NC_MACRO_KEPT_LAST);
    }

    // The variable must exist.
    double get(int32_t variable) const { return values_[static_cast<size_t>(variable)]; }
    void set(int32_t variable, double value) { values_[static_cast<size_t>(variable)] = value; }

    /// Unsets the variables of the program that ran.
    void forgetLocals() {
        for (int32_t i = GPI_NC_MACRO_LOCAL_FIRST; i <= GPI_NC_MACRO_LOCAL_LAST; ++i) {
            set(i, kUnset);
        }
    }

    std::optional<double> read(int32_t variable) const override {
        const double value = exists(variable) ? get(variable) : kUnset;
        return value == value ? std::optional<double>(value) : std::nullopt;
    }

  private:
    static constexpr bool isIn(int32_t variable, int32_t first, int32_t last) {
        return variable >= first && variable <= last;
    }

    std::array<double, GPI_NC_MACRO_KEPT_LAST + 1> values_{};
};

} // namespace gpi::nc
