// Places beside the panel that hold part programs.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace panel {

/// Files by name. Reading may wait for a server: no work for the thread that draws.
class Remote {
  public:
    virtual ~Remote() = default;

    /// All of a file; nothing where it cannot be had.
    ///
    /// @param stop gives up, when it comes true
    virtual std::optional<std::string> read(const std::u16string& name,
                                            const std::atomic<bool>& stop) const = 0;
};

/// The store that the panel shares with the machine's control.
std::unique_ptr<Remote> makeDataServer();

/// Files below a URL of HTTP, HTTPS or FTP that ends with a slash.
std::unique_ptr<Remote> makeWebServer(std::u16string url);

/// Puts a file together.
///
/// @param readPiece reads into room for so many bytes: how many came, 0 at the end, negative for a
///     failure
/// @return nothing when it failed, was stopped, or is larger than a program can be
template <class ReadPiece>
std::optional<std::string> readPieces(const std::atomic<bool>& stop, ReadPiece readPiece) {
    constexpr size_t kLargest = size_t{64} << 20; // what a control takes
    std::string bytes;
    std::array<char, 16384> piece;
    while (!stop && bytes.size() <= kLargest) {
        const int32_t got = readPiece(piece.data(), static_cast<int32_t>(piece.size()));
        if (got == 0) {
            return bytes;
        }
        if (got < 0) {
            break;
        }
        bytes.append(piece.data(), static_cast<size_t>(got));
    }
    return std::nullopt;
}

} // namespace panel
