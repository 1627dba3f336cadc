"""Tests of the mutation tool: its lexer, its slips, and a campaign on a small example."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))

from cpp_tokens import tokens_of  # noqa: E402
from mutants import mutants_of  # noqa: E402


def texts(source):
    return [token.text for token in tokens_of(source)]


def slips(source):
    return {(mutant.old, mutant.new) for mutant in mutants_of(source)}


class Tokens(unittest.TestCase):
    def test_are_those_of_the_longest_operators(self):
        self.assertEqual(texts("a<<=b->c::d+++e<=>f"),
                         ["a", "<<=", "b", "->", "c", "::", "d", "++", "+", "e", "<=>", "f"])

    def test_of_numbers_are_whole(self):
        for number in ("0", "0xFFu", "1'000", "1.5f", ".5", "1e-3", "0b10", "65536.0"):
            self.assertEqual(texts(f"x = {number};"), ["x", "=", number, ";"])

    def test_leave_out_what_does_not_run(self):
        for nothing in ("// a + b\n", "/* a\n + b */", "#define A(b) \\\n    b + 1\n",
                        "  #  if A + 1\n", "static_assert(sizeof(int) == 4, \"a\");",
                        "[[gnu::aligned(8)]]"):
            self.assertEqual([text for text in texts(nothing) if text != ";"], [], nothing)
        for value in ('"a + \\" b"', "u'\\''", 'u8"//"', 'R"x(a)" + b)x"', "'\"'"):
            self.assertEqual(texts(f"{value} c"), ["c"], value)


class Slips(unittest.TestCase):
    def test_of_operators_are_of_those_with_two_sides(self):
        self.assertEqual(slips("a < b;"), {("<", "<="), ("<", ">=")})
        self.assertEqual(slips("std::array<T, N> a;"), set())
        self.assertEqual(slips("const T& a = *b;"), set())
        self.assertEqual(slips("bool operator<(T a);"), set())
        self.assertEqual(slips("a && b;"), {("&&", "||")})
        self.assertEqual(slips("return -a;"), {("-", "")})

    def test_of_numbers_are_one_off(self):
        self.assertEqual(slips("return 7;"), {("7", "8"), ("7", "6")})
        self.assertEqual(slips("return 0xFFu;"), {("0xFFu", "0x100u"), ("0xFFu", "0xFEu")})
        self.assertEqual(slips("return 0;"), {("0", "1")})
        self.assertEqual(slips("return 1.5;"), {("1.5", "2 * 1.5")})

    def test_of_conditions_negate_them(self):
        self.assertIn(("a.b(c)", "!(a.b(c))"), slips("{ if (a.b(c)) { return; } }"))
        self.assertIn(("a", "!(a)"), slips("{ if constexpr (a) { return; } }"))

    def test_of_statements_leave_them_out(self):
        for statement in ("f(a)", "a.b()", "a = b", "x::f(g(a))", "*a = b", "a[1] += b", "++a"):
            self.assertIn((statement, ""), slips(f"void f() {{ {statement}; }}"))
            self.assertIn((statement, ""), slips(f"{{ if (a) {statement}; }}"))
        for declaration in ("int a = f()", "T a(b)", "const T a = b", "std::array<T, 2> a{}",
                            "return f(a)"):
            self.assertNotIn((declaration, ""), slips(f"void f() {{ {declaration}; }}"))


class Campaign(unittest.TestCase):
    """All mutants of the example, whose tests leave two things open."""

    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.build = pathlib.Path(temporary.name)
        subprocess.run(["cmake", "-G", "Ninja", "-S", HERE / "example", "-B", self.build],
                       check=True, capture_output=True)
        subprocess.run(["cmake", "--build", self.build], check=True, capture_output=True)

    def mutate(self, *options):
        return subprocess.run(
            [sys.executable, "-B", HERE / "mutate.py", self.build, "--sources",
             HERE / "example" / "src", *options], check=True, capture_output=True, text=True).stdout

    def results(self):
        lines = (self.build / "mutation" / "results").read_text().splitlines()
        return [json.loads(line) for line in lines]

    def test_judges_every_mutant_once(self):
        said = self.mutate()
        results = self.results()
        self.assertEqual(len({result["id"] for result in results}), len(results))
        self.assertEqual({result["verdict"] for result in results},
                         {"killed", "survived", "equivalent", "invalid"})

        def fate(name, text, old, new):
            found = [result["verdict"] for result in results
                     if result["file"] == name and text in result["text"] and
                     (result["old"], result["new"]) == (old, new)]
            self.assertEqual(len(found), 1, (text, old, new))
            return found[0]

        self.assertEqual(fate("price.cpp", "cents[i] > 0", ">", ">="), "survived")
        self.assertEqual(fate("price.cpp", "cents[i] > 0", ">", "<="), "killed")
        self.assertEqual(fate("price.cpp", "cents[i] > 0", "0", "1"), "survived")
        self.assertEqual(fate("price.cpp", "kPercents[2]", "2", "1"), "invalid")
        self.assertEqual(fate("price.cpp", "kPercents[2]", "7", "8"), "equivalent")
        self.assertEqual(fate("price.cpp", "kPercents[2]", "19", "20"), "killed")
        # It runs until it leaves memory.
        self.assertEqual(fate("price.cpp", "i < count", "<", ">="), "killed")
        # It stands in a header, of which the test program has a copy.
        self.assertEqual(fate("price.h", "return cents", "99", "98"), "killed")
        for result in results:
            self.assertNotRegex(result["text"], "static_assert|#define")
        self.assertIn("cents[i] > 0", said)

    def test_goes_on_where_it_was_stopped(self):
        self.mutate("--sample", "6", "--seed", "3")
        begun = self.results()
        self.assertEqual(len(begun), 6)
        path = self.build / "mutation" / "results"
        path.write_text(path.read_text()[:-20])  # the last line is not whole
        self.mutate("--only", "price.h")
        lines = path.read_text().splitlines()
        self.assertEqual([json.loads(line) for line in lines[:5]], begun[:5])
        again = {json.loads(line)["id"] for line in lines[6:]}
        self.assertFalse(again & {result["id"] for result in begun[:5]})


if __name__ == "__main__":
    unittest.main()
