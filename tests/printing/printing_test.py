#!/usr/bin/env python3
"""Reports printed for real: the texts, their places and the pages are read back out of the PDFs.

    printing_test.py COMMAND...     runs what prints (print_document.cpp)

The PDFs appear in the folder QX_PRINTED (tools/print/session.sh). Status 77, and with CI=true 1:
there is no printing service. A picture of the first page is left as printed.png in the build's
folder.
"""

import os
import re
import subprocess
import sys
import time
import unittest
from pathlib import Path

LEFT, TOP, RIGHT, BOTTOM = 72, 54, 36, 90  # the margins that the program sets, in points
NEAR = 1.0                                 # points
FOLDER = Path(os.environ.get("QX_PRINTED", ""))


class Word:
    def __init__(self, match):
        *edges, self.text = match.groups()
        self.left, self.top, self.right, self.bottom = map(float, edges)


class Pdf:
    """A printed document: `size` in points, `pages` of words in reading order."""

    def __init__(self, name):
        self.path = FOLDER / f"{name}.pdf"
        deadline = time.monotonic() + 60
        while not self.path.exists():
            if time.monotonic() > deadline:
                raise AssertionError(f"{name} was not printed")
            time.sleep(0.1)
        html = self.run("pdftotext", "-bbox", self.path, "-")
        self.size = self.sizes()
        word = re.compile(r'<word xMin="([-\d.]+)" yMin="([-\d.]+)" xMax="([-\d.]+)" '
                          r'yMax="([-\d.]+)">(.*?)</word>')
        self.pages = [[Word(match) for match in word.finditer(page)]
                      for page in html.split("<page ")[1:]]

    @staticmethod
    def run(*command):
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout

    def sizes(self):
        """As the pages are seen."""
        info = self.run("pdfinfo", "-l", "-1", self.path)
        sizes = re.findall(r"^Page +\d+ size: +([\d.]+) x ([\d.]+)", info, re.MULTILINE)
        turns = re.findall(r"^Page +\d+ rot: +(\d+)", info, re.MULTILINE)
        return [(float(width), float(height)) if turn in ("0", "180") else
                (float(height), float(width)) for (width, height), turn in zip(sizes, turns)]

    def word(self, page, text):
        found = [word for word in self.pages[page] if word.text == text]
        assert len(found) == 1, (text, [word.text for word in self.pages[page]])
        return found[0]

    def lines(self, page):
        layout = self.run("pdftotext", "-layout", "-f", str(page + 1), "-l", str(page + 1),
                          self.path, "-")
        return [" ".join(line.split()) for line in layout.splitlines() if line.strip()]

    def picture(self, page, prefix):
        """Rows of grey values, 72 to the inch; left as a PNG file too."""
        only = ["-f", str(page + 1), "-l", str(page + 1), self.path]
        self.run("pdftoppm", "-r", "100", "-png", "-singlefile", *only, prefix)
        grey = subprocess.run(["pdftoppm", "-r", "72", "-gray", *only],
                              check=True, capture_output=True).stdout
        _, width, height, _, pixels = re.match(rb"(P5)\s(\d+) (\d+)\s(\d+)\s(.*)", grey,
                                               re.DOTALL).groups()
        width, height = int(width), int(height)
        return [pixels[y * width:(y + 1) * width] for y in range(height)]


