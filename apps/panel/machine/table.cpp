#include "machine/table.h"

#include "text/format.h"

#include <gpi/nc.h>

#include <iterator>
#include <limits>

namespace panel {
namespace {

constexpr int32_t kTools = 24;
constexpr int32_t kMacroColumns = 4;
constexpr int kAsNeeded = -1;

constexpr const char16_t* kAxisColumns[] = {u"X", u"Y", u"Z"};
constexpr const char16_t* kToolColumns[] = {u"H", u"D/2", u"ΔH", u"ΔD/2"};
constexpr const char16_t* kMacroHeadings[] = {u"+0", u"+1", u"+2", u"+3"};

std::u16string workLabel(int32_t row) {
    constexpr int32_t kFirstCode = 53;
    return row == 0 ? u"EXT" : joined({u"G", wholeText(kFirstCode + row)});
}

std::optional<Address> workAddress(int32_t row, int32_t column) {
    return Address{G_NC_WORK_OFFSET, row, column};
}

std::u16string toolLabel(int32_t row) {
    return joined({u"T", wholeText(row + 1)});
}

std::optional<Address> toolAddress(int32_t row, int32_t column) {
    return Address{G_NC_TOOL_OFFSET, row + 1, column};
}

/// A run of macro variables; rows do not go from one into the next.
struct Range {
    int32_t first;
    int32_t last;
    constexpr int32_t rows() const { return (last - first) / kMacroColumns + 1; }
};

constexpr Range kRanges[] = {{GPI_NC_MACRO_LOCAL_FIRST, GPI_NC_MACRO_LOCAL_LAST},
                             {GPI_NC_MACRO_COMMON_FIRST, GPI_NC_MACRO_COMMON_LAST},
                             {GPI_NC_MACRO_KEPT_FIRST, GPI_NC_MACRO_KEPT_LAST}};

constexpr int32_t kMacroRows = [] {
    int32_t rows = 0;
    for (const Range& range : kRanges) {
        rows += range.rows();
    }
    return rows;
}();

/// The variable of a place; 0 where there is none.
int32_t macroOf(int32_t row, int32_t column) {
    for (const Range& range : kRanges) {
        if (row < range.rows()) {
            const int32_t variable = range.first + row * kMacroColumns + column;
            return variable <= range.last ? variable : 0;
        }
        row -= range.rows();
    }
    return 0;
}

std::u16string macroLabel(int32_t row) {
    return joined({u"#", wholeText(macroOf(row, 0))});
}

std::optional<Address> macroAddress(int32_t row, int32_t column) {
    const int32_t variable = macroOf(row, column);
    return variable != 0 ? std::optional(Address{G_NC_MACRO, variable, 0}) : std::nullopt;
}

} // namespace

const Table kWorkOffsetTable{u"WorkOffsetTitle", GPI_NC_WORK_OFFSETS, kAxisColumns, 3, false,
                             workLabel,          workAddress};
const Table kToolTable{u"ToolOffsetTitle", kTools, kToolColumns, 3, false, toolLabel, toolAddress};
const Table kMacroTable{u"MacroTitle", kMacroRows, kMacroHeadings, kAsNeeded,
                        true,          macroLabel, macroAddress};

std::u16string cellText(const Table& table, const Address& address) {
    if (address.area == G_NC_MACRO && GNCDataIsNotaNumber(kChannel, address.number) != 0) {
        return {};
    }
    const double value = readValue(address.area, address.number, address.index);
    return table.decimals == kAsNeeded ? shortest(value) : fixed(value, table.decimals);
}

std::optional<Order> setCell(const Table& table, const Address& address,
                             const std::u16string& text) {
    double value = std::numeric_limits<double>::quiet_NaN();
    const bool unset = text.empty() && table.mayBeUnset;
    if (!unset && !parseNumber(text, value)) {
        return std::nullopt;
    }
    return setValue(address.area, address.number, address.index, value);
}

} // namespace panel
