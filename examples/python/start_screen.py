"""The first screen of the panel (apps/panel): its texts, its look, and the machine behind it.

    start_screen.py ICONS [LANGUAGE]

ICONS is a folder of .grf files, which the build makes in build/release/apps/panel/panel_icons;
LANGUAGE is english, japanese or chinese. The first two keys, or F1 and F2, switch the drives on and
take the reference; Escape ends.
"""
import pathlib
import sys
import time
from typing import NamedTuple

from quarlo import Display, Error, Font, Image, Key, KeyDown, Press, Rect, Tick
from quarlo import machine, profile, raw

PROFILES = pathlib.Path(__file__).parents[2] / "apps/panel/profiles"

DESK, CARD, CARD_EDGE, CARD_TITLE = 0xDCE2E8, 0xFFFFFF, 0xB4BEC8, 0x4A5A6A
TEXT, BAR, BAR_TEXT, BAR_FAINT = 0x1C242C, 0x1E2C3C, 0xF4F8FC, 0x9CB0C4
KEY, KEY_EDGE, ACCENT, MESSAGE = 0xEEF1F4, 0x98A4B0, 0x2F6FB0, 0xC6D0DA
GOOD, CAUTION, FAULT, QUIET, SIGN_TEXT = 0x2E8448, 0xC88A10, 0xC03828, 0x4C6074, 0xFFFFFF
RINGS = (ACCENT, 0x58D8F0, 0x58D878, 0xFFD840)

KEYS = (
    ("PowerUp", "lock"), ("Reference", "home"), ("Position", "handwheel"), ("Program", "program"),
    ("CycleStart", "cycle-start"), ("Reset", "reset"), ("Language", "language"), ("Help", "help"),
    ("EmergencyKey", "emergency-stop"), ("Screens", "screens"),
)
COMMANDS = {  # of the keys that do something here
    0: (raw.G_NC_SYSTEM_POWER, 1),
    1: (raw.G_NC_SYSTEM_COMMAND, raw.G_NC_COMMAND_HOME),
}
MODES = {raw.G_NC_MODE_AUTO: "ModeAuto", raw.G_NC_MODE_MDI: "ModeMdi"}
STATES = {
    raw.G_NC_STATE_IDLE: ("StateIdle", QUIET), raw.G_NC_STATE_RUNNING: ("StateRunning", GOOD),
    raw.G_NC_STATE_HELD: ("StateHeld", CAUTION), raw.G_NC_STATE_ALARM: ("StateAlarm", FAULT),
}


class Measures(NamedTuple):
    """Pixels."""

    label: int  # heights of the fonts
    text: int
    title: int
    margin: int
    padding: int
    radius: int
    status: int  # heights of the strips
    message: int
    keys: int


def measures_for(width, height):
    if width >= 1024 and height >= 768:
        return Measures(20, 24, 104, 10, 10, 5, 66, 34, 70)
    if width >= 800 and height >= 600:
        return Measures(16, 20, 80, 8, 8, 4, 56, 28, 62)
    return Measures(14, 16, 64, 6, 6, 3, 48, 24, 56)


class Machine(NamedTuple):
    """What the screen shows of it."""

    mode: int
    state: int
    emergency: bool
    power: bool
    homed: bool
    program: str
    values: str

    @classmethod
    def read(cls):
        system = machine.system
        override = [machine.value(raw.G_NC_OVERRIDE, number) for number in range(3)]
        feed, spindle = machine.value(raw.G_NC_FEED), machine.value(raw.G_NC_SPINDLE)
        inches = system(raw.G_NC_SYSTEM_UNITS)
        return cls(
            system(raw.G_NC_SYSTEM_MODE), system(raw.G_NC_SYSTEM_STATE),
            bool(system(raw.G_NC_SYSTEM_EMERGENCY)), bool(system(raw.G_NC_SYSTEM_POWER)),
            system(raw.G_NC_SYSTEM_HOMED) & 7 == 7, machine.text(raw.G_NC_PROGRAM_NAME),
            (f"F{feed / 25.4:.1f}" if inches else f"F{feed:.0f}") + f"  {override[0]:.0f}%\n"
            f"S{spindle:.0f}  {override[2]:.0f}%\n"
            f"T{machine.value(raw.G_NC_TOOL):.0f}\n{'inch' if inches else 'mm'}",
        )


