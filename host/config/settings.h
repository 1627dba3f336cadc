// Everything about the platform that its user can choose.
#pragma once

#include "config/source.h"
#include "display/pixel_format.h"

#include <quarlo/convert.h>

#include <cstdint>
#include <string>

namespace gpi {

/// Where the display is shown.
enum class DisplayKind {
    Automatic, ///< a window where a display server answers, else a picture file
    Sdl,       ///< a window
    Memory,    ///< nowhere
    Png,       ///< a picture file, written at the end
    Vnc,       ///< wherever viewers are
    Fbdev,     ///< a screen, by its frame buffer device
    Drm        ///< a screen, by the kernel's mode setting
};

/// Which control the numerical-control data come from.
enum class ControlKind {
    Sim,     ///< the one inside the platform
    LinuxCnc ///< LinuxCNC on this computer
};

/// The settings with their defaults. The comment behind each names its variable.
/// Read also by a platform that is not started.
inline constexpr const char* kWholeStringsSetting = "QUARLO_WHOLE_STRINGS";

struct Settings {
    /// QUARLO_DISPLAY: sdl, memory, png, vnc, fbdev, drm
    DisplayKind display = DisplayKind::Automatic;
    int width = 800;                        ///< QUARLO_WIDTH: pixels, 1 to 2560
    int height = 600;                       ///< QUARLO_HEIGHT: pixels, 1 to 2560
    PixelFormat format = kFormat555;        ///< QUARLO_FORMAT: 8, 555, 565, 24
    int scale = 1;                          ///< QUARLO_SCALE: of a new window, 1 to 8
    std::string title = "quarlo";           ///< QUARLO_TITLE: of the window
    std::string png = "quarlo.png";         ///< QUARLO_PNG: path of the picture file
    std::string vncAddress = "127.0.0.1";   ///< QUARLO_VNC_ADDRESS: where viewers connect
    int vncPort = 5900;                     ///< QUARLO_VNC_PORT: 0 (any free) to 65535
    std::string vncPassword;                ///< QUARLO_VNC_PASSWORD: none if empty
    bool vncViewOnly = false;               ///< QUARLO_VNC_VIEW_ONLY: yes, no
    std::string screen;                     ///< QUARLO_SCREEN: device of the screen, or the first
    bool screenInput = true;                ///< QUARLO_SCREEN_INPUT: yes, no
    std::string files = ".";                ///< QUARLO_FILES: folder that holds the program's files
    std::string dataServer = "data";        ///< QUARLO_DATA_SERVER: folder of the data server
    std::string programs = "programs";      ///< QUARLO_PROGRAMS: folder of programs
    std::string modules = "modules";        ///< QUARLO_MODULES: folder of modules
    std::string profiles = "profiles";      ///< QUARLO_PROFILES: folder of the maker's
    std::string userProfiles;               ///< QUARLO_USER_PROFILES: folder of the user's
    ControlKind control = ControlKind::Sim; ///< QUARLO_NC: sim, linuxcnc
    std::string controlHelper;              ///< QUARLO_NC_HELPER: program that speaks to LinuxCNC
    std::string authorities;                ///< QUARLO_NET_CA_FILE: certificates also trusted
    std::string proxy;                      ///< QUARLO_NET_PROXY: URL of a proxy, empty for none
    int32_t connectTimeout = 10000;         ///< QUARLO_NET_CONNECT_TIMEOUT: milliseconds
    int32_t idleTimeout = 30000;         ///< QUARLO_NET_IDLE_TIMEOUT: milliseconds without a byte
    int32_t redirects = 10;              ///< QUARLO_NET_REDIRECTS: at most, 0 to 50
    int32_t codePage = G_CODE_PAGE_UTF8; ///< QUARLO_CODE_PAGE: UTF-8, CP932, GBK, CP1252
    std::string panelFont;               ///< QUARLO_PANEL_FONT: file of the panel face
    std::string japaneseFont;            ///< QUARLO_JAPANESE_FONT: file of ideographs
    std::string chineseFont;             ///< QUARLO_CHINESE_FONT: file of ideographs
    int32_t glyphCache = 2048;           ///< QUARLO_GLYPH_CACHE: KiB
    bool wholeStrings = true;            ///< QUARLO_WHOLE_STRINGS: yes, no
    int32_t memoryLimit = 0; ///< QUARLO_MEMORY_LIMIT: bytes of a memory space, 0 for no limit
};

/// Reads the settings. A value that makes no sense is named in one line, and the default holds; so
/// is a name in the file that means nothing.
Settings readSettings(const SettingSource& source);

} // namespace gpi
