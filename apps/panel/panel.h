// The panel as a whole: screens, keys, the machine, and the loop that sleeps between events.
#pragma once

#include "context.h"
#include "parts/message_line.h"
#include "parts/soft_keys.h"
#include "parts/status_bar.h"
#include "screens/screens.h"

#include <gpi/host.h>

#include <functional>
#include <map>
#include <memory>

namespace panel {

/// How a panel is started.
struct PanelOptions {
    bool scripted = false; ///< time is a script's, and orders are carried out at once
    size_t language = 0;   ///< of kLanguages
    std::string program;   ///< to be chosen, empty for none
    uint32_t rate = 20;    ///< looks at a machine that moves, a second
    uint64_t (*microseconds)() =
        nullptr;                   ///< measures redraws; null where nothing is to be measured
    std::function<void()> onFrame; ///< called behind the end of each frame, if there is something
};

/// One at a time; the platform must run, and canPaint().
class Panel {
  public:
    explicit Panel(const PanelOptions& options);
    ~Panel();
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    /// Runs until somebody quits.
    void run();

    /// Handles all events that wait, without waiting for more, and draws.
    /// @return false when somebody quits
    bool handlePending();

    /// Draws all of the display anew.
    void redraw();

    const Context& context() const { return context_; }
    /// The screen in view.
    const Screen& screen() const { return *screen_; }
    const SoftKeys& keys() const { return keys_; }

  private:
    enum Timer : uint16_t { MachineTimer, SecondTimer };

    static void onMessage(void* panel, const GMessage* message);
    void handle(const GEventMsg& event);
    void onTimer(Timer timer);
    void onKey(int32_t key, uint32_t count);
    void onPointer(PointerAction action, GPoint at);
    void onOrdersDone(int32_t result);
    void onProgramFetched(bool there);

    void act(Action action);
    void release(Action action);
    bool isOn(Action action) const;
    void open(Action action);
    void showKeys(bool functions);
    void choose(size_t language);
    void startJog(double direction);

    void readMachine();
    void tickSecond();
    void update();
    void draw();
    void drawArea(const GRect& area);
    void redrawAll();
    uint64_t microseconds() const;

    PanelOptions options_;
    Context context_;
    StatusBar status_;
    MessageLine message_;
    SoftKeys keys_;
    std::map<Action, std::unique_ptr<Screen>> screens_; ///< those that were opened once
    Screen* screen_ = nullptr;                          ///< the one in view
    Action screenAction_ = Action::None;
    bool showsFunctions_ = false;
    Action held_ = Action::None; ///< of the key that is held down
    uint32_t machineInterval_ = 0;
    int32_t eventsBefore_ = 0; ///< at the last second
    bool quits_ = false;
};

} // namespace panel
