// One screen of the panel: what stands between the status line and the message line.
#pragma once

#include "context.h"
#include "events.h"

#include <span>

namespace panel {

class Screen {
  public:
    explicit Screen(Context& context) : context_(context) {}
    virtual ~Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    virtual Word title() const = 0;
    /// Its soft keys, nine at most.
    virtual std::span<const SoftKey> keys() const { return {}; }

    /// Comes into view, or is to begin anew since the language is another. All of it is drawn next.
    virtual void open() {}
    /// Goes out of view.
    virtual void close() {}

    /// Adds what has changed to the damage.
    virtual void update() {}
    /// Draws what an area needs. The handle's clip rectangle is that area, and its ground is drawn.
    virtual void draw(const GRect& area) const = 0;

    /// What a soft key or a key of the keyboard asks for.
    /// @return whether the screen has done it
    virtual bool act(Action) { return false; }
    /// Whether the function of a key is on.
    virtual bool isOn(Action) const { return false; }
    /// A key of the keyboard goes down (gpi/keys.h).
    /// @return whether the screen has used it
    virtual bool key(int32_t) { return false; }
    virtual void pointer(PointerAction, GPoint) {}

  protected:
    const Painter& painter() const { return context_.painter; }
    const Measures& measures() const { return context_.painter.measures(); }
    const std::u16string& text(Word key) const { return context_.texts[key]; }
    /// Draws the whole screen anew.
    void redraw() { context_.damage.add(context_.work); }

    Context& context_;
};

} // namespace panel
