"""An emulated machine with screens, and a shell in it."""

import json
import os
import select
import socket
import subprocess
import time

PATIENCE = 300  # seconds for anything that the machine is asked


class Machine:
    """Runs while it is used in a `with` statement."""

    def __init__(self, kernel, initrd, folder, width, height):
        self.shell_path = os.path.join(folder, "shell.socket")
        self.monitor_path = os.path.join(folder, "monitor.socket")
        self.folder = folder
        self.command = [
            "qemu-system-x86_64", "-accel", "tcg", "-cpu", "max", "-m", "768",
            "-kernel", kernel, "-initrd", initrd,
            "-append", "console=ttyS0 quiet panic=1",
            "-vga", "none", "-device", f"VGA,edid=on,xres={width},yres={height}",
            "-device", "virtio-tablet-pci",
            "-display", "none", "-nic", "none", "-no-reboot",
            "-serial", "file:" + os.path.join(folder, "kernel.log"),
            "-serial", f"unix:{self.shell_path},server=on,wait=on",
            "-qmp", f"unix:{self.monitor_path},server=on,wait=off",
        ]
        self.heard = b""

    def __enter__(self):
        self.process = subprocess.Popen(self.command, stdin=subprocess.DEVNULL)
        try:
            self.shell = self.connect(self.shell_path)
            self.monitor = self.connect(self.monitor_path).makefile("rw")
            self.answer()  # its greeting
            self.ask("qmp_capabilities")
            self.hear("ready\n")
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()

    def connect(self, path):
        connection = socket.socket(socket.AF_UNIX)
        deadline = time.monotonic() + PATIENCE
        while True:
            try:
                connection.connect(path)
                return connection
            except (FileNotFoundError, ConnectionRefusedError):
                if time.monotonic() > deadline or self.process.poll() is not None:
                    raise
                time.sleep(0.05)  # the emulator makes its sockets in its own time

    # The shell.

    def say(self, line):
        self.shell.sendall(line.encode() + b"\n")

    def hear(self, text):
        """Waits for a text of the machine. What came before it."""
        deadline = time.monotonic() + PATIENCE
        wanted = text.encode()
        while wanted not in self.heard:
            ready, _, _ = select.select([self.shell], [], [], deadline - time.monotonic())
            more = self.shell.recv(65536) if ready else b""
            if not more:
                raise RuntimeError(f"waited for {text!r}, heard {self.heard!r}")
            self.heard += more
        before, _, self.heard = self.heard.partition(wanted)
        return before.decode()

    def run(self, command):
        """Runs a command to its end. What it printed; an exception when it failed."""
        self.say(command + '; echo "=""$?="')
        printed = self.hear("=")
        status = int(self.hear("="))
        if status != 0:
            raise RuntimeError(f"{command}: status {status}, {printed}")
        return printed.replace("\r", "").strip()

    # The screen.

    def answer(self):
        while True:
            message = json.loads(self.monitor.readline())
            if "event" not in message:
                return message

    def ask(self, what, **arguments):
        json.dump({"execute": what, "arguments": arguments}, self.monitor)
        self.monitor.flush()
        answer = self.answer()
        if "error" in answer:
            raise RuntimeError(answer["error"])

    def screen(self):
        """What the screen shows: width, height, and a byte for each of red, green, blue."""
        path = os.path.join(self.folder, "screen.ppm")
        self.ask("stop")  # what the screen shows at one moment
        self.ask("screendump", filename=path)
        self.ask("cont")
        with open(path, "rb") as file:
            kind, width, height, most = file.readline(), *file.readline().split(), file.readline()
            assert (kind, most) == (b"P6\n", b"255\n")
            return int(width), int(height), file.read()

    # The keyboard, the mouse and the tablet in front of it.

    def send(self, *events):
        self.ask("input-send-event",
                 events=[{"type": kind, "data": data} for kind, data in events])

    def press(self, key):
        for down in (True, False):
            self.send(("key", {"down": down, "key": {"type": "qcode", "data": key}}))

    def move_mouse(self, columns, rows):
        self.send(("rel", {"axis": "x", "value": columns}), ("rel", {"axis": "y", "value": rows}))

    def point(self, across, down):
        """Puts the tablet's pen somewhere on the screen: 0 to 1 from the left and from the top."""
        self.send(("abs", {"axis": "x", "value": int(across * 0x8000)}),
                  ("abs", {"axis": "y", "value": int(down * 0x8000)}))

    def click(self):
        for down in (True, False):
            self.send(("btn", {"down": down, "button": "left"}))
