#include "lifecycle.h"

#include "clock/time_source.h"
#include "guard.h"
#include "nc/make_controller.h"
#include "platform.h"

namespace gpi {

GWord startPlatform(GWord configuration) {
    return guarded<GWord>(0, [configuration] {
        Platform& self = platform();
        if (self.screen == nullptr) {
            // NOLINTNEXTLINE(performance-no-int-to-ptr): a word that carries a pointer by contract
            const auto* const file = reinterpret_cast<const char*>(configuration);
            const auto source = file != nullptr ? SettingSource(file) : SettingSource::standard();
            const Settings settings = readSettings(source);
            self.heap.setDefaultLimit(static_cast<size_t>(settings.memoryLimit));
            self.files = std::make_unique<FileStore<GFile>>(settings.files);
            self.dataServer = std::make_unique<FileStore<GDataFile>>(settings.dataServer);
            self.codePage = codePageOf(settings.codePage);
            self.profiles =
                std::make_unique<Profiles>(settings.profiles, settings.userProfiles, self.codePage);
            self.modules = std::make_unique<ModuleStore>(settings.modules);
            self.programs = std::make_unique<ProgramStore>(settings.programs, settings.files);
            self.network = makeNetwork(settings);
            self.messages.clear();
            self.input.reset();
            self.wholeStrings = settings.wholeStrings;
            self.fonts = std::make_unique<FontStore>(settings);
            self.screen = std::make_unique<Screen>(settings, self.input);
            self.controller = nc::makeController(settings);
            self.ticks.set(0);
        }
        return GWord{1};
    });
}

GWord openDisplay(GWord /*configuration*/) {
    return guarded<GWord>(0, [] { return GWord{screen() != nullptr && screen()->display.open()}; });
}

GWord closeDisplay() {
    return guarded<GWord>(0,
                          [] { return GWord{screen() != nullptr && screen()->display.close()}; });
}

GWord stopPlatform() {
    if (screen() == nullptr) {
        return 0;
    }
    const GWord kept = closeDisplay();
    Platform& self = platform();
    self.screen.reset();
    self.network.reset();
    self.programs.reset();
    self.modules.reset();
    self.profiles.reset();
    self.controller.reset();
    self.dataServer.reset();
    self.files.reset();
    self.fonts.reset();
    releaseTime();
    return kept;
}

const char16_t* describePlatform() {
    return u"gpi " GPI_VERSION;
}

} // namespace gpi
