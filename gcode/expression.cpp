#include "gcode/expression.h"

#include "gcode/decimal.h"
#include "gcode/text.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace gcode {
namespace {

// Deeper than anyone writes, and far from the end of the stack.
constexpr int kDeepest = 32;

constexpr double kDegree = std::numbers::pi / 180.0;

struct Function {
    std::string_view name;
    double (*apply)(double);
};

constexpr Function kFunctions[] = {
    {"SIN", [](double x) { return std::sin(x * kDegree); }},
    {"COS", [](double x) { return std::cos(x * kDegree); }},
    {"TAN", [](double x) { return std::tan(x * kDegree); }},
    {"SQRT", [](double x) { return std::sqrt(x); }},
    {"ABS", [](double x) { return std::abs(x); }},
    {"ROUND", [](double x) { return std::round(x); }},
};

Value fault(std::string what) {
    return {0.0, false, std::move(what)};
}

Value found(double value) {
    return {value, true};
}

/// A decimal number without a sign. Neither an exponent nor a name of infinity counts as one.
Value takeNumber(std::string_view& text) {
    if (text.empty() || !(isDigit(text.front()) || text.front() == '.')) {
        return {};
    }
    double value = 0.0;
    const auto [end, error] = readDecimal(text.data(), text.data() + text.size(), value);
    if (error == std::errc::invalid_argument) {
        return {};
    }
    if (error == std::errc::result_out_of_range) {
        value = std::numeric_limits<double>::infinity();
    }
    text.remove_prefix(static_cast<size_t>(end - text.data()));
    return found(value);
}

/// Takes a function's name off the text.
const Function* takeFunction(std::string_view& text) {
    for (const Function& function : kFunctions) {
        size_t length = 0;
        while (length < function.name.size() && length < text.size() &&
               capitalLetter(text[length]) == function.name[length]) {
            ++length;
        }
        if (length == function.name.size()) {
            text.remove_prefix(length);
            return &function;
        }
    }
    return nullptr;
}

/// Recursive descent: a sum of products of signed values.
class Evaluator {
  public:
    Evaluator(std::string_view& text, const Variables& variables)
        : text_(text), variables_(variables) {}

    Value signedValue() {
        const bool negative = takeCharacter(text_, '-');
        if (!negative) {
            takeCharacter(text_, '+');
        }
        Value result = value();
        result.value = negative ? -result.value : result.value;
        return result;
    }

  private:
    Value value() {
        skipBlanks(text_);
        if (takeCharacter(text_, '#')) {
            return variable();
        }
        if (takeCharacter(text_, '[')) {
            return bracketed();
        }
        const Function* const function = takeFunction(text_);
        if (function == nullptr) {
            return takeNumber(text_);
        }
        if (!takeCharacter(text_, '[')) {
            return fault(std::string(function->name) + " without [");
        }
        Value result = bracketed();
        if (result.valid()) {
            result.value = function->apply(result.value);
        }
        return result;
    }

    Value variable() {
        Value number = nested([this] { return value(); });
        if (!number.valid()) {
            return number.fault.empty() ? fault("# without a number") : number;
        }
        if (!isVariableNumber(number.value)) {
            return fault("# with a number out of range");
        }
        const auto set = variables_.read(static_cast<int32_t>(number.value));
        return set ? found(*set) : fault(variableName(number.value) + " is not set");
    }

    Value bracketed() {
        Value result = nested([this] { return sum(); });
        if (result.valid() && !takeCharacter(text_, ']')) {
            return fault("[ without ]");
        }
        return result.found || !result.fault.empty() ? result : fault("[ without a value");
    }

    Value sum() {
        Value left = product();
        while (left.valid()) {
            if (takeCharacter(text_, '+')) {
                left = combined(left, product(), [](double a, double b) { return a + b; });
            } else if (takeCharacter(text_, '-')) {
                left = combined(left, product(), [](double a, double b) { return a - b; });
            } else {
                break;
            }
        }
        return left;
    }

    Value product() {
        Value left = signedValue();
        while (left.valid()) {
            if (takeCharacter(text_, '*')) {
                left = combined(left, signedValue(), [](double a, double b) { return a * b; });
            } else if (takeCharacter(text_, '/')) {
                left = combined(left, signedValue(), [](double a, double b) { return a / b; });
            } else {
                break;
            }
        }
        return left;
    }

    template <typename Operation>
    static Value combined(const Value& left, const Value& right, Operation operation) {
        if (!right.valid()) {
            return right.fault.empty() ? fault("an operator without a value") : right;
        }
        return found(operation(left.value, right.value));
    }

    template <typename Inner>
    Value nested(Inner inner) {
        if (depth_ == kDeepest) {
            return fault("an expression that is too deep");
        }
        ++depth_;
        Value result = inner();
        --depth_;
        return result;
    }

    std::string_view& text_;
    const Variables& variables_;
    int depth_ = 0;
};

} // namespace

Value takeValue(std::string_view& text, const Variables* variables) {
    skipBlanks(text);
    if (variables != nullptr) {
        return Evaluator(text, *variables).signedValue();
    }
    const bool isSigned = !text.empty() && (text.front() == '+' || text.front() == '-');
    const bool negative = isSigned && text.front() == '-';
    std::string_view digits = text.substr(isSigned ? 1 : 0);
    Value number = takeNumber(digits);
    if (number.found) {
        text = digits;
        number.value = negative ? -number.value : number.value;
    }
    return number;
}

bool isVariableNumber(double value) {
    return value >= 0.0 && value <= 9999.0 && value == std::floor(value);
}

std::string variableName(double number) {
    return '#' + std::to_string(static_cast<int32_t>(number));
}

} // namespace gcode