class Printing(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        names = ("Portrait", "Landscape", "Two copies", "Diverted", "Not diverted")
        for name in names:
            (FOLDER / f"{name}.pdf").unlink(missing_ok=True)
        cls.output = PICTURES / "printed.ps"
        cls.output.unlink(missing_ok=True)
        subprocess.run([*PROGRAM, f"Z:{cls.output}"], check=True, timeout=200)
        cls.portrait, cls.landscape, cls.copies, cls.diverted, cls.usual = map(Pdf, names)

    def near(self, expected, value, what):
        self.assertAlmostEqual(expected, value, delta=NEAR, msg=what)

    def test_every_page_has_its_size(self):
        self.assertEqual([(595, 842)] * 3, self.portrait.size)
        self.assertEqual([(842, 595)] * 2, self.landscape.size)

    def test_text_is_text(self):
        self.assertEqual(["Pumping station report", "Flow: 12", "Head loss: 34"],
                         self.portrait.lines(0)[:3])
        self.assertEqual(["Last page"], self.portrait.lines(2))

    def test_lines_fill_the_page_between_the_margins(self):
        for pdf in (self.portrait, self.landscape):
            lines, bottom = pdf.pages[1], pdf.size[1][1] - BOTTOM
            self.assertEqual([f"Line{i}" for i in range(len(lines))], [word.text for word in lines])
            height = lines[1].top - lines[0].top
            self.near(LEFT, lines[0].left, "left margin")
            self.assertTrue(TOP <= lines[0].top < TOP + 3, lines[0].top)  # without the ascent
            self.assertLessEqual(lines[-1].top + height, bottom + NEAR)
            self.assertGreater(lines[-1].top + 2 * height, bottom - NEAR)

    def test_a_title_is_centred_between_the_margins(self):
        for pdf in (self.portrait, self.landscape):
            first, last = pdf.word(0, "Pumping"), pdf.word(0, "report")
            self.near(LEFT + pdf.size[0][0] - RIGHT, first.left + last.right, "twice the centre")

    def test_labels_end_at_their_colons(self):
        for label in ("Flow:", "loss:"):
            self.near(LEFT + 144, self.portrait.word(0, label).right, label)

    def test_columns_start_at_their_stops(self):
        for column, texts in ((0, ("Pump", "Booster")), (108, ("Diameter", "80")),
                              (216, ("Remark", "all"))):
            for text in texts:
                self.near(LEFT + column, self.portrait.word(0, text).left, text)

    def test_a_long_field_ends_in_dots_before_the_next_column(self):
        dotted = [word for word in self.portrait.pages[0] if word.text.endswith("..")]
        self.assertEqual(1, len(dotted))
        self.assertLessEqual(dotted[0].right, LEFT + 108)
        self.assertGreater(dotted[0].right, LEFT + 100)

    def test_a_paragraph_is_wrapped_in_its_column(self):
        start = self.portrait.word(0, "Wrapped")
        paragraph = sorted((word for word in self.portrait.pages[0] if word.top >= start.top),
                           key=lambda word: (word.top, word.left))
        self.assertEqual("Wrapped words stand below each other in a narrow column",
                         " ".join(word.text for word in paragraph))
        self.assertEqual(2, len({word.top for word in paragraph}))
        self.assertLessEqual(max(word.right for word in paragraph), LEFT + 144 + NEAR)

    def test_copies_are_all_printed(self):
        self.assertEqual([["Last", "page"]] * 2,
                         [[word.text for word in page] for page in self.copies.pages])

    def test_pdf_printers_get_what_is_to_be_a_file(self):
        """A double of the drivers' queues: the system's own one writes to the file that is named."""
        for pdf in (self.diverted, self.usual):
            self.assertEqual([["Last", "page"]], [[word.text for word in page] for page in pdf.pages])
        self.assertTrue(self.output.read_bytes().startswith(b"%!PS-Adobe"))

    def test_a_title_is_underlined(self):
        picture = self.portrait.picture(0, PICTURES / "printed")
        first, last = self.portrait.word(0, "Pumping"), self.portrait.word(0, "report")
        inside = slice(int(first.left) + 2, int(last.right) - 2)
        below = range(int(first.bottom) - 1, int(first.bottom) + 8)
        solid = [y for y in below if max(picture[y][inside]) < 255]
        self.assertTrue(solid, "no line below the title")
        self.assertEqual(b"\xff" * 40, bytes(picture[solid[0]][int(first.left) - 45:][:40]))


if __name__ == "__main__":
    PROGRAM = sys.argv[1:]
    PICTURES = Path(PROGRAM[-1]).parent.parent
    if not os.environ.get("QX_PRINTED"):
        print("SKIPPED: no printing service could be started")
        sys.exit(1 if os.environ.get("CI") == "true" else 77)
    unittest.main(argv=sys.argv[:1], verbosity=2)
