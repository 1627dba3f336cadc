"""Holds quarlo.raw to the headers: it is what generate_raw.py writes today, it has all that is
exported, and its records lie in memory as the C compiler lays them out.

    layout_test.py SOURCE_FOLDER C_COMPILER
"""
import ctypes
import pathlib
import subprocess
import sys
import tempfile
import unittest

from quarlo import raw

source = pathlib.Path(sys.argv[1])
compiler = sys.argv[2]

records = {
    name: kind for name, kind in vars(raw).items()
    if isinstance(kind, type) and issubclass(kind, ctypes.Structure) and hasattr(kind, "_fields_")
}


def layout_in_c():
    """Lines of record, field, offset and size; the field of a whole record is a dash."""
    lines = ["#include <gpi/host.h>", "#include <quarlo/grf_file.h>", "#include <stddef.h>",
             "#include <stdio.h>", "int main(void) {"]
    for name, kind in records.items():
        lines.append(f'printf("{name} - 0 %zu\\n", sizeof({name}));')
        for field, _ in kind._fields_:
            lines.append(f'printf("{name} {field} %zu %zu\\n", offsetof({name}, {field}), '
                         f"sizeof((({name}*)0)->{field}));")
    text = "\n".join([*lines, "}"])
    with tempfile.TemporaryDirectory() as folder:
        program = f"{folder}/layout"
        subprocess.run(
            [compiler, "-std=c11", f"-I{source}/include", "-x", "c", "-", "-o", program],
            input=text, encoding="utf-8", check=True,
        )
        return subprocess.run([program], capture_output=True, encoding="utf-8", check=True).stdout


class Raw(unittest.TestCase):
    def test_is_what_the_headers_give(self):
        written = subprocess.run(
            [sys.executable, source / "python/generate_raw.py", source / "include"],
            capture_output=True, encoding="utf-8", check=True,
        ).stdout
        kept = (source / "python/quarlo/raw.py").read_text(encoding="utf-8")
        self.assertTrue(written == kept, "write it anew: "
                        "python3 python/generate_raw.py include python/quarlo/raw.py")

    def test_has_every_function(self):
        names = (source / "src/exports.txt").read_text(encoding="utf-8").split()
        self.assertEqual(len(names), 264)
        for name in names:
            with self.subTest(name):
                function = getattr(raw, name)
                self.assertIn(f"{name}(", function.__doc__)
                arguments = function.__doc__.partition("(")[2].rstrip(")")
                count = 0 if arguments == "void" else arguments.count(",") + 1
                self.assertEqual(len(function.argtypes), count)

    def test_lays_records_out_as_c_does(self):
        self.assertGreater(len(records), 30)
        lines = layout_in_c().splitlines()
        self.assertEqual(len(lines), sum(1 + len(kind._fields_) for kind in records.values()))
        for line in lines:
            name, field, offset, size = line.split()
            with self.subTest(f"{name}.{field}"):
                kind = records[name]
                if field == "-":
                    self.assertEqual(ctypes.sizeof(kind), int(size))
                else:
                    place = getattr(kind, field)
                    self.assertEqual((place.offset, place.size), (int(offset), int(size)))

    def test_has_the_values_of_constants(self):
        self.assertEqual(raw.G_NO_COLOR, 0xFFFFFFFF)
        self.assertEqual(raw.G_FILL_GRADATION, -4)
        self.assertEqual(raw.G_GRF_END, 4)
        self.assertEqual(raw.GPI_KEY_F24, 0x87)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
