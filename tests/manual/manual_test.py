"""Looks at the manual: whether the headers describe all that they declare, and whether each page
tells what its reader came for.

    manual_test.py XML_FOLDER MAN_FOLDER SOURCE_FOLDER
"""
import pathlib
import re
import subprocess
import sys
import unittest
import xml.etree.ElementTree as ElementTree

xml_folder, man_folder, source = (pathlib.Path(path) for path in sys.argv[1:4])


def plain(element):
    return " ".join("".join(element.itertext()).split()) if element is not None else ""


def is_described(element):
    """Whether there is a comment, before a declaration or behind it."""
    return any(
        plain(element.find(place))
        for place in ("briefdescription", "detaileddescription", "inbodydescription")
    )


def described_parameters(function):
    return {
        plain(name)
        for item in function.iterfind(".//parameterlist[@kind='param']/parameteritem")
        if plain(item.find("parameterdescription"))
        for name in item.iter("parametername")
    }


compounds = [
    ElementTree.parse(path).getroot().find("compounddef")
    for path in sorted(xml_folder.glob("*.xml"))
    if path.name not in ("index.xml", "Doxyfile.xml")
]
compounds = [compound for compound in compounds if compound.get("kind") in ("file", "struct")]
members = [member for compound in compounds for member in compound.iter("memberdef")]
functions = [member for member in members if member.get("kind") == "function"]


class Headers(unittest.TestCase):
    def test_describe_every_declaration(self):
        self.assertGreater(len(members), 700)
        for element in compounds + members:
            name = plain(element.find("name")) or plain(element.find("compoundname"))
            with self.subTest(name or element.get("id")):
                self.assertTrue(is_described(element))

    def test_describe_every_constant(self):
        constants = [value for member in members for value in member.iterfind("enumvalue")]
        self.assertGreater(len(constants), 500)
        for constant in constants:
            with self.subTest(plain(constant.find("name"))):
                self.assertTrue(is_described(constant))

    def test_describe_every_parameter(self):
        for function in functions:
            names = {plain(name) for name in function.iterfind("param/declname")}
            with self.subTest(plain(function.find("name"))):
                self.assertEqual(names - described_parameters(function), set())

    def test_describe_every_result(self):
        for function in functions:
            if not re.fullmatch(r"(static inline )?void", plain(function.find("type"))):
                with self.subTest(plain(function.find("name"))):
                    self.assertTrue(plain(function.find(".//simplesect[@kind='return']")))


class Pages(unittest.TestCase):
    def sections(self, name):
        page = (man_folder / f"{name}.3").read_text(encoding="utf-8")
        return dict(re.findall(r'^\.SH "?([A-Z ]+?)"?\n(.*?)(?=^\.SH|\Z)', page, re.M | re.S))

    def test_there_is_one_of_each_exported_function(self):
        names = (source / "src/exports.txt").read_text(encoding="utf-8").split()
        self.assertEqual(len(names), 264)
        for name in names:
            with self.subTest(name):
                sections = self.sections(name)
                self.assertRegex(sections["NAME"], rf"^{name} \\- \S")
                self.assertGreater(len(sections["DESCRIPTION"].split()), 1)
                _, include, prototype, _ = (part.strip() for part in re.split(
                    r"^\.nf\n|\n\n|^\.fi\n", sections["SYNOPSIS"], flags=re.M))
                header = source / "include" / re.fullmatch(r"#include <(.+)>", include)[1]
                self.assertIn(name + "(", prototype)
                self.assertIn(
                    "".join(f"QUARLO_API {prototype}".split()),
                    "".join(header.read_text(encoding="utf-8").split()),
                )

    def test_show_parameters_in_their_order(self):
        order = re.findall(r"\.TP\n(.*)", self.sections("GRShiftRect")["PARAMETERS"])
        names = ("rect", "dx", "dy", "out1", "out2")
        self.assertEqual(order, [f"\\fI{name}\\fR" for name in names])

    def test_know_those_that_they_name(self):
        references = self.sections("GDDrawPie")["SEE ALSO"]
        for name in ("GDDrawArc", "GRect", "GDrawHandle", "quarlo_draw.h"):
            self.assertIn(f"\\fB{name}\\fR(3)", references)
        for page in man_folder.glob("*.3"):
            for name in re.findall(r"\\fB([\w.]+)\\fR\(3\)", page.read_text(encoding="utf-8")):
                self.assertTrue((man_folder / f"{name}.3").is_file(), name)

    def test_tell_what_holds_for_a_family(self):
        self.assertIn("none may be null", self.sections("GRMapRect")["NOTES"])

    def test_are_set_without_a_complaint(self):
        pages = sorted(man_folder.glob("*.3"))
        done = subprocess.run(
            ["groff", "-man", "-Kutf8", "-Tutf8", "-ww", "-z", *pages],
            capture_output=True, encoding="utf-8", check=True,
        )
        self.assertEqual(done.stderr, "")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
