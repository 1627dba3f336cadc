// Values of the control that stand in rows and columns and can be set.
#pragma once

#include "machine/order.h"
#include "text/texts.h"

#include <optional>
#include <span>
#include <string>

namespace panel {

/// Where a value stands in the control.
struct Address {
    int32_t area;
    int32_t number;
    int32_t index;
};

struct Table {
    Word title;
    int32_t rows;
    std::span<const char16_t* const> columns; ///< headings
    int decimals;                             ///< of its values; -1 for as many as they need
    bool mayBeUnset;                          ///< an empty value is none, and can be given
    std::u16string (*label)(int32_t row);
    /// Nothing where there is no such value.
    std::optional<Address> (*address)(int32_t row, int32_t column);
};

/// Zero points of the work.
extern const Table kWorkOffsetTable;
/// Lengths and radii of tools, and their wear.
extern const Table kToolTable;
/// Macro variables.
extern const Table kMacroTable;

/// A value as the table shows it; empty for one that is not set.
std::u16string cellText(const Table& table, const Address& address);

/// The order that sets a value to what a text says; nothing when the text does not say a value.
std::optional<Order> setCell(const Table& table, const Address& address,
                             const std::u16string& text);

} // namespace panel
