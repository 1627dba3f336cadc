#include "panel.h"

#include "settings.h"
#include "text/format.h"

#include <gpi/keys.h>

#include <algorithm>
#include <utility>

namespace panel {
namespace {

constexpr uint32_t kRestingInterval = 200; // milliseconds between looks at a machine at rest
constexpr uint32_t kSecond = 1000;

constexpr std::array<SoftKey, 9> kScreenKeys{{
    {Action::ShowPosition, u"Position", PANEL_ICONS_HANDWHEEL},
    {Action::ShowProgram, u"Program", PANEL_ICONS_PROGRAM},
    {Action::ShowGraphic, u"Graphic", PANEL_ICONS_GRAPHIC},
    {Action::ShowOffsets, u"Offsets", PANEL_ICONS_OFFSETS},
    {Action::ShowManual, u"Mdi", PANEL_ICONS_EDIT},
    {Action::ShowAlarms, u"Alarms", PANEL_ICONS_ALARM},
    {Action::ShowDiagnosis, u"Diagnosis", PANEL_ICONS_TOOL},
    {Action::ShowSettings, u"Settings", PANEL_ICONS_SETTINGS},
    {Action::ShowHelp, u"Help", PANEL_ICONS_HELP},
}};
constexpr SoftKey kToService{Action::ShowService, u"Service", PANEL_ICONS_SERVICE};
constexpr SoftKey kToFunctions{Action::SwitchKeys, u"Functions", PANEL_ICONS_RAPID};
constexpr SoftKey kToScreens{Action::SwitchKeys, u"Screens", PANEL_ICONS_SCREENS};

/// The display, cut into strips.
struct Strips {
    GRect status;
    GRect work;
    GRect message;
    GRect keys;
};

Strips stripsOf(const Painter& painter) {
    const Measures& measures = painter.measures();
    Strips strips{};
    strips.work = painter.display();
    strips.status = takeTop(strips.work, measures.statusHeight);
    strips.keys = takeBottom(strips.work, measures.keyHeight);
    strips.message = takeBottom(strips.work, measures.messageHeight);
    return strips;
}

Word reasonOf(int32_t result) {
    switch (result) {
    case G_NC_RANGE:
        return u"RefusedRange";
    case G_NC_READ_ONLY:
        return u"RefusedReadOnly";
    case G_NC_MODE:
        return u"RefusedMode";
    case G_NC_OFFLINE:
        return u"RefusedOffline";
    case G_NC_REFUSED:
        return u"RefusedByControl";
    default:
        return u"RefusedUnknown";
    }
}

void postPointer(PointerAction action, const GMessage& message) {
    postEvent(EventType::Pointer, static_cast<uint32_t>(action),
              static_cast<uint32_t>(message.param2));
}

/// Turns a message of the platform into an event.
void postEventOf(const GMessage& message) {
    switch (message.number) {
    case G_MESSAGE_QUIT: {
        GEventMsg quit;
        GESetEvent(*GECreateEventMessage(&quit, G_EVENT_QUIT, kPanel, 0, 0), 0);
        break;
    }
    case G_MESSAGE_KEY_DOWN:
        postEvent(EventType::Key, static_cast<uint32_t>(message.param1),
                  static_cast<uint32_t>(message.param2) & GPI_KEY_COUNT);
        break;
    case G_MESSAGE_KEY_UP:
        postEvent(EventType::Key, static_cast<uint32_t>(message.param1), 0);
        break;
    case G_MESSAGE_POINTER_MOVE:
        postPointer(PointerAction::Move, message);
        break;
    case G_MESSAGE_LEFT_DOWN:
    case G_MESSAGE_LEFT_DOUBLE:
        postPointer(PointerAction::Press, message);
        break;
    case G_MESSAGE_LEFT_UP:
        postPointer(PointerAction::Release, message);
        break;
    default:
        break;
    }
}

} // namespace

Panel::Panel(const PanelOptions& options)
    : options_(options),
      context_(options.scripted, programServer()),
      status_(context_, stripsOf(context_.painter).status),
      message_(context_, stripsOf(context_.painter).message),
      keys_(context_, stripsOf(context_.painter).keys,
            [this](Action action) { return isOn(action); }) {
    context_.work = stripsOf(context_.painter).work;
    if (options_.scripted) {
        GMSetMemoryMode(G_MEMORY_CHECKED); // what is used before it is written shows in pictures
    }
    GEInitEvent();
    GPIHostSetMessageHandler(onMessage, this);
    GESetTimer(kPanel, SecondTimer, kSecond);
    choose(options.language);
    readMachine();
    tickSecond();
    if (!options.program.empty()) {
        context_.openProgram(wide(options.program));
    }
    open(Action::ShowStart);
    draw();
}

Panel::~Panel() {
    GPIHostSetMessageHandler(nullptr, nullptr);
    GEKillTimer(kPanel, SecondTimer);
    GEKillTimer(kPanel, MachineTimer);
    GEQuitEvent();
}

void Panel::onMessage(void*, const GMessage* message) {
    postEventOf(*message);
}

void Panel::run() {
    GEventMsg event;
    while (!quits_) {
        if (GEGetEvent(&event, static_cast<int32_t>(machineInterval_)) != 0) {
            handle(event);
        }
        GECheckTimer();
        context_.counters.add(Counters::Wakeups, 1);
        handlePending();
    }
}

bool Panel::handlePending() {
    GEventMsg event;
    while (!quits_ && GEGetEvent(&event, 0) != 0) {
        handle(event);
    }
    act(std::exchange(context_.asked, Action::None));
    update();
    draw();
    return !quits_;
}

void Panel::redraw() {
    redrawAll();
    draw();
}

void Panel::handle(const GEventMsg& event) {
    context_.counters.add(Counters::Events, 1);
    switch (event.type) {
    case G_EVENT_QUIT:
        quits_ = true;
        break;
    case G_EVENT_TIMER:
        onTimer(static_cast<Timer>(event.param1));
        break;
    case static_cast<uint16_t>(EventType::Key):
        onKey(static_cast<int32_t>(event.param1), event.param2);
        break;
    case static_cast<uint16_t>(EventType::Pointer):
        onPointer(static_cast<PointerAction>(event.param1),
                  {static_cast<int16_t>(event.param2 & 0xFFFF),
                   static_cast<int16_t>(event.param2 >> 16)});
        break;
    case static_cast<uint16_t>(EventType::OrdersDone):
        onOrdersDone(static_cast<int32_t>(event.param1));
        break;
    case static_cast<uint16_t>(EventType::ProgramFetched):
        onProgramFetched(event.param1 != 0);
        break;
    default:
        break;
    }
}

void Panel::onTimer(Timer timer) {
    if (timer == MachineTimer) {
        readMachine();
    } else {
        tickSecond();
    }
}

void Panel::onKey(int32_t key, uint32_t count) {
    if (key == GPI_KEY_SHIFT) {
        context_.shifted = count != 0;
        return;
    }
    if (count == 0) {
        release(held_);
        keys_.press(std::nullopt);
        return;
    }
    if (key >= GPI_KEY_F1 && key < GPI_KEY_F1 + static_cast<int32_t>(SoftKeys::kCount)) {
        const auto place = static_cast<size_t>(key - GPI_KEY_F1);
        keys_.press(place);
        act(keys_.key(place).action);
    } else if (!screen_->key(key)) {
        const KeyBinding* const binding = bindingOf(key);
        if (binding != nullptr) {
            act(binding->action);
        }
    }
}

void Panel::onPointer(PointerAction action, GPoint at) {
    const auto key = keys_.at(at);
    if (action == PointerAction::Press && key) {
        keys_.press(key);
        act(keys_.key(*key).action);
        return;
    }
    if (action == PointerAction::Release) {
        release(held_);
        keys_.press(std::nullopt);
    }
    screen_->pointer(action, at);
}

void Panel::onOrdersDone(int32_t result) {
    if (result == 1) {
        context_.tell(nullptr, false);
    } else {
        context_.tell(reasonOf(result), true);
    }
    readMachine();
}

/// A program that is not wanted any more stays where it is.
void Panel::onProgramFetched(bool there) {
    const auto program = std::exchange(context_.fetches, std::nullopt);
    if (program && there) {
        context_.openProgram(ProgramStore::copyName(program->name));
    } else if (program) {
        context_.tell(u"FetchFailed", true);
    }
}

void Panel::open(Action action) {
    auto& screen = screens_[action];
    if (screen == nullptr) {
        screen = makeScreen(action, context_);
    }
    if (screen == nullptr) {
        return; // no screen's action, or one of a module that is not there
    }
    if (screen_ != nullptr) {
        screen_->close();
    }
    screen_ = screen.get();
    screenAction_ = action;
    status_.setTitle(screen_->title());
    screen_->open();
    showKeys(!screen_->keys().empty());
    redrawAll();
}

void Panel::showKeys(bool functions) {
    showsFunctions_ = functions;
    if (functions) {
        keys_.show(screen_->keys(), kToScreens);
        return;
    }
    auto screens = kScreenKeys;
    if (context_.builder.screen() != nullptr) {
        screens.back() = kToService; // help has a key of the keyboard, and one of the start page
    }
    keys_.show(screens, kToFunctions);
}

void Panel::choose(size_t language) {
    context_.texts.choose(language);
    if (!context_.texts.hasProfile()) {
        context_.tell(u"NoTexts", true);
    }
    if (screen_ != nullptr) {
        screen_->open();
    }
    redrawAll();
}

/// Looks at the machine, more often while it moves.
void Panel::readMachine() {
    context_.now = readSnapshot(context_.now);
    if (context_.now.program != context_.program.path() || context_.programIsStale) {
        context_.program = ProgramFile(context_.now.program);
        context_.programIsStale = false;
        ++context_.programsRead;
    }
    context_.alarms.follow(readAlarms(context_.now.alarms), GETime(nullptr));
    const bool moves = context_.now.online && context_.now.state == G_NC_STATE_RUNNING;
    const uint32_t interval = moves ? kSecond / options_.rate : kRestingInterval;
    if (interval != machineInterval_) {
        GEKillTimer(kPanel, MachineTimer);
        GESetTimer(kPanel, MachineTimer, interval);
        machineInterval_ = interval;
    }
}

void Panel::tickSecond() {
    Counters& counters = context_.counters;
    const int32_t events = counters[Counters::Events];
    counters.set(Counters::EventsOfSecond, events - eventsBefore_);
    eventsBefore_ = events;
    status_.tick(GETime(nullptr));
}

void Panel::update() {
    status_.update();
    message_.update();
    keys_.update();
    screen_->update();
}

void Panel::draw() {
    if (!context_.damage.any()) {
        return;
    }
    const uint64_t start = microseconds();
    context_.damage.take([this](const GRect& area) { drawArea(area); });
    GPIHostEndFrame(); // people see all of it at once
    Counters& counters = context_.counters;
    const auto took = static_cast<int32_t>(microseconds() - start);
    counters.set(Counters::LastMicros, took);
    counters.set(Counters::WorstMicros, std::max(took, counters[Counters::WorstMicros]));
    if (options_.onFrame) {
        options_.onFrame();
    }
}

void Panel::drawArea(const GRect& area) {
    const Painter& painter = context_.painter;
    painter.clip(area);
    status_.draw(area);
    message_.draw(area);
    keys_.draw(area);
    GRect shared;
    if (GRInceptRect(&area, &context_.work, &shared) != 0) {
        painter.clip(shared);
        painter.fill(context_.work, Ink::Desk);
        screen_->draw(shared);
    }
    if (context_.showDamage) {
        painter.clip(area);
        painter.frame(area, Ink::Damage);
    }
    GDSetClipRect(painter.handle(), nullptr);
    GDFlushScreen(painter.handle(), area.left, area.top, widthOf(area), heightOf(area));
    context_.counters.add(Counters::Redraws, 1);
    context_.counters.add(Counters::Pixels, widthOf(area) * heightOf(area));
}

void Panel::redrawAll() {
    context_.damage.add(context_.painter.display());
}

uint64_t Panel::microseconds() const {
    return options_.microseconds != nullptr ? options_.microseconds() : 0;
}

} // namespace panel