class StartScreen:
    def __init__(self, display, icons, language="english"):
        self.display = display
        self.language = language
        self.size = measures_for(display.width, display.height)
        self.icons = {name: Image(pathlib.Path(icons) / f"{name}.grf") for _, name in KEYS}
        self.status, rest = display.area.cut_top(self.size.status)
        self.keys, rest = rest.cut_bottom(self.size.keys)
        self.message, self.work = rest.cut_bottom(self.size.message)
        raw.GFSetGBFontFlag(language == "chinese")

    def word(self, key):
        return profile.text(f"{self.language}.ini", "Texts", key, key)

    def text(self, rect, text, color, size=None, align="left"):
        self.display.text(rect, text, color, font=Font(size=size or self.size.text), align=align)

    def plate(self, rect, color, edge=None):
        self.display.rect(rect, fill=color, outline=color if edge is None else edge,
                          radius=self.size.radius)

    def sign(self, rect, text, color):
        self.plate(rect, color)
        self.text(rect, text, SIGN_TEXT, self.size.label, "centre")

    def draw(self, now):
        self.display.fill(self.display.area, DESK)
        self.draw_status(now)
        head, steps = self.work.inset(self.size.margin).cut_top(
            self.work.inset(self.size.margin).height * 2 // 5)
        self.draw_head(head)
        self.draw_steps(steps.cut_top(self.size.margin)[1], now)
        self.display.fill(self.message, MESSAGE)
        self.display.fill(self.keys, BAR)
        for number in range(len(KEYS)):
            self.draw_key(number)
        self.display.show()

    def draw_status(self, now):
        self.display.fill(self.status, BAR)
        cell = self.size.text // 2
        left, top, right, bottom = self.status.inset(2)
        upper = Rect(left + self.size.margin, top, right - self.size.margin, bottom)
        lower, upper = upper.cut_bottom(upper.height // 2)
        clock, upper = upper.cut_right(8 * cell)
        title, upper = upper.cut_left(24 * cell)
        self.text(clock, time.strftime("%H:%M:%S", time.gmtime(raw.GETime(None))), BAR_TEXT,
                  align="right")
        self.text(title, self.word("Start"), BAR_TEXT)
        self.text(upper.cut_right(2 * cell)[1], pathlib.PurePosixPath(now.program).name, BAR_FAINT,
                  align="right")
        state = ("StateEmergency", FAULT) if now.emergency else STATES.get(
            now.state, ("StateOff", QUIET))
        for word, color in ((MODES.get(now.mode, "ModeManual"), ACCENT), state):
            rect, lower = lower.cut_left(11 * cell)
            self.sign(rect, self.word(word), color)
            lower = lower.cut_left(cell)[1]
        unit, lower = lower.cut_right(4 * cell)
        tool, lower = lower.cut_right(5 * cell)
        feed, spindle = lower.cut_left(lower.width // 2)
        for rect, value in zip((feed, spindle, tool, unit), now.values.split("\n")):
            self.text(rect, value, BAR_TEXT, align="right")

    def draw_head(self, head):
        self.plate(head, BAR)
        inside = head.inset(2 * self.size.padding)
        mark, _ = inside.cut_left(inside.height)
        self.draw_mark(mark)
        control, name = inside._replace(left=mark.right + 4 * self.size.padding).cut_bottom(
            2 * self.size.text)
        self.text(name, self.word("ProductName"), BAR_TEXT, self.size.title)
        self.text(control, machine.text(raw.G_NC_CONTROL_NAME), BAR_FAINT)

    def draw_mark(self, area):
        """Rings, and the spiral of a tool on its way in."""
        wide = max(2, area.height // 24)
        border, start = wide, 90
        for color in RINGS:
            self.display.arc(area.inset(border), start, start - 60, color, width=wide)
            border, start = border + area.height // 9, start + 70
        self.display.oval(area.inset(border), fill=BAR_TEXT)

    def draw_steps(self, card, now):
        size = self.size
        steps = (("StepControl", True), ("StepEmergency", not now.emergency),
                 ("StepPower", now.power), ("StepReference", now.homed),
                 ("StepProgram", bool(now.program)))
        self.plate(card, CARD, CARD_EDGE)
        title, content = card.inset(size.padding).cut_top(size.label)
        self.text(title, self.word("StartSteps"), CARD_TITLE, size.label)
        content = content.cut_top(size.padding // 2)[1]
        height = content.height // len(steps)
        all_before = True
        for word, done in steps:
            row, content = content.cut_top(height)
            sign, row = row.cut_left(12 * (size.text // 2))
            border = (height - size.label - 6) // 2
            kind, color = ("Done", GOOD) if done else ("Next", CAUTION) if all_before else (
                "Waiting", QUIET)
            self.sign(sign._replace(top=sign.top + border, bottom=sign.bottom - border),
                      self.word(kind), color)
            self.text(row.cut_left(size.text // 2)[1], self.word(word), TEXT)
            all_before = all_before and done

    def place(self, number):
        left, right = (self.keys.left + edge * self.keys.width // len(KEYS)
                       for edge in (number, number + 1))
        return self.keys._replace(left=left, right=right - 1)

    def draw_key(self, number):
        word, name = KEYS[number]
        face = self.place(number).inset(1)
        self.plate(face, KEY, KEY_EDGE)
        label, face = face.cut_bottom(self.size.label + 4)
        icon = self.icons[name]
        self.display.image(icon, face.left + (face.width - icon.width) // 2,
                           face.bottom - icon.height + 1)
        self.text(label, self.word(word), TEXT, self.size.label, "centre")

    def key_of(self, event):
        match event:
            case KeyDown(key=key) if Key.F1 <= key < Key.F1 + len(KEYS):
                return key - Key.F1
            case Press(x=x, y=y):
                return next((n for n in range(len(KEYS)) if (x, y) in self.place(n)), None)
        return None

    def run(self):
        self.draw(Machine.read())
        self.display.every(0.2)
        for event in self.display.events():
            if event == KeyDown(Key.ESCAPE):
                break
            command = COMMANDS.get(self.key_of(event))
            if command:
                try:
                    machine.set_system(*command)
                except Error as error:
                    print(error, file=sys.stderr)
            if command or isinstance(event, Tick):
                self.draw(Machine.read())


if __name__ == "__main__":
    with Display(profiles=PROFILES) as panel:
        StartScreen(panel, *sys.argv[1:]).run()
