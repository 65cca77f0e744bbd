#!/usr/bin/env python3
"""Makes the language table and the built-in English strings from the translators' source.

    language_table.py strings.toml [--table FILE] [--rc FILE] [--cpp FILE]

--table  the language table: tab-delimited, code page 1252, lines end with CR LF
--rc     the English texts as a STRINGTABLE of a resource script (ASCII)
--cpp    the same as initialisers {number, "text"} to be included in C++ source (ASCII)

Nothing is written unless every text is there and survives the way through the table unchanged;
each problem is reported with its line. What the source holds is described at its beginning.
"""

import argparse
import re
import sys
import tomllib
from pathlib import Path

# Column of each language: primary language and sublanguage of its Windows locale identifier. The
# sublanguage is always 01, the column that other sublanguages fall back to.
COLUMNS = {"en": "09-01", "de": "07-01", "fr": "12-01", "es": "10-01", "it": "16-01",
           "pt": "22-01", "nl": "19-01", "sv": "29-01"}
NAMES_ROW = "L"              # the row of the languages' own names
FIRST_WORDING = 10000        # from here on texts are looked up by their English text only
LAST_NUMBER = 65535          # of a string resource
DEFAULT_LIMIT = 254          # the messages' buffer without its terminator
DEFAULT_WORDING_LIMIT = 252  # the buffer for captions without terminator and an added colon
LONGEST_LINE = 4095          # the table reader cuts longer lines
JUNK = b"\"'\xb4\t"          # removed by the reader at both ends of a cell, as is all below 32


class Entry:
    def __init__(self, name, values, lines):
        self.name = name
        self.values = values
        self.lines = lines  # line number in the source by language; the block's own by ""

    @property
    def is_wording(self):
        return self.name.isdecimal() and int(self.name) >= FIRST_WORDING

    @property
    def limit(self):
        default = DEFAULT_WORDING_LIMIT if self.is_wording else DEFAULT_LIMIT
        return self.values.get("limit", default)


def line_numbers(source):
    """Line numbers of blocks and of their keys: {block: {"": line, key: line}}."""
    lines, block = {}, {}
    for number, line in enumerate(source.splitlines(), 1):
        if match := re.match(r"\s*\[(\w+)\]", line):
            block = lines.setdefault(match[1], {"": number})
        elif match := re.match(r"\s*(\w+)\s*=", line):
            block[match[1]] = number
    return lines


def read_entries(source):
    lines = line_numbers(source)
    return [Entry(name, values if isinstance(values, dict) else {}, lines.get(name, {"": 1}))
            for name, values in tomllib.loads(source).items()]


def escape(text):
    """The cell of a text: tab, CR and LF as the language object reads them back."""
    cell = text.encode("cp1252")
    for byte in b"\t\r\n":
        cell = cell.replace(bytes([byte]), b"%%%02x" % byte)
    return cell


def unescape(cell):
    return re.sub(rb"%([0-9a-fA-F]{2})", lambda match: bytes([int(match[1], 16)]), cell)


def placeholders(text):
    """The conversions of a template; "%" alone stands for one that is neither %s nor %%."""
    return re.findall(r"%(?:[-0]?\d*(?:\.\d+)?s|%)?", text)


def filter_patterns(text):
    return text.split("|")[1::2]


def text_problems(entry, language):
    """What is wrong with one text by itself."""
    text = entry.values[language]
    try:
        plain = text.encode("cp1252")
    except UnicodeEncodeError as error:
        yield f"{error.object[error.start]!r} is not in code page 1252"
        return
    cell = escape(text)
    if unescape(cell) != plain:
        found = re.search(r"%[0-9a-fA-F]{2}", text)[0]
        yield f'"{found}" would be read as an escaped character'
    elif "%" in placeholders(text):
        yield 'a "%" that is neither %s nor %%'
    if any(byte < 32 for byte in cell):
        yield "a control character other than a line break or a tab"
    if cell[0] in JUNK or cell[-1] in JUNK:
        yield "begins or ends with a character that the reader removes (\", ' or \u00b4)"
    if len(plain) > entry.limit:
        yield f"{len(plain)} characters, but only {entry.limit} are shown"


def translation_problems(entry, language):
    """What is wrong with one text beside the English one."""
    text, english = entry.values[language], entry.values["en"]
    if placeholders(text) != placeholders(english):
        yield f"has the placeholders {placeholders(text)}, English has {placeholders(english)}"
    for end in (" ", ":", "|"):
        if text.endswith(end) != english.endswith(end):
            yield f'and English must both end with "{end}", or neither'
    if "|" in english and filter_patterns(text) != filter_patterns(english):
        yield f"has the patterns {filter_patterns(text)}, English {filter_patterns(english)}"
    if entry.is_wording and language == "en":
        if "&" in text or "..." in text or ":\\" in text:
            yield 'is never looked up: it has "&", "..." or ":\\"'
    elif entry.is_wording and (text.count("&") > 1 or "..." in text):
        yield 'has more than one "&", or a "..." (it is added on the screen)'


