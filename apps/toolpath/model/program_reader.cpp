#include "model/program_reader.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace toolpath {
namespace {

// Beyond any machine's travel, any speed and any eight-digit line or program number.
constexpr double kLargestNumber = 99'999'999.0;
constexpr double kLargestCode = 999.0;

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The capital of an ASCII letter, or 0.
char capitalLetter(char c) {
    if (c >= 'a' && c <= 'z') {
        return static_cast<char>(c - 'a' + 'A');
    }
    return c >= 'A' && c <= 'Z' ? c : '\0';
}

void skipBlanks(std::string_view& text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
}

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

/// Takes a decimal number off the text: infinity where it is too large to hold, nothing where no
/// number stands. Neither an exponent nor a name of infinity counts as one.
std::optional<double> takeNumber(std::string_view& text) {
    const bool isSigned = !text.empty() && (text.front() == '+' || text.front() == '-');
    const std::string_view digits = text.substr(isSigned ? 1 : 0);
    if (digits.empty() || !(isDigit(digits.front()) || digits.front() == '.')) {
        return std::nullopt;
    }
    double value = 0.0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value,
                                              std::chars_format::fixed);
    if (error == std::errc::invalid_argument) {
        return std::nullopt;
    }
    if (error == std::errc::result_out_of_range) {
        value = std::numeric_limits<double>::infinity();
    }
    const bool negative = isSigned && text.front() == '-';
    text.remove_prefix(static_cast<size_t>(end - text.data()));
    return negative ? -value : value;
}

} // namespace

ProgramReader::ProgramReader(std::string_view text, Remarks& remarks)
    : rest_(text), remarks_(remarks) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (rest_.starts_with(kByteOrderMark)) {
        rest_.remove_prefix(kByteOrderMark.size());
    }
}

bool ProgramReader::next(Block& block) {
    while (!rest_.empty()) {
        block.clear();
        const std::string_view line = takeLine();
        block.line = line_;
        if (readWords(line, block)) {
            return true;
        }
    }
    return false;
}

/// Lines end with LF, CR LF or CR.
std::string_view ProgramReader::takeLine() {
    const size_t length = rest_.find_first_of("\r\n");
    const std::string_view line = rest_.substr(0, length);
    rest_.remove_prefix(line.size());
    if (!rest_.empty()) {
        rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : 1);
    }
    ++line_;
    return line;
}

/// @return false where the line holds no block to go by
bool ProgramReader::readWords(std::string_view line, Block& block) {
    skipToWord(line);
    if (line.empty() || line.front() == '%') {
        return false;
    }
    for (; !line.empty(); skipToWord(line)) {
        if (line.front() == '/') {
            line.remove_prefix(1);
            if (!line.empty() && isDigit(line.front())) {
                line.remove_prefix(1);
            }
        } else if (!readWord(line, block)) {
            return false;
        }
    }
    return true;
}

bool ProgramReader::readWord(std::string_view& rest, Block& block) {
    const char letter = capitalLetter(rest.front());
    if (letter == '\0') {
        return refuse(describe(rest.front()) + " is not drawn");
    }
    rest.remove_prefix(1);
    skipBlanks(rest);
    const std::optional<double> number = takeNumber(rest);
    if (!number) {
        return refuse(std::string(1, letter) + " without a number is not drawn");
    }
    const bool isCode = letter == 'G' || letter == 'M';
    if (std::abs(*number) > (isCode ? kLargestCode : kLargestNumber) || (isCode && *number < 0)) {
        return refuse(std::string(1, letter) + " with a number out of range is not drawn");
    }
    if (isCode) {
        const auto tenths = static_cast<Code>(std::lround(*number * 10.0));
        (letter == 'G' ? block.gCodes : block.mCodes).push_back(tenths);
    } else {
        block.set(letter, *number);
    }
    return true;
}

bool ProgramReader::refuse(const std::string& what) {
    remarks_.add(line_, what);
    return false;
}

} // namespace toolpath
