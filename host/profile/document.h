// One profile: sections of keys and values, with the comments between them.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gpi {

/// A profile in memory, in UTF-8. Sections and keys are found whatever the case of their ASCII
/// letters. What was read is written back in its own encoding and with its own line ends: comments
/// and the order of lines stay.
class ProfileDocument {
  public:
    /// An empty profile.
    ProfileDocument();

    /// Reads a file's bytes: UTF-16 with a byte order mark, UTF-8, or what is neither.
    ///
    /// @param codePage what that is then, as iconv knows it; static text
    /// @throws IoError G_IO_DAMAGED for text that is broken
    explicit ProfileDocument(std::string_view bytes, const char* codePage = "UTF-8");

    ~ProfileDocument();
    ProfileDocument(ProfileDocument&&) noexcept;
    ProfileDocument& operator=(ProfileDocument&&) noexcept;

    std::optional<std::string> value(const std::string& section, const std::string& key) const;
    std::vector<std::string> sections() const;
    std::vector<std::string> keys(const std::string& section) const;

    // Names and values are single lines that read back as they are; see isName() and isValue().
    void set(const std::string& section, const std::string& key, const std::string& value);
    void removeKey(const std::string& section, const std::string& key);
    void removeSection(const std::string& section);

    /// The file's bytes.
    ///
    /// @throws IoError G_IO_UNSUPPORTED for text that the file's encoding cannot say
    std::string bytes() const;

    /// Whether a section or key can have this name.
    static bool isName(std::string_view text);
    /// Whether a key can have this value.
    static bool isValue(std::string_view text);

  private:
    struct Content;
    std::unique_ptr<Content> content_;
};

} // namespace gpi
