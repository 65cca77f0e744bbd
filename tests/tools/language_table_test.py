#!/usr/bin/env python3
"""Tests of tools/language_table.py: what it writes, and what it refuses."""

import json
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SCRIPT = ROOT / "tools" / "language_table.py"
SOURCE = ROOT / "resources" / "language" / "strings.toml"
LANGUAGES = ("en", "de", "fr", "es", "it", "pt", "nl", "sv")
HEADER = b"IDS\t09-01\t07-01\t12-01\t10-01\t16-01\t22-01\t19-01\t29-01"


def block(name, text=None, **changes):
    """A block whose texts are `text`, or "<name> <language>"; a change to None leaves a key out."""
    values = {"where": "Somewhere."}
    values |= {lang: text or f"{name} {lang}" for lang in LANGUAGES}
    values |= changes
    lines = [f"{key} = {json.dumps(value)}" for key, value in values.items() if value is not None]
    return "\n".join([f"[{name}]", *lines, ""])


class Case(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def run_on(self, source):
        path = self.folder / "strings.toml"
        path.write_text(source, encoding="utf-8")
        return self.run_on_file(path)

    def run_on_file(self, path):
        outputs = [f"--{kind}={self.folder / kind}" for kind in ("table", "rc", "cpp")]
        return subprocess.run([sys.executable, SCRIPT, path, *outputs], capture_output=True,
                              text=True, check=False)

    def table(self):
        return (self.folder / "table").read_bytes()


class Generator(Case):
    def test_rows_stand_in_order_below_the_header_names_first(self):
        result = self.run_on(block(300) + block(10001) + block("L") + block(7))
        self.assertEqual((0, ""), (result.returncode, result.stderr))
        lines = self.table().split(b"\r\n")
        self.assertEqual(HEADER, lines[0])
        self.assertEqual([b"L", b"7", b"300", b"10001", b""],
                         [line.split(b"\t")[0] for line in lines[1:]])
        self.assertEqual(b"7 en\t7 de\t7 fr\t7 es\t7 it\t7 pt\t7 nl\t7 sv", lines[2][2:])

    def test_cells_are_escaped_and_in_the_code_page(self):
        text = "100 \u20ac\tcaf\u00e9\r\n%s"
        self.run_on(block("L") + block(7, text))
        self.assertIn(b"\t100 \x80%09caf\xe9%0d%0a%s\t", self.table())

    def test_built_in_strings_are_the_numbered_english_ones_in_plain_ascii(self):
        self.run_on(block("L") + block(7, 'caf\u00e9 "%s" \\1') + block(10001))
        escaped = r'7 "caf\351 \042\045s\042 \1341"'
        self.assertEqual(f"STRINGTABLE\nBEGIN\n    {escaped}\nEND\n",
                         (self.folder / "rc").read_text("ascii"))
        self.assertEqual("{" + escaped.replace(" ", ", ", 1) + "},\n",
                         (self.folder / "cpp").read_text("ascii"))

    def test_a_source_with_a_fault_is_refused_with_line_block_and_reason(self):
        cases = {
            "missing language": (block(7, sv=None), r":11: \[7\] sv is missing or empty"),
            "empty text": (block(7, de=""), r":14: \[7\] de is missing or empty"),
            "not a text": (block(7, de=1), r"\[7\] de is missing or empty"),
            "unknown key": (block(7, ru="x"), r":21: \[7\] ru is no key"),
            "no explanation": (block(7, where=None), r"\[7\]  does not say where"),
            "unknown block": (block("Title"), r"\[Title\]  is neither L nor a number"),
            "leading zero": (block("007"), r"\[007\]  is neither"),
            "number too large": (block(65536), r"\[65536\]  is neither"),
            "limit": (block(7, limit="x"), r"\[7\] limit is no number"),
            "code page": (block(7, de="\u0105"), r"\[7\] de '\u0105' is not in code page 1252"),
            "escape": (block(7, de="zu 50%deutlich"), r'\[7\] de "%de" would be read as'),
            "conversion": (block(7, "%d of it"), r'\[7\] fr a "%" that is neither'),
            "lone percent": (block(7, "50% or more"), r'\[7\] en a "%" that is neither'),
            "control character": (block(7, "a\1b"), r"\[7\] it a control character"),
            "leading quote": (block(7, fr='"mot" cl\u00e9'), r"\[7\] fr begins or ends"),
            "trailing accent": (block(7, fr="mot\u00b4"), r"\[7\] fr begins or ends"),
            "too long": (block(7, limit=9, de="0123456789"), r"\[7\] de 10 characters, but only 9"),
            "too long for a box": (block(7, de="x" * 255), r"255 characters, but only 254"),
            "too long for a caption": (block(10007, de="x" * 253), r"253 .* only 252"),
            "placeholder missing": (block(7, "of %s", nl="of"), r"\[7\] nl has the placeholders"),
            "placeholder differs": (block(7, "%s", nl="%5s"), r"\[7\] nl has the placeholders"),
            "ending": (block(7, "Name:", es="Nombre"), r'\[7\] es and English must both end'),
            "patterns": (block(7, "a|*.a|", it="a|*.b|"), r"\[7\] it has the patterns \['\*.b'\]"),
            "wording with &": (block(10001, "&Open"), r"\[10001\] en is never looked up"),
            "two mnemonics": (block(10001, de="&a&b"), r"\[10001\] de has more than one"),
            "wording with dots": (block(10001, de="a..."), r"\[10001\] de has more than one"),
            "same English": (block(7, "Open") + block(10001, "OPEN:"),
                             r"\[10001\] en 'OPEN:' is the English text of \[7\] already"),
            "number twice": (block(7) + block(7), r"strings.toml: .*7"),
            "not TOML": ("[7]\nen = no quotes\n", r"line 12"),
            "line too long": (block(7, "x" * 600, limit=1000), r"\[7\] makes a line of 4\d+ "),
        }
        for name, (source, message) in cases.items():
            with self.subTest(name):
                result = self.run_on(block("L") + source)
                self.assertEqual(1, result.returncode)
                self.assertRegex(result.stderr, message)
                self.assertEqual([], [p.name for p in self.folder.iterdir() if p.suffix == ""])

    def test_the_languages_are_those_that_the_names_row_has(self):
        two = {language: None for language in LANGUAGES if language not in ("en", "fr")}
        self.assertEqual(0, self.run_on(block("L", **two) + block(7, **two)).returncode)
        self.assertEqual([b"IDS\t09-01\t12-01", b"L\tL en\tL fr", b"7\t7 en\t7 fr", b""],
                         self.table().split(b"\r\n"))
        self.assertRegex(self.run_on(block("L", **two) + block(7)).stderr,
                         r"\[7\] de is no key of a block, nor a language that \[L\] names")

    def test_a_source_without_the_names_of_the_languages_is_refused(self):
        self.assertRegex(self.run_on(block(7)).stderr, r":1: \[L\] is missing")

    def test_a_missing_source_is_refused(self):
        result = self.run_on_file(self.folder / "nothing.toml")
        self.assertEqual(1, result.returncode)
        self.assertIn("nothing.toml", result.stderr)


class ProductTable(Case):
    def test_holds_every_number_that_the_library_shows(self):
        self.assertEqual("", self.run_on_file(SOURCE).stderr)
        rows = [line.split(b"\t") for line in self.table().split(b"\r\n")[1:-1]]
        numbers = {int(row[0]) for row in rows if row[0] != b"L"}
        shown = {2, *range(4, 11), *range(111, 115), *range(1004, 1013)}
        self.assertEqual(set(), shown - numbers)
        for row in rows:
            with self.subTest(row[0]):
                self.assertEqual(9, len(row))
                self.assertTrue(all(row))

    def test_is_translated(self):
        """Texts of several words differ from the English ones in every language."""
        self.run_on_file(SOURCE)
        for line in self.table().split(b"\r\n")[1:-1]:
            english, *others = line.split(b"\t")[1:]
            if len(re.findall(rb"\w+", english)) > 2:
                with self.subTest(english):
                    self.assertNotIn(english, others)


if __name__ == "__main__":
    unittest.main()
