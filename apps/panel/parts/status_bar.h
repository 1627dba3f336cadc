// The line along the upper edge: what is in view and what the machine is at.
#pragma once

#include "context.h"
#include "parts/readout.h"

namespace panel {

class StatusBar {
  public:
    StatusBar(Context& context, const GRect& area);

    void setTitle(Word title) { title_ = title; }
    /// Adds what has changed to the damage.
    void update();
    /// Shows the time of day.
    void tick(uint32_t time);
    void draw(const GRect& area) const;

  private:
    /// From left to right, the upper row before the lower one.
    enum Part : uint8_t { Title, Program, Clock, Mode, State, Feed, Spindle, Tool, Unit, kParts };

    void layOut(const GRect& area);
    void show(Part part, const std::u16string& text) { parts_[part].show(text, context_.damage); }
    void showMode();
    void showState();

    Context& context_;
    GRect area_;
    Word title_ = u"";
    std::array<Readout, kParts> parts_;
};

} // namespace panel
