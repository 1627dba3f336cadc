#include "parts/message_line.h"

#include "text/format.h"

namespace panel {

MessageLine::MessageLine(Context& context, const GRect& area) : context_(context) {
    line_.rect = area;
}

void MessageLine::update() {
    const auto& alarms = context_.alarms.standing();
    std::u16string text;
    if (context_.message != nullptr) {
        text = context_.texts[context_.message];
    }
    bool fault = context_.messageIsFault;
    if (!alarms.empty()) {
        text = joined({wholeText(alarms.front().number), u"  ", alarms.front().text});
        fault = true;
    }
    if (!context_.now.online) {
        text = context_.texts[u"ControlLost"];
        fault = true;
    }
    if (fault != fault_) {
        fault_ = fault;
        context_.damage.add(line_.rect);
    }
    line_.show(text, context_.damage);
}

void MessageLine::draw(const GRect& area) const {
    if (!meet(line_.rect, area)) {
        return;
    }
    const Painter& painter = context_.painter;
    const bool alarming = fault_ && !line_.text.empty();
    painter.fill(line_.rect, alarming ? Ink::Fault : Ink::Message);
    GRect text = line_.rect;
    const int margin = painter.measures().margin;
    takeLeft(text, margin);
    takeRight(text, margin);
    painter.text(text, {Face::Text, alarming ? Ink::SignText : Ink::Text, Align::Left}, line_.text);
}

} // namespace panel
