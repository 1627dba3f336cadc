// Runs inside the emulated machine: shows pictures on its screens, and tells about them.
#include "display.h"
#include "input/message_reader.h"
#include "page.h"
#include "sheet.h"

#include <gpi/host.h>
#include <quarlo/quarlo.h>

#include <fcntl.h>
#include <linux/fb.h>
#include <linux/kd.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr const char* kUsage =
    R"(usage: screen_probe show SHEET    shows a sheet of the gallery until a line is typed
       screen_probe frames        shows one colour after the other until a line is typed
       screen_probe input         prints what keys and pointer do, until Q is pressed
       screen_probe console       tells whether the console is in text or graphics mode
       screen_probe mode DEVICE [WIDTH HEIGHT BITS]
                                  tells, or first sets, what a frame buffer's memory looks like
)";

/// Takes no more than the line: what follows it is for the shell that reads the same input.
void waitForLine() {
    std::cout << "shown" << std::endl;
    char byte = 0;
    while (read(STDIN_FILENO, &byte, 1) == 1 && byte != '\n') {
    }
}

int show(const std::string& name) {
    gallery::Display display;
    if (!display.ready()) {
        return EXIT_FAILURE;
    }
    for (size_t at = 0; at < gallery::sheets().size(); ++at) {
        if (gallery::sheets()[at].name == name) {
            display.show(at);
            waitForLine();
            return EXIT_SUCCESS;
        }
    }
    return EXIT_FAILURE;
}

/// Fills the display strip by strip, and marks the end of each frame.
void drawFrames(GDrawHandle* handle, const std::atomic<bool>& running) {
    constexpr int16_t kStrip = 20;
    const GVram& surface = *GDGetVram(handle);
    for (uint32_t color = 0; running; color += 0x1F3D5B) {
        GDSetPenColor(handle, G_NO_COLOR);
        GDSetFillColor(handle, color & 0xFFFFFF, color & 0xFFFFFF);
        for (int16_t top = 0; top < surface.height; top = static_cast<int16_t>(top + kStrip)) {
            const GRect strip{0, top, static_cast<int16_t>(surface.width - 1),
                              static_cast<int16_t>(top + kStrip - 1)};
            GDDrawRect(handle, &strip);
            GDFlushScreen(handle, 0, top, surface.width, kStrip);
        }
        GPIHostEndFrame();
    }
}

int frames() {
    GetGPIFunction();
    if (GDInitPlatform(0) == 0) {
        return EXIT_FAILURE;
    }
    GDrawHandle* const handle = GDOpenDrawHandle(0, 0);
    GPIHostEndFrame(); // whole frames only from here on
    std::atomic<bool> running = true;
    std::thread drawing([&] { drawFrames(handle, running); });
    waitForLine();
    running = false;
    drawing.join();
    GDCloseDrawHandle(handle);
    GDQuitPlatform();
    return EXIT_SUCCESS;
}

int input() {
    GetGPIFunction();
    if (GDInitPlatform(0) == 0) {
        return EXIT_FAILURE;
    }
    std::cout << "shown" << std::endl;
    GMessage message{};
    while (message.param1 != 'Q' && GPIHostWaitMessage(&message, -1) != 0) {
        std::cout << gpi::test::textOf(message) << std::endl;
    }
    GDQuitPlatform();
    return EXIT_SUCCESS;
}

int console() {
    const int device = open("/dev/tty0", O_RDWR | O_CLOEXEC);
    int mode = -1;
    if (ioctl(device, KDGETMODE, &mode) != 0) {
        return EXIT_FAILURE;
    }
    std::cout << (mode == KD_TEXT ? "text" : "graphics") << std::endl;
    return EXIT_SUCCESS;
}

std::ostream& operator<<(std::ostream& out, const fb_bitfield& channel) {
    return out << ' ' << channel.offset << ' ' << channel.length;
}

int mode(const std::vector<std::string>& words) {
    const int device = open(words[1].c_str(), O_RDWR | O_CLOEXEC);
    fb_var_screeninfo mode{};
    fb_fix_screeninfo fixed{};
    if (ioctl(device, FBIOGET_VSCREENINFO, &mode) != 0) {
        return EXIT_FAILURE;
    }
    if (words.size() == 5) {
        mode.xres = mode.xres_virtual = static_cast<uint32_t>(std::stoul(words[2]));
        mode.yres = mode.yres_virtual = static_cast<uint32_t>(std::stoul(words[3]));
        mode.bits_per_pixel = static_cast<uint32_t>(std::stoul(words[4]));
        if (ioctl(device, FBIOPUT_VSCREENINFO, &mode) != 0) {
            return EXIT_FAILURE;
        }
    }
    if (ioctl(device, FBIOGET_FSCREENINFO, &fixed) != 0) {
        return EXIT_FAILURE;
    }
    std::cout << mode.xres << ' ' << mode.yres << ' ' << mode.bits_per_pixel << ' '
              << fixed.line_length << mode.red << mode.green << mode.blue << mode.transp
              << std::endl;
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    const std::string command = words.empty() ? "" : words[0];
    if (command == "show" && words.size() == 2) {
        return show(words[1]);
    }
    if (command == "frames") {
        return frames();
    }
    if (command == "input") {
        return input();
    }
    if (command == "console") {
        return console();
    }
    if (command == "mode" && (words.size() == 2 || words.size() == 5)) {
        return mode(words);
    }
    std::cerr << kUsage;
    return EXIT_FAILURE;
}
