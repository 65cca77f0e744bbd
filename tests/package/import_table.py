#!/usr/bin/env python3
"""Fails when a DLL needs a library that does not come with every Windows.

    import_table.py OBJDUMP DLL
"""

import re
import subprocess
import sys

# Of Windows itself, since Windows 7 or before. The compiler's run-time library is none of them.
SYSTEM_LIBRARIES = {
    "advapi32.dll", "bcrypt.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll", "kernel32.dll",
    "msvcrt.dll", "ole32.dll", "oleaut32.dll", "shell32.dll", "shlwapi.dll", "user32.dll",
    "uuid.dll", "version.dll", "winspool.drv"}


def main(objdump, dll):
    listing = subprocess.run([objdump, "-p", dll], capture_output=True, text=True, check=True).stdout
    needed = set(re.findall(r"DLL Name: (\S+)", listing))
    print("needs", ", ".join(sorted(needed, key=str.lower)))
    foreign = sorted(name for name in needed if name.lower() not in SYSTEM_LIBRARIES)
    if not needed or foreign:
        print("not a part of Windows:", ", ".join(foreign) or "(no import table found)")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
