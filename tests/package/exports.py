#!/usr/bin/env python3
"""Compares what a library exports with the list of names that applications count on.

    exports.py LIBRARY LIST TOOL CXXFILT [--update]

TOOL is objdump for a DLL and nm for a shared object. A name that is gone or has other parameters
breaks applications in the field; a new one is a promise. --update writes the list anew, which then
shows in the review of the change what is different.

Sizes of integers differ between the 32-bit and the 64-bit DLL (size_t), so that names are compared
with all integers of one kind alike; the list is written from the 32-bit one.
"""

import difflib
import re
import subprocess
import sys
from pathlib import Path


def output_of(*command, **options):
    return subprocess.run(command, capture_output=True, text=True, check=True, **options).stdout


def mangled_names(library, tool):
    if library.suffix.lower() == ".dll":
        table = output_of(tool, "-p", library).partition("[Ordinal/Name Pointer] Table")[2]
        names = re.findall(r"^\s*\[ *\d+\](?: \+base\[ *\d+\])?\s+(?:[0-9a-f]+\s+)?(\S+)$", table,
                           re.MULTILINE)
    else:
        lines = output_of(tool, "-D", "--defined-only", library).splitlines()
        names = [line.split()[-1] for line in lines if line.split()[-1].startswith("_Z")]
    return sorted({re.sub(r"@\d+$", "", name) for name in names})


def is_ours(name):
    """Whether a name is of this library: not a template of the standard library, used within."""
    return not re.search(r"(^|[\s(])(std|__gnu_cxx)::", name.split("(")[0])


def readable(name):
    name = name.replace("[abi:cxx11]", "").replace("std::__cxx11::", "std::")
    name = re.sub(r"std::basic_string<char, std::char_traits<char>, std::allocator<char> ?>",
                  "std::string", name)
    name = name.replace("( stdcall*)", "(*)")  # there is no such thing in 64-bit
    return re.sub(r", std::allocator<[^<>]*> >", ">", name)


def exported_names(library, tool, cxxfilt):
    mangled = mangled_names(library, tool)
    names = output_of(cxxfilt, input="\n".join(mangled)).splitlines()
    return sorted({name for name in map(readable, names) if is_ours(name)})


def without_sizes(name):
    name = re.sub(r"\bunsigned (long long|long|int)\b", "unsigned", name)
    return re.sub(r"\b(?<!unsigned )(long long|long)\b", "int", name)


def main(library, golden, tool, cxxfilt, *options):
    library, golden = Path(library), Path(golden)
    names = exported_names(library, tool, cxxfilt)
    if not names:
        print(f"{library} exports nothing that could be read")
        return 1
    if "--update" in options:
        golden.write_text("".join(name + "\n" for name in names))
        return 0
    expected = golden.read_text().splitlines()
    changes = [line for line in difflib.unified_diff(
        sorted(map(without_sizes, expected)), sorted(map(without_sizes, names)),
        golden.name, library.name, lineterm="", n=0) if not line.startswith("@@")]
    if changes:
        print("\n".join(changes))
        print("\nIf this is meant, write the list anew with"
              "\n    cmake --build <build folder> --target update_exports"
              f"\n(the build for 32-bit Windows for a DLL) and commit {golden.name}.")
    return 1 if changes else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
