#include "config/settings.h"

#include "report.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <limits>
#include <set>
#include <string_view>

namespace gpi {
namespace {

/// Reads settings one by one and remembers which names mean something.
class Reader {
  public:
    explicit Reader(const SettingSource& source) : source_(source) {}

    void text(const char* name, std::string& value) {
        if (auto given = find(name)) {
            value = std::move(*given);
        }
    }

    void number(const char* name, int32_t least, int32_t most, int32_t& value) {
        const auto given = find(name);
        if (!given) {
            return;
        }
        int32_t parsed = 0;
        const char* const end = given->data() + given->size();
        const auto [stop, error] = std::from_chars(given->data(), end, parsed);
        if (error != std::errc() || stop != end || parsed < least || parsed > most) {
            refuse(name, *given,
                   "a number from " + std::to_string(least) + " to " + std::to_string(most));
            return;
        }
        value = parsed;
    }

    template <typename Value>
    struct Choice {
        std::string_view name;
        Value value;
    };

    template <typename Value>
    void choice(const char* name, std::initializer_list<Choice<Value>> choices, Value& value) {
        const auto given = find(name);
        if (!given) {
            return;
        }
        std::string expected = "one of";
        for (const auto& choice : choices) {
            if (choice.name == *given) {
                value = choice.value;
                return;
            }
            expected.append(" ").append(choice.name);
        }
        refuse(name, *given, expected);
    }

    void reportUnknownNames() const {
        for (const auto& name : source_.namesInFile()) {
            if (!known_.contains(name)) {
                report("the configuration file sets " + name + ", which means nothing");
            }
        }
    }

  private:
    std::optional<std::string> find(const char* name) {
        known_.insert(name);
        return source_.find(name);
    }

    static void refuse(const char* name, const std::string& given, const std::string& expected) {
        report(std::string(name) + " is \"" + given + "\" instead of " + expected +
               "; the default is taken");
    }

    const SettingSource& source_;
    std::set<std::string> known_;
};

} // namespace

Settings readSettings(const SettingSource& source) {
    Settings settings;
    Reader reader(source);
    reader.choice<DisplayKind>("QUARLO_DISPLAY",
                               {{"sdl", DisplayKind::Sdl},
                                {"memory", DisplayKind::Memory},
                                {"png", DisplayKind::Png},
                                {"vnc", DisplayKind::Vnc},
                                {"fbdev", DisplayKind::Fbdev},
                                {"drm", DisplayKind::Drm}},
                               settings.display);
    reader.number("QUARLO_WIDTH", 1, 2560, settings.width);
    reader.number("QUARLO_HEIGHT", 1, 2560, settings.height);
    reader.choice<PixelFormat>(
        "QUARLO_FORMAT",
        {{"8", kFormat8}, {"555", kFormat555}, {"565", kFormat565}, {"24", kFormat24}},
        settings.format);
    reader.number("QUARLO_SCALE", 1, 8, settings.scale);
    reader.text("QUARLO_TITLE", settings.title);
    reader.text("QUARLO_PNG", settings.png);
    reader.text("QUARLO_VNC_ADDRESS", settings.vncAddress);
    reader.number("QUARLO_VNC_PORT", 0, 65535, settings.vncPort);
    reader.text("QUARLO_VNC_PASSWORD", settings.vncPassword);
    reader.choice<bool>("QUARLO_VNC_VIEW_ONLY", {{"yes", true}, {"no", false}},
                        settings.vncViewOnly);
    reader.text("QUARLO_SCREEN", settings.screen);
    reader.choice<bool>("QUARLO_SCREEN_INPUT", {{"yes", true}, {"no", false}},
                        settings.screenInput);
    reader.text("QUARLO_FILES", settings.files);
    reader.text("QUARLO_DATA_SERVER", settings.dataServer);
    reader.text("QUARLO_PROGRAMS", settings.programs);
    reader.text("QUARLO_MODULES", settings.modules);
    reader.text("QUARLO_PROFILES", settings.profiles);
    settings.userProfiles = userFolder("profiles").string();
    reader.text("QUARLO_USER_PROFILES", settings.userProfiles);
    reader.choice<ControlKind>("QUARLO_NC",
                               {{"sim", ControlKind::Sim}, {"linuxcnc", ControlKind::LinuxCnc}},
                               settings.control);
    reader.text("QUARLO_NC_HELPER", settings.controlHelper);
    reader.text("QUARLO_NET_CA_FILE", settings.authorities);
    reader.text("QUARLO_NET_PROXY", settings.proxy);
    constexpr int32_t kLongest = std::numeric_limits<int32_t>::max();
    reader.number("QUARLO_NET_CONNECT_TIMEOUT", 1, kLongest, settings.connectTimeout);
    reader.number("QUARLO_NET_IDLE_TIMEOUT", 1, kLongest, settings.idleTimeout);
    reader.number("QUARLO_NET_REDIRECTS", 0, 50, settings.redirects);
    reader.choice<int32_t>("QUARLO_CODE_PAGE",
                           {{"UTF-8", G_CODE_PAGE_UTF8},
                            {"CP932", G_CODE_PAGE_CP932},
                            {"GBK", G_CODE_PAGE_GBK},
                            {"CP1252", G_CODE_PAGE_CP1252}},
                           settings.codePage);
    reader.text("QUARLO_PANEL_FONT", settings.panelFont);
    reader.text("QUARLO_JAPANESE_FONT", settings.japaneseFont);
    reader.text("QUARLO_CHINESE_FONT", settings.chineseFont);
    reader.number("QUARLO_GLYPH_CACHE", 1, 1 << 20, settings.glyphCache);
    reader.choice<bool>(kWholeStringsSetting, {{"yes", true}, {"no", false}},
                        settings.wholeStrings);
    reader.number("QUARLO_MEMORY_LIMIT", 0, std::numeric_limits<int32_t>::max(),
                  settings.memoryLimit);
    reader.reportUnknownNames();
    return settings;
}

} // namespace gpi
