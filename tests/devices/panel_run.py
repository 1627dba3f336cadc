"""A scripted run of the operator panel, told line by line what to do, here and elsewhere."""

import os
import subprocess
import tempfile
import zlib

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
SIZE = (640, 480)
FONT = "/usr/share/fonts/truetype/vlgothic/VL-Gothic-Regular.ttf"


def steps(script):
    """The lines of a script that do something, but for its pictures."""
    with open(f"{ROOT}/tests/panel/scripts/{script}.txt", encoding="utf-8") as file:
        lines = [line.split("#")[0].strip() for line in file]
    return [line for line in lines if line and not line.startswith("shot")]


def settings(display, form):
    """Of a display in front of the panel's own files, as the shell has them."""
    return (f"QUARLO_CONFIG=/dev/null QUARLO_NC=sim QUARLO_DISPLAY={display} QUARLO_FORMAT={form} "
            f"QUARLO_WIDTH={SIZE[0]} QUARLO_HEIGHT={SIZE[1]} QUARLO_PROFILES=profiles "
            "QUARLO_USER_PROFILES=/tmp QUARLO_FILES=programs "
            f"QUARLO_PANEL_FONT={FONT} QUARLO_JAPANESE_FONT={FONT} QUARLO_CHINESE_FONT={FONT}")


def checksums(panel, script, form, language):
    """What the panel shows after each step, in memory on this computer."""
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "script")
        with open(path, "w", encoding="utf-8") as file:
            file.writelines(f"{line}\nchecksum {at}\n" for at, line in enumerate(steps(script)))
        environment = dict(word.split("=") for word in settings("memory", form).split())
        printed = subprocess.run(
            [panel, "--language", language, "--script", path], check=True, cwd=f"{ROOT}/apps/panel",
            env={**os.environ, **environment, "QUARLO_USER_PROFILES": folder},
            stdout=subprocess.PIPE, text=True).stdout
    return [line.split()[1] for line in printed.splitlines()]


def checksum(rgb):
    return f"{zlib.crc32(rgb):08x}"
