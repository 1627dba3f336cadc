// A viewer of the test's own, which does what it is told and nothing by itself.
#pragma once

#include <quarlo/types.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct _rfbClient;

namespace gpi::test {

/// Connects to a server on this computer by libvncclient. Colours come back exactly as they were
/// sent.
class Viewer {
  public:
    /// Connects and gets the first picture.
    /// @param password empty to have none
    explicit Viewer(int port, const std::string& password = "");
    ~Viewer();
    Viewer(const Viewer&) = delete;
    Viewer& operator=(const Viewer&) = delete;

    bool connected() const { return client_ != nullptr; }
    int width() const;
    int height() const;
    uint32_t at(int x, int y) const; ///< 0x00RRGGBB
    std::vector<uint32_t> picture() const;

    /// Handles what the server sends, update by update, until a condition holds after one of them.
    /// False when the connection ends or nothing comes for a minute.
    bool until(const std::function<bool()>& condition);

    /// Waits for one update.
    bool update();

    /// The areas of the last update.
    const std::vector<GRect>& areas() const { return areas_; }

    void key(uint32_t symbol, bool down);
    void pointer(int x, int y, int buttons);

    /// Returns when the server has handled all that was sent before.
    bool sync();

  private:
    struct Handlers;

    struct Cleanup {
        void operator()(_rfbClient* client) const;
    };

    std::unique_ptr<_rfbClient, Cleanup> client_;
    std::string password_;
    std::vector<GRect> areas_;
    bool fresh_ = true; ///< the next area is the first of an update
    uint64_t updates_ = 0;
};

} // namespace gpi::test
