// All that the platform keeps for the process.
#pragma once

#include "app/program_store.h"
#include "clock/clock.h"
#include "display/device_drawing.h"
#include "display/display.h"
#include "event/signal.h"
#include "file/store.h"
#include "font/font_store.h"
#include "input/input.h"
#include "memory/heap.h"
#include "message/message_handler.h"
#include "message/message_queue.h"
#include "module/module_store.h"
#include "nc/controller.h"
#include "net/make_network.h"
#include "profile/profiles.h"
#include "text/code_page.h"

#include <quarlo/data_server.h>

#include <memory>

namespace gpi {

/// The display of a started platform and the state of drawing on it.
struct Screen {
    Screen(const Settings& settings, Input& input) : display(settings, input), drawing(display) {}

    Display display;
    DeviceDrawing drawing;
};

struct Platform {
    Heap heap;                          ///< works before the start and after the stop
    TickClock ticks;                    ///< likewise
    Signal eventSignal;                 ///< likewise
    RecursiveLock eventLock;            ///< likewise
    MessageQueue messages{eventSignal}; ///< likewise
    MessageHandler messageHandler;      ///< likewise
    Input input{messages};              ///< likewise
    CodePage codePage = codePageOf(0);  ///< likewise
    bool wholeStrings = true;           ///< likewise: services 44 and 75
    std::unique_ptr<Screen> screen;     ///< null unless started, and so are those below
    std::unique_ptr<FontStore> fonts;
    std::unique_ptr<FileStore<GFile>> files;
    std::unique_ptr<FileStore<GDataFile>> dataServer;
    std::unique_ptr<Profiles> profiles;
    std::unique_ptr<ModuleStore> modules;
    std::unique_ptr<ProgramStore> programs;
    std::shared_ptr<Network> network; ///< null also where there is none
    std::unique_ptr<nc::Controller> controller;
};

/// The one platform. It outlives every other object of the process.
Platform& platform();

/// The screen, or null.
inline Screen* screen() {
    return platform().screen.get();
}

} // namespace gpi
