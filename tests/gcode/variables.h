// Macro variables from a literal.
#pragma once

#include "gcode/expression.h"

#include <map>

namespace gcode {

struct FixedVariables : Variables {
    explicit FixedVariables(std::map<int32_t, double> given) : values(std::move(given)) {}

    std::optional<double> read(int32_t variable) const override {
        const auto entry = values.find(variable);
        return entry != values.end() ? std::optional<double>(entry->second) : std::nullopt;
    }

    std::map<int32_t, double> values;
};

} // namespace gcode