def columns_of(entries):
    """The languages of a source: English and what else its row of names has."""
    names = next((entry.values for entry in entries if entry.name == NAMES_ROW), COLUMNS)
    return {language: column for language, column in COLUMNS.items()
            if language in names or language == "en"}


def entry_problems(entry, columns):
    """Pairs of language and problem; the language is empty for the block as a whole."""
    if entry.name != NAMES_ROW and not (
            re.fullmatch(r"[1-9]\d*", entry.name) and int(entry.name) <= LAST_NUMBER):
        yield "", f"is neither {NAMES_ROW} nor a number from 1 to {LAST_NUMBER}"
    for key in entry.values:
        if key not in columns and key not in ("where", "limit"):
            yield key, f"is no key of a block, nor a language that [{NAMES_ROW}] names"
    if not entry.values.get("where"):
        yield "", "does not say where it is shown (where = ...)"
    if not isinstance(entry.limit, int) or entry.limit < 1:
        yield "limit", "is no number of characters"
        return
    usable = [language for language in columns
              if isinstance(entry.values.get(language), str) and entry.values[language]]
    for language in columns:
        if language not in usable:
            yield language, "is missing or empty"
            continue
        for problem in text_problems(entry, language):
            yield language, problem
        if "en" in usable:
            for problem in translation_problems(entry, language):
                yield language, problem


def duplicate_problems(entries):
    """A wording finds the first English text that is equal without case, with or without ':'."""
    seen = {}
    for entry in entries:
        english = entry.values.get("en")
        if not isinstance(english, str):
            continue
        key = english.removesuffix(":").lower()
        if key in seen:
            yield entry, f"{english!r} is the English text of [{seen[key]}] already"
        seen.setdefault(key, entry.name)


def row_of(entry, columns):
    return b"\t".join([entry.name.encode("ascii"),
                       *(escape(entry.values[language]) for language in columns)])


def all_problems(entries):
    """Pairs of line number and problem."""
    columns, sound = columns_of(entries), []
    for entry in entries:
        found = [(entry.lines.get(key, entry.lines[""]), f"[{entry.name}] {key} {text}")
                 for key, text in entry_problems(entry, columns)]
        yield from found
        if not found:
            sound.append(entry)
    for entry, text in duplicate_problems(entries):
        yield entry.lines[""], f"[{entry.name}] en {text}"
    for entry in sound:
        length = len(row_of(entry, columns))
        if length > LONGEST_LINE:
            yield entry.lines[""], (f"[{entry.name}] makes a line of {length} characters, "
                                    f"but only {LONGEST_LINE} are read")
    if not any(entry.name == NAMES_ROW for entry in entries):
        yield 1, f"[{NAMES_ROW}] is missing, the names of the languages"


def in_order(entries):
    return sorted(entries, key=lambda e: -1 if e.name == NAMES_ROW else int(e.name))


def table_bytes(entries):
    columns = columns_of(entries)
    header = "\t".join(["IDS", *columns.values()]).encode("ascii")
    rows = [row_of(entry, columns) for entry in in_order(entries)]
    return b"".join(row + b"\r\n" for row in [header, *rows])


def literal(text):
    """A string literal in C++ and in resource scripts; octal escapes for all that is not plain."""
    return '"' + "".join(
        chr(byte) if re.match(rb"[\w .,;:!()*|/+=-]", bytes([byte])) else f"\\{byte:03o}"
        for byte in text.encode("cp1252")) + '"'


def built_in(entries):
    """Numbers and English texts of what is asked for by number."""
    return [(int(entry.name), literal(entry.values["en"])) for entry in in_order(entries)
            if entry.name != NAMES_ROW and not entry.is_wording]


def rc_bytes(entries):
    strings = "".join(f"    {number} {text}\n" for number, text in built_in(entries))
    return f"STRINGTABLE\nBEGIN\n{strings}END\n".encode("ascii")


def cpp_bytes(entries):
    return "".join(f"{{{number}, {text}}},\n" for number, text in built_in(entries)).encode("ascii")


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("source", type=Path)
    parser.add_argument("--table", type=Path)
    parser.add_argument("--rc", type=Path)
    parser.add_argument("--cpp", type=Path)
    options = parser.parse_args(arguments)
    try:
        entries = read_entries(options.source.read_text(encoding="utf-8"))
    except (OSError, UnicodeDecodeError, tomllib.TOMLDecodeError) as error:
        print(f"{options.source}: {error}", file=sys.stderr)
        return 1
    problems = sorted(all_problems(entries))
    for line, text in problems:
        print(f"{options.source}:{line}: {text}", file=sys.stderr)
    if problems:
        return 1
    for path, content in ((options.table, table_bytes), (options.rc, rc_bytes),
                          (options.cpp, cpp_bytes)):
        if path:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(content(entries))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
