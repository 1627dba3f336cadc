// The words of a command line.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace grf {

/// A command line that means nothing.
struct Misuse {};

/// The options and other words of a command. "-" is no option.
class Options {
  public:
    /// @param valued options that are followed by a value
    /// @param flags options that stand alone
    /// @throws Misuse for any other option, or a missing value
    Options(std::span<const std::string> words, const std::vector<std::string_view>& valued,
            const std::vector<std::string_view>& flags);

    bool has(const std::string& option) const { return values_.count(option) != 0; }
    std::optional<std::string> value(const std::string& option) const;

    const std::vector<std::string>& operands() const { return operands_; }

    /// The n-th operand, or "-" if there are fewer.
    std::string operand(size_t n) const { return n < operands_.size() ? operands_[n] : "-"; }

  private:
    std::map<std::string, std::string> values_;
    std::vector<std::string> operands_;
};

} // namespace grf
