#include "gcode/block_reader.h"

#include "gcode/text.h"

#include <cmath>

namespace gcode {
namespace {

// Beyond any machine's travel, any speed and any eight-digit line or program number.
constexpr double kLargestNumber = 99'999'999.0;
constexpr double kLargestCode = 999.0;

/// Skips blanks and comments. A comment that is not closed ends with its line.
void skipToWord(std::string_view& text) {
    for (skipBlanks(text); !text.empty(); skipBlanks(text)) {
        if (text.front() == ';') {
            text = {};
        } else if (text.front() == '(') {
            const size_t close = text.find(')');
            text.remove_prefix(close == std::string_view::npos ? text.size() : close + 1);
        } else {
            return;
        }
    }
}

std::string describe(char c) {
    if (c > ' ' && c < 0x7F) {
        return std::string("'") + c + "'";
    }
    constexpr char kDigits[] = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    return std::string("byte 0x") + kDigits[byte >> 4] + kDigits[byte & 0xF];
}

/// Reads the words of one line; each step says whether to go on.
class LineReader {
  public:
    LineReader(std::string_view line, const Variables* variables, Block& block, std::string& fault)
        : rest_(line), variables_(variables), block_(block), fault_(fault) {}

    bool atEnd() {
        skipToWord(rest_);
        return rest_.empty();
    }

    bool next() {
        if (rest_.front() == '/') {
            return readBlockDelete();
        }
        return rest_.front() == '#' && variables_ != nullptr ? readAssignment() : readWord();
    }

  private:
    bool readBlockDelete() {
        block_.deletable = true;
        rest_.remove_prefix(1);
        if (!rest_.empty() && isDigit(rest_.front())) {
            rest_.remove_prefix(1);
        }
        return true;
    }

    bool readAssignment() {
        rest_.remove_prefix(1);
        const Value number = takeValue(rest_, variables_);
        if (!number.valid() || !isVariableNumber(number.value)) {
            return refuse(number.fault.empty() ? "# without a number" : number.fault);
        }
        const std::string name = variableName(number.value);
        if (!takeCharacter(rest_, '=')) {
            return refuse(name + " without =");
        }
        const Value value = takeValue(rest_, variables_);
        if (!value.valid()) {
            return refuse(value.fault.empty() ? name + " without a value" : value.fault);
        }
        if (!(std::abs(value.value) <= kLargestNumber)) {
            return refuse(name + " with a value out of range");
        }
        block_.assignments.push_back({static_cast<int32_t>(number.value), value.value});
        return true;
    }

    bool readWord() {
        const char letter = capitalLetter(rest_.front());
        if (letter == '\0') {
            return refuse(describe(rest_.front()));
        }
        rest_.remove_prefix(1);
        const Value number = takeValue(rest_, variables_);
        if (!number.valid()) {
            return refuse(number.fault.empty() ? std::string(1, letter) + " without a number"
                                               : number.fault);
        }
        const bool isCode = letter == 'G' || letter == 'M';
        const double largest = isCode ? kLargestCode : kLargestNumber;
        if (!(std::abs(number.value) <= largest) || (isCode && number.value < 0)) {
            return refuse(std::string(1, letter) + " with a number out of range");
        }
        if (isCode) {
            const auto tenths = static_cast<Code>(std::lround(number.value * 10.0));
            (letter == 'G' ? block_.gCodes : block_.mCodes).push_back(tenths);
        } else {
            block_.set(letter, number.value);
        }
        return true;
    }

    bool refuse(std::string what) {
        fault_ = std::move(what);
        return false;
    }

    std::string_view rest_;
    const Variables* variables_;
    Block& block_;
    std::string& fault_;
};

} // namespace

Reading readBlock(std::string_view line, const Variables* variables, Block& block,
                  std::string& fault) {
    block.clear();
    LineReader reader(line, variables, block, fault);
    skipToWord(line);
    if (line.empty() || line.front() == '%') {
        return Reading::Nothing;
    }
    while (!reader.atEnd()) {
        if (!reader.next()) {
            return Reading::Refused;
        }
    }
    return Reading::Words;
}

} // namespace gcode
