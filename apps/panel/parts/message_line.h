// The line above the soft keys: alarms first, else what the panel has to tell.
#pragma once

#include "context.h"
#include "parts/readout.h"

namespace panel {

class MessageLine {
  public:
    MessageLine(Context& context, const GRect& area);

    void update();
    void draw(const GRect& area) const;

  private:
    Context& context_;
    Readout line_;
    bool fault_ = false;
};

} // namespace panel
