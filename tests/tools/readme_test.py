#!/usr/bin/env python3
"""The examples of the README: they are the ones that compile, and they print what they say.

    readme_test.py FOLDER      FOLDER holds the programs made of examples/snippets

Comments "// prints a | b" name the lines of a program's output in their order, "<tab>" stands for a
tab.
"""

import re
import subprocess
import sys
import textwrap
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SNIPPETS = ROOT / "examples" / "snippets"


def shown_part(source):
    match = re.search(r"^ *// \[README\]\n(.*?)^ *// \[/README\]", source, re.DOTALL | re.MULTILINE)
    return textwrap.dedent(match[1])


def promised_lines(source):
    lines = re.findall(r"// prints (.*)$", source, re.MULTILINE)
    return [line.replace("<tab>", "\t") for text in lines for line in text.split(" | ")]


class ReadmeExamples(unittest.TestCase):
    programs = None

    def test_every_example_of_the_readme_is_a_snippet_and_all_snippets_are_shown(self):
        readme = (ROOT / "README.md").read_text(encoding="utf-8")
        blocks = re.findall(r"^```cpp\n(.*?)^```", readme, re.DOTALL | re.MULTILINE)
        shown = {path.name: shown_part(path.read_text()) for path in SNIPPETS.glob("*.cpp")}
        self.assertTrue(shown)
        for block in blocks:
            self.assertIn(block, shown.values(), "in README.md, but no snippet")
        for name, part in shown.items():
            self.assertIn(part, blocks, f"{name} is not in README.md as it stands there")

    def test_snippets_print_what_they_say(self):
        for path in sorted(SNIPPETS.glob("*.cpp")):
            program = self.programs / f"snippet_{path.stem}"
            if not program.exists():  # of another system
                continue
            with self.subTest(path.name):
                result = subprocess.run([program], cwd=SNIPPETS, capture_output=True, check=True,
                                        text=True, encoding="latin-1")
                self.assertEqual(promised_lines(path.read_text()), result.stdout.splitlines())


if __name__ == "__main__":
    ReadmeExamples.programs = Path(sys.argv.pop(1)).resolve()
    unittest.main()
