// Values in a part program: numbers, macro variables and what is worked out from them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace gcode {

/// The macro variables that a program can read.
class Variables {
  public:
    /// @return nothing for a variable that is not set, or that there is not
    virtual std::optional<double> read(int32_t variable) const = 0;

  protected:
    ~Variables() = default;
};

/// What was read: a value, or why there is none. No fault and no value: nothing like a value stood
/// there.
struct Value {
    double value = 0.0;
    bool found = false;
    std::string fault = {};

    bool valid() const { return found && fault.empty(); }
};

/// Takes a value off the text, blanks before it too: a decimal number, or with variables also #7,
/// #[#7+1], [2*[#7-1]], SQRT[2], with a sign before any of them. Angles are degrees. A number that
/// is too large to hold is infinite.
///
/// @param variables null where the program has none: a decimal number is all there is then
Value takeValue(std::string_view& text, const Variables* variables);

/// Whether a value is the number of a variable, 0 to 9999.
bool isVariableNumber(double value);

/// "#7"
std::string variableName(double number);

} // namespace gcode
