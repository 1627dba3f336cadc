"""Shows the display on the screens of an emulated machine, and compares what they show with what
the same program draws into files on this computer.

    run.py KERNEL INITRD PICTURES FOLDER PANEL

PICTURES holds a folder for each format of the display, and in it a PNG file of each sheet. PANEL is
the operator panel for this computer.
"""

import hashlib
import subprocess
import sys
import time

import panel_run
from machine import PATIENCE, Machine

FORMATS = ("8", "555", "565", "24")
SHEETS = ("gradations", "pies")
SCREEN = (1280, 1024)  # the picture is shown twice as large there, with black above and below
PICTURE = (640, 480)


def picture(folder, form, sheet):
    """The bytes red, green, blue of a sheet."""
    return subprocess.run(["convert", f"{folder}/{form}/{sheet}.png", "-depth", "8", "rgb:-"],
                          check=True, stdout=subprocess.PIPE).stdout


def centred(rgb, screen):
    """Rows of a screen with the picture in its middle, enlarged by a whole factor."""
    width, height = PICTURE
    factor = min(screen[0] // width, screen[1] // height)
    left = (screen[0] - width * factor) // 2
    top = (screen[1] - height * factor) // 2
    black = bytes(3)
    rows = [black * screen[0]] * screen[1]
    for y in range(height):
        pixels = [rgb[3 * at:3 * at + 3] for at in range(y * width, (y + 1) * width)]
        row = black * left + b"".join(pixel * factor for pixel in pixels)
        row += black * (screen[0] - left - width * factor)
        for copy in range(factor):
            rows[top + y * factor + copy] = row
    return rows


class Layout:
    """What a frame buffer device tells about its memory."""

    def __init__(self, words):
        numbers = [int(word) for word in words.split()]
        self.size = tuple(numbers[0:2])
        self.bits, self.stride = numbers[2:4]
        self.channels = list(zip(numbers[4::2], numbers[5::2]))

    def packed(self, row):
        """A row of colours as the device has it; padding is not part of it."""
        *channels, (alpha, alpha_bits) = self.channels
        opaque = ((1 << alpha_bits) - 1) << alpha
        known = {}
        for at in range(0, len(row), 3):
            color = row[at:at + 3]
            if color not in known:
                pixel = opaque
                for value, (offset, bits) in zip(color, channels):
                    pixel |= value >> (8 - bits) << offset
                known[color] = pixel.to_bytes(self.bits // 8, "little")
        return b"".join(known[row[at:at + 3]] for at in range(0, len(row), 3))


class Checks:
    def __init__(self, machine, pictures, panel_here):
        self.machine = machine
        self.pictures = pictures
        self.panel_here = panel_here
        self.failed = 0

    def check(self, what, right):
        print("ok  " if right else "FAIL", what, flush=True)
        self.failed += not right

    def shown(self, display, form, sheet, device=""):
        """Starts the program on a screen; it shows the sheet when this returns."""
        self.machine.say(f"QUARLO_DISPLAY={display} QUARLO_SCREEN={device} QUARLO_FORMAT={form} "
                         f"QUARLO_WIDTH={PICTURE[0]} QUARLO_HEIGHT={PICTURE[1]} "
                         f"/bin/screen_probe show {sheet}")
        self.machine.hear("shown")

    def end(self):
        self.machine.say("")
        self.machine.run("true")

    def on_screen(self, sheet, form):
        width, height, seen = self.machine.screen()
        rows = centred(picture(self.pictures, form, sheet), (width, height))
        return (width, height) == SCREEN and seen == b"".join(rows)

    def picture_on_screen(self):
        """The picture in the middle of the screen at its own size; None when the rest is wrong."""
        width, height, seen = self.machine.screen()
        factor = min(width // PICTURE[0], height // PICTURE[1])
        left = (width - PICTURE[0] * factor) // 2
        top = (height - PICTURE[1] * factor) // 2
        rgb = bytearray()
        for y in range(PICTURE[1]):
            row = seen[3 * ((top + y * factor) * width + left):]
            pixels = bytearray(3 * PICTURE[0])
            for channel in range(3):
                pixels[channel::3] = row[channel:3 * PICTURE[0] * factor:3 * factor]
            rgb += pixels
        return bytes(rgb) if b"".join(centred(rgb, (width, height))) == seen else None

    def panel(self, display, script, form, language, device=""):
        """Drives the panel step by step, and looks at what the screen shows after each."""
        wanted = panel_run.checksums(self.panel_here, script, form, language)
        self.machine.run("rm -f script; mkfifo script")
        self.machine.say(f"QUARLO_SCREEN={device} {panel_run.settings(display, form)} panel "
                         f"--language {language} --script script & exec 3>script")
        seen = []
        for at, line in enumerate(panel_run.steps(script)):
            self.machine.say(f"echo '{line}' >&3; echo 'checksum {at}' >&3")
            self.machine.hear(f"{at} ")
            self.machine.hear("\n")
            for _ in range(20 if display == "fbdev" else 1):  # its driver takes a moment
                shown = self.picture_on_screen()
                if shown and panel_run.checksum(shown) == wanted[at]:
                    break
            seen.append(panel_run.checksum(shown) if shown else None)
        self.machine.run("exec 3>&-; wait $!")
        same = sum(a == b for a, b in zip(seen, wanted))
        self.check(f"{display} shows the panel's run {script} of {form} bits, {same} of "
                   f"{len(wanted)} pictures, {len(set(wanted))} different ones", seen == wanted)

    def input(self):
        devices = ("Translated Set 2 keyboard", "Mouse", "Virtio Tablet")
        # The mouse is found some time after its driver has come.
        self.until(lambda: all(name in self.machine.run("cat /sys/class/input/input*/name")
                               for name in devices))
        for display, device in (("drm", ""), ("fbdev", self.device("bochs"))):
            self.machine.say(f"QUARLO_SCREEN={device} {panel_run.settings(display, '24')} "
                             "screen_probe input")
            self.machine.hear("shown")
            self.machine.press("a")
            self.machine.hear("key down 65\nkey up 65\n")
            self.machine.move_mouse(20, 30)
            self.machine.hear("move 330,255\n")
            self.machine.click()
            self.machine.hear("left down 330,255 held 1\nleft up 330,255\n")
            self.machine.point(0.25, 0.5)
            self.machine.hear("move 160,240\n")
            white = any(self.color(320 + 2, 512 + 4) == b"\xff\xff\xff" for _ in range(20))
            self.check(f"{display} shows an arrow where the pointer is", white)
            self.machine.point(0.75, 0.75)  # a device tells of changes only
            self.machine.hear("move 480,368\n")
            self.machine.press("q")
            self.machine.run("true")
            self.check(f"{display} hands on keys, mouse and tablet", True)

    @staticmethod
    def until(condition):
        """Waits until something holds that nothing tells of."""
        deadline = time.monotonic() + PATIENCE
        while not condition():
            if time.monotonic() > deadline:
                raise RuntimeError("waited in vain")

    def color(self, x, y):
        width, _, seen = self.machine.screen()
        return seen[3 * (y * width + x):][:3]

    def panel_by_keys(self):
        self.machine.say(f"{panel_run.settings('drm', '565')} panel; echo panel ended $?")
        self.until(lambda: self.color(640, 512) != bytes(3))
        self.machine.press("q")
        self.machine.hear("panel ended 0")
        self.check("Q on the keyboard ends the panel", True)

    def drm(self):
        for form in FORMATS:
            for sheet in SHEETS:
                self.shown("drm", form, sheet)
                self.check(f"drm shows {sheet} of a display of {form} bits",
                           self.on_screen(sheet, form))
                self.end()

    def fbdev_on_screen(self):
        device = self.device("bochs")
        for sheet in SHEETS:
            self.shown("fbdev", "565", sheet, device)
            # The driver brings what is in memory to its device a moment later.
            right = any(self.on_screen(sheet, "565") for _ in range(20))
            self.check(f"fbdev shows {sheet} on the screen", right)
            self.end()

    def fbdev_layouts(self):
        device = self.device("Virtual FB")
        for bits, size in ((16, (640, 480)), (24, (640, 480)), (32, (648, 500)),
                           (16, (1280, 960))):
            layout = Layout(self.machine.run(
                f"/bin/screen_probe mode {device} {size[0]} {size[1]} {bits}"))
            self.check(f"the device takes {size} at {bits} bits",
                       (layout.size, layout.bits) == (size, bits))
            for form in FORMATS:
                self.shown("fbdev", form, SHEETS[0], device)
                rows = centred(picture(self.pictures, form, SHEETS[0]), size)
                packed = b"".join(map(layout.packed, rows))
                assert layout.stride * size[1] == len(packed), "the device has no padding"
                self.end()
                sum_there = self.machine.run(f"head -c {len(packed)} {device} | md5sum")
                self.check(f"fbdev fills {bits} bits, red from bit {layout.channels[0][0]} on, "
                           f"from a display of {form} bits",
                           sum_there.split()[0] == hashlib.md5(packed).hexdigest())

    def device(self, name):
        for number in range(4):
            path = f"/sys/class/graphics/fb{number}/name"
            if name in self.machine.run(f"cat {path} 2>/dev/null || true"):
                return f"/dev/fb{number}"
        raise RuntimeError(f"there is no frame buffer named {name}")

    def whole_frames(self):
        self.machine.say("QUARLO_DISPLAY=drm QUARLO_FORMAT=565 QUARLO_WIDTH=1280 "
                         "QUARLO_HEIGHT=1024 /bin/screen_probe frames")
        self.machine.hear("shown")
        colors = set()
        torn = 0
        while len(colors) < 20:
            _, _, seen = self.machine.screen()
            colors.add(seen[:3])
            torn += seen != seen[:3] * (len(seen) // 3)
        self.end()
        self.check("drm shows whole frames only", torn == 0)

    def console(self):
        mode = lambda: self.machine.run("/bin/screen_probe console")
        for display in ("drm", "fbdev"):
            self.check("the console is in text mode at first", mode() == "text")
            for ending in ("an end", "TERM", "KILL", "SEGV"):
                self.machine.run("rm -f keys; mkfifo keys")
                self.machine.say(f"QUARLO_DISPLAY={display} QUARLO_WIDTH=640 QUARLO_HEIGHT=480 "
                                 "/bin/screen_probe show pies <keys & exec 3>keys")
                self.machine.hear("shown")
                during = mode()
                self.machine.run("echo >&3" if ending == "an end" else f"kill -{ending} $!")
                self.machine.run("exec 3>&-; wait $! || true")
                # The console gets its text back a moment after a process that was killed.
                after = self.machine.run("for try in $(seq 1000); do "
                                         "mode=$(/bin/screen_probe console); "
                                         "[ $mode = graphics ] || break; done; echo $mode")
                self.check(f"{display} gives the console back after {ending}",
                           (during, after) == ("graphics", "text"))


def main():
    kernel, initrd, pictures, folder, panel = sys.argv[1:]
    with Machine(kernel, initrd, folder, *SCREEN) as machine:
        checks = Checks(machine, pictures, panel)
        checks.input()
        checks.panel_by_keys()
        checks.panel("drm", "tour", "8", "japanese")
        checks.panel("fbdev", "touch", "555", "english", checks.device("bochs"))
        checks.drm()
        checks.whole_frames()
        checks.fbdev_on_screen()
        checks.fbdev_layouts()
        checks.console()
    return 1 if checks.failed else 0


sys.exit(main())
