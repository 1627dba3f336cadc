// Environment variables for the time of a test.
#pragma once

#include <map>
#include <optional>
#include <string>

namespace gpi::test {

/// Sets environment variables and puts back what was there.
class Environment {
  public:
    using Values = std::map<std::string, std::optional<std::string>>;

    /// A variable without a value is removed.
    explicit Environment(const Values& values);
    Environment(std::initializer_list<Values::value_type> values) : Environment(Values(values)) {}
    ~Environment();
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

  private:
    Values before_;
};

/// A folder of the test's own, removed at its end.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path(const std::string& name = "") const;
    void write(const std::string& name, const std::string& text) const;

  private:
    std::string path_;
};

} // namespace gpi::test
