# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""What counts as a mutation, what is left alone, and what counts as a failure."""

import unittest

import mutations
import workshop


def changes(text):
    """Pairs of kind and the line that comes out, in a function of its own."""
    source = "void f()\n{\n    " + text + "\n}\n"
    return {(m.kind, m.after) for m in mutations.Source("f.cpp", source).mutations()}


class Mutations(unittest.TestCase):
    def test_comparison(self):
        self.assertEqual(changes("g(a < b);"), {("comparison", "g(a <= b);"), ("deleted statement", ";")})

    def test_template_arguments_are_no_comparison(self):
        self.assertEqual(changes("return QList<int>();"), set())

    def test_constant_goes_both_ways_but_not_below_zero(self):
        self.assertEqual(changes("return 0;"), {("constant", "return 1;")})
        self.assertEqual(changes("return 0x0FU;"), {("constant", "return 0x10U;"), ("constant", "return 0xeU;")})
        self.assertEqual(changes("return 1'000;"), {("constant", "return 1001;"), ("constant", "return 999;")})

    def test_sign(self):
        self.assertIn(("sign", "x += a - b;"), changes("x += a + b;"))
        self.assertIn(("sign", "x -= a + b;"), changes("x += a + b;"))
        self.assertIn(("sign", "return a;"), changes("return -a;"))

    def test_swapped_arguments(self):
        self.assertIn(("swapped arguments", "g(b, a);"), changes("g(a, b);"))
        self.assertNotIn("swapped arguments", {kind for kind, _ in changes("x = std::max(a, b);")})

    def test_branch(self):
        self.assertIn(("skipped branch", "if (int i = g(); false && (i == j))"), changes("if (int i = g(); i == j)\n return;"))

    def test_a_declaration_is_not_deleted(self):
        self.assertEqual(changes("const int x = g();"), {("initial value", "const int x = {};")})

    def test_what_is_no_code_is_left_alone(self):
        for text in ("// a < 1", "/* a < 1 */", "static_assert(a < 1);", "\n#if A < 1\n#endif\n", "return \"a < 1\";"):
            self.assertEqual(changes(text), set(), text)

    def test_lines_stay_where_they_are(self):
        source = "void f()\n{\n    g(a,\n      b);\n    h();\n}\n"
        for mutation in mutations.Source("f.cpp", source).mutations():
            self.assertEqual(mutation.apply(source).count("\n"), source.count("\n"))


class Output(unittest.TestCase):
    def test_a_failure_is_seen_at_once_and_named(self):
        named = lambda line: next(filter(None, workshop.FAILED.search(line).groups())).decode()
        self.assertEqual(named(b"FAIL!  : ZoomTest::steps(far in) Compared values are not the same\n"), "ZoomTest::steps")
        self.assertEqual(named(b"[  FAILED  ] EdgeMap.ofEveryGrey (12 ms)\n"), "EdgeMap.ofEveryGrey")

    def test_other_lines_are_no_failure(self):
        for line in (b"PASS   : ZoomTest::steps(far in)", b"XFAIL  : ZoomTest::steps() one day", b"[       OK ] EdgeMap.a",
                     b"Totals: 3 passed, 0 failed, 0 skipped, 0 blacklisted, 12ms"):
            self.assertIsNone(workshop.FAILED.search(line))


if __name__ == "__main__":
    unittest.main()
