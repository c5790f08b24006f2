"""Keeps the floors of src/README.md: a folder includes itself and the folders named in its brackets."""

import pathlib
import re
import subprocess
import sys

WINDOWS_FLOORS = ("com", "automation", "platform/win32")
WINDOWS_HEADERS = re.compile(
    r'#include\s+[<"](windows|windef|winnt|wtypes|unknwn|objbase|oaidl|ocidl|ole2|oleauto|olectl|gdiplus|QMath|QSymbol)\.h[>"]')


def read_floors(path):
    floors = {}
    for line in path.read_text(encoding="utf-8").splitlines():
        match = re.match(r"- `([^`]+)` \[([^\]]*)\]", line)
        if match:
            allowed = [name.strip() for name in match.group(2).split(",") if name.strip()]
            floors[match.group(1)] = {match.group(1), *allowed}
    return floors


def floor_of(path, floors):
    return max((f for f in floors if path.startswith(f + "/")), key=len, default=None)


def main():
    floors = read_floors(pathlib.Path("src/README.md"))
    files = subprocess.run(["git", "ls-files", "src/*.cpp", "src/*.h"], capture_output=True, text=True, check=True)
    problems = []
    for name in files.stdout.split():
        inside = name.removeprefix("src/")
        floor = floor_of(inside, floors)
        if floor is None:
            problems.append(f"{name}: its folder is not in src/README.md")
            continue
        text = pathlib.Path(name).read_text(encoding="utf-8")
        portable = not floor.startswith(WINDOWS_FLOORS)
        for number, line in enumerate(text.splitlines(), 1):
            if portable and (WINDOWS_HEADERS.search(line) or "_WIN32" in line):
                problems.append(f"{name}:{number}: Windows in a portable floor")
            match = re.match(r'#include "([^"]+)"', line)
            if not match:
                continue
            target = floor_of(match.group(1), floors)
            if target not in floors[floor]:
                problems.append(f"{name}:{number}: {floor} must not include {match.group(1)}")
        if name.endswith(".h") and not text.startswith("#pragma once"):
            problems.append(f"{name}:1: no #pragma once")
        if text.count("\n") > 600:
            problems.append(f"{name}: more than 600 lines; split it")
    print("\n".join(problems) or "floors: kept")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
