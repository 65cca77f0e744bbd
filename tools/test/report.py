#!/usr/bin/env python3
"""Prints what ./test found: report.py BUILD_FOLDER...

Reads of each build folder
    outcome       one line: tested, broken or skipped; seconds; reason
    ctest.xml     CTest's own result of each test program or script
    reports/*.xml the cases of each GoogleTest program
and prints a table, the failed and skipped cases, and the sum. The exit status is 0 when nothing
failed; with CI=true a skipped build counts as failed.
"""

import json
import os
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass, field
from pathlib import Path


@dataclass
class Result:
    name: str
    state: str = "tested"
    seconds: int = 0
    reason: str = ""
    passed: int = 0
    failed: list = field(default_factory=list)   # names
    skipped: list = field(default_factory=list)  # names with reasons

    def tests(self):
        return self.passed + len(self.failed) + len(self.skipped)


def read_xml(path):
    """A program may put any byte into a message."""
    return ElementTree.fromstring(path.read_bytes().decode("utf-8", errors="replace"))


def programs(folder):
    """The program that each CTest test runs: its file name without extension, by test name."""
    listing = subprocess.run(["ctest", "--test-dir", folder, "--show-only=json-v1"],
                             capture_output=True, text=True, check=True).stdout
    binaries = str(folder.resolve() / "bin")
    return {test["name"]: Path(argument).stem
            for test in json.loads(listing)["tests"]
            for argument in test.get("command", []) if str(Path(argument).parent) == binaries}


def skip_reason(text):
    """GoogleTest's text is "file:line", then what the test said; CTest's the output's end."""
    lines = [line.strip() for line in (text or "").splitlines() if line.strip()]
    return lines[-1] if lines else "no reason given"


def add_cases(result, report):
    """Counts the cases of one GoogleTest program; True when one failed."""
    failures = 0
    for case in read_xml(report).iter("testcase"):
        name = f"{case.get('classname')}.{case.get('name')}"
        skip = case.find("skipped")
        if case.find("failure") is not None:
            result.failed.append(name)
            failures += 1
        elif skip is not None:
            result.skipped.append(f"{name}: {skip_reason(skip.get('message') or skip.text)}")
        elif case.get("status") == "notrun":
            result.skipped.append(f"{name}: disabled")
        else:
            result.passed += 1
    return failures > 0


def unfinished_case(output):
    """The case in which a GoogleTest program without a report stopped."""
    lines = [line for line in output.splitlines() if line.startswith("[ RUN      ]")]
    return f"stopped in {lines[-1][12:].strip()}" if lines else ""


def add_program(result, test, report):
    """Counts one CTest test, by its cases where it has a report of them."""
    name = test.get("name")
    passed = test.get("status") == "run"
    skip, output = test.find("skipped"), test.findtext("system-out") or ""
    if report and report.exists():
        try:
            if not add_cases(result, report) and not passed:
                result.failed.append(f"{name}: ended badly after its cases had passed")
        except ElementTree.ParseError:
            result.failed.append(f"{name}: its report cannot be read")
    elif skip is not None:
        result.skipped.append(f"{name}: {skip_reason(output) if output else skip.get('message')}")
    elif test.get("status") == "disabled":
        result.skipped.append(f"{name}: disabled")
    elif passed:
        result.passed += 1
    else:
        failure = test.find("failure")
        message = failure.get("message") if failure is not None else test.get("status")
        result.failed.append(f"{name}: {unfinished_case(output) or message or 'failed'}")


def read_build(folder):
    result = Result(folder.name)
    result.state, result.seconds, result.reason = (folder / "outcome").read_text().split(" ", 2)
    result.seconds, result.reason = int(result.seconds), result.reason.strip()
    if result.state != "tested":
        return result
    if not (folder / "ctest.xml").exists():
        result.state, result.reason = "broken", f"no tests were run, see {folder}/test.log"
        return result
    program_of, counted = programs(folder), set()
    for test in read_xml(folder / "ctest.xml").iter("testcase"):
        program = program_of.get(test.get("name"))
        report = None if program in counted | {None} else folder / "reports" / f"{program}.xml"
        counted.add(program)
        add_program(result, test, report)
    return result


def duration(seconds):
    return f"{seconds // 60}:{seconds % 60:02}"


def print_table(results):
    print(f"{'build':<14}{'tests':>7}{'failed':>8}{'skipped':>9}{'time':>8}")
    for r in results:
        if r.state == "tested":
            print(f"{r.name:<14}{r.tests():>7}{len(r.failed):>8}{len(r.skipped):>9}"
                  f"{duration(r.seconds):>8}")
        else:
            word = "SKIPPED" if r.state == "skipped" else "FAILED"
            print(f"{r.name:<14}{word}: {r.reason}{duration(r.seconds):>8}")
    for r in results:
        for name in r.failed:
            print(f"failed   {r.name}: {name}")
        for name in r.skipped:
            print(f"skipped  {r.name}: {name}")


def main(folders):
    results = [read_build(Path(folder)) for folder in folders]
    print_table(results)
    passed = sum(r.passed for r in results)
    failed = sum(len(r.failed) + (r.state == "broken") for r in results)
    skipped = sum(len(r.skipped) + (r.state == "skipped") for r in results)
    must_run = os.environ.get("CI") == "true"
    not_run = [r.name for r in results if r.state == "skipped"]
    if must_run and not_run:
        print(f"CI=true: every build must run, but {', '.join(not_run)} could not.")
    print(f"\n{passed} passed, {failed} failed, {skipped} skipped")
    return 1 if failed or (must_run and not_run) else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
