#include "dump.h"

#include "failure.h"
#include "info.h"

#include <algorithm>
#include <cctype>
#include <iomanip>
#include <set>
#include <sstream>

namespace grf {
namespace {

bool isWordCharacter(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0;
}

/// A name as part of a constant: "cycle-start" is CYCLE_START.
std::string constantPart(const std::string& name) {
    std::string constant;
    for (const char character : name) {
        const int upper = std::toupper(static_cast<unsigned char>(character));
        constant += isWordCharacter(character) ? static_cast<char>(upper) : '_';
    }
    return constant;
}

void writeHex(std::ostream& out, uint32_t value, int digits) {
    out << "0x" << std::hex << std::setfill('0') << std::setw(digits) << value << std::dec;
}

/// The numbers of an array, in lines that are easy to compare.
template <typename Value>
void writeArray(std::ostream& out, std::span<const Value> values, size_t perLine) {
    constexpr int kDigits = 2 * sizeof(Value);
    for (size_t i = 0; i < values.size(); ++i) {
        out << (i % perLine == 0 ? "\n    " : " ");
        writeHex(out, values[i], kDigits);
        out << ',';
    }
    out << "\n};\n";
}

void writeData(std::ostream& out, size_t number, const Entry& entry) {
    const GGrfImage& image = entry.file->image;
    out << "\n/* " << entry.name << ": " << describeFormat(*entry.file)
        << " */\nstatic const uint8_t stream" << number << "[] = {";
    writeArray(out, std::span(image.data, image.size), 16);
    if (image.palette != nullptr) {
        const size_t count =
            image.type == G_GRF_PALETTE ? size_t{1} << image.bits : image.palette->count;
        out << "static const uint32_t colors" << number << "[] = {";
        writeArray(out, std::span(image.palette->colors, count), 8);
        out << "static const GGrfPalette palette" << number << " = {" << image.palette->count
            << ", colors" << number << "};\n";
    }
}

void writeRecord(std::ostream& out, size_t number, const GGrfImage& image) {
    out << "    {" << image.type << ", " << image.width << ", " << image.height << ", "
        << image.bits << ", " << image.size << ", stream" << number << ", ";
    if (image.palette != nullptr) {
        out << "&palette" << number;
    } else {
        out << '0';
    }
    out << "},\n";
}

} // namespace

std::string dumpSource(const std::string& table, std::span<const Entry> entries) {
    std::ostringstream out;
    out << "/* Made by quarlo-grf. */\n#include <quarlo/image.h>\n\nQUARLO_BEGIN\n\n"
        << "extern const GGrfImage " << table << "[];\n\nQUARLO_END\n";
    for (size_t i = 0; i < entries.size(); ++i) {
        writeData(out, i, entries[i]);
    }
    out << "\nconst GGrfImage " << table << "[] = {\n";
    for (size_t i = 0; i < entries.size(); ++i) {
        writeRecord(out, i, entries[i].file->image);
    }
    out << "};\n";
    return out.str();
}

std::string dumpHeader(const std::string& table, std::span<const Entry> entries) {
    const std::string prefix = constantPart(table);
    std::set<std::string> constants{prefix + "_COUNT"};
    std::ostringstream out;
    out << "/* Made by quarlo-grf. */\n#ifndef " << prefix << "_H\n#define " << prefix
        << "_H\n\n#include <quarlo/image.h>\n\nQUARLO_BEGIN\n\n/** Places in `" << table
        << "`. */\nenum {\n";
    for (const Entry& entry : entries) {
        const std::string constant = prefix + '_' + constantPart(entry.name);
        if (!constants.insert(constant).second) {
            throw Failure("two images would be " + constant);
        }
        out << "    " << constant << ",\n";
    }
    out << "    " << prefix << "_COUNT\n};\n\nextern const GGrfImage " << table << '[' << prefix
        << "_COUNT];\n\nQUARLO_END\n\n#endif\n";
    return out.str();
}

bool isIdentifier(const std::string& name) {
    return !name.empty() && std::isdigit(static_cast<unsigned char>(name[0])) == 0 &&
           std::all_of(name.begin(), name.end(), [](char character) {
               return isWordCharacter(character) || character == '_';
           });
}

} // namespace grf
