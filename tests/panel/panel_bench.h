// A panel that a test drives.
#pragma once

#include "panel.h"
#include "script/script.h"
#include "support/environment.h"
#include "support/started_platform.h"

#include <functional>
#include <optional>
#include <string>

namespace panel::test {

using gpi::test::Environment;
using gpi::test::StartedPlatform;
using gpi::test::TemporaryFolder;

/// When scripts begin: 2024-03-01 08:00:00.
inline constexpr uint32_t kStartTime = 1'709'280'000;

/// A panel on a display in memory, before the simulated machine, under a clock that is held.
class Bench {
  public:
    /// @param onFrame called behind the end of each frame
    /// @param rate looks at a machine that moves, a second
    explicit Bench(const Environment::Values& changes = {}, size_t language = 0,
                   std::function<void()> onFrame = nullptr, uint32_t rate = PanelOptions().rate);

    /// Carries out the lines of a script. Fails the test when one is wrong.
    void run(const std::string& lines);

    Panel& panel() { return *panel_; }
    const Context& context() const { return panel_->context(); }
    const Snapshot& machine() const { return context().now; }
    std::string shots() const { return shots_.path(); }

  private:
    TemporaryFolder user_; ///< the user's profiles
    TemporaryFolder shots_;
    TemporaryFolder files_; ///< part programs, and room for copies of others
    StartedPlatform platform_;
    std::optional<Panel> panel_;
};

/// The keys that bring the machine from cold to ready: from the start page.
inline constexpr const char* kMakeReady = "key F1\nwait 500\nkey F2\nwait 3000\n";

} // namespace panel::test
