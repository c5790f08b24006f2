"""Holds the sources against the floors of src/README.md.

floors.py            checks the list, every #include and the picture in docs/architecture.md
floors.py --picture  writes that picture anew
floors.py --check F  checks the tree under folder F instead of this checkout (for the test of this script)
"""

import pathlib
import re
import subprocess
import sys

STANDARD = set(
    """algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes climits
    clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint
    cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream
    functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore
    set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view strstream
    syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray
    variant vector version""".split())
# Header-only packages that floors beside the two frozen libraries may use.
PACKAGES = {"boost/": ("qplan",), "CLI/": ("cli",), "nlohmann/": ("cli",)}
OTHER_SYSTEM = re.compile(r"\b(_WIN32|_WIN64|__MINGW\w*|_MSC_VER|WINVER|__unix__|__linux__|_POSIX_\w+)\b")
LINE = re.compile(r"- `([a-z0-9/]+)` \[([a-z0-9/, ]*)\] (?:\((Windows|POSIX)\) )?\S")
INCLUDE = re.compile(r'\s*#\s*include\s*(["<])([^">]+)[">]')
PICTURE = re.compile(r"(<!-- floors -->\n).*?(<!-- /floors -->)", re.S)


class Floor:
    def __init__(self, folder, level, depends, system):
        self.folder, self.level, self.depends, self.system = folder, level, depends, system


def read_floors(path, problems):
    floors, level = {}, None
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if heading := re.fullmatch(r"## Floor (\d+)", line):
            level = int(heading.group(1))
        elif line.startswith("- "):
            match = LINE.match(line)
            if not match or level is None:
                problems.append(f"{path}:{number}: not a line of the list of floors")
                continue
            depends = [name for name in match.group(2).split(", ") if name]
            floors[match.group(1)] = Floor(match.group(1), level, depends, match.group(3))
    for floor in floors.values():
        for lower in floor.depends:
            if lower not in floors:
                problems.append(f"{path}: {floor.folder} stands on {lower}, which is not in the list")
            elif floors[lower].level >= floor.level:
                problems.append(f"{path}: {floor.folder} stands on {lower}, which is not on a lower floor")
            elif floors[lower].system and floors[lower].system != floor.system:
                problems.append(f"{path}: {floor.folder} stands on {lower}, which is for {floors[lower].system} only")
    return floors


def floor_of(path, floors):
    return max((f for f in floors if path.startswith(f + "/")), key=len, default=None)


def check_include(floor, mark, header, floors):
    """What is wrong with an include, or None."""
    target = floor_of(header, floors)
    if target is not None or mark == '"':
        if target != floor.folder and target not in floor.depends:
            return f"{floor.folder} must not include {header}"
        return "a header of this project belongs into quotes" if mark == "<" else None
    if floor.system or header in STANDARD:
        return None
    for package, users in PACKAGES.items():
        if header.startswith(package) and floor.folder.split("/")[0] in users:
            return None
    return f"<{header}> is not of the standard library, and {floor.folder} is portable"


def check_source(name, text, floors, problems):
    floor = floors.get(floor_of(name.removeprefix("src/"), floors))
    if floor is None:
        problems.append(f"{name}: its folder is not in src/README.md")
        return
    for number, line in enumerate(text.splitlines(), 1):
        if not floor.system and OTHER_SYSTEM.search(line):
            problems.append(f"{name}:{number}: a portable floor does not ask for the system")
        match = INCLUDE.match(line)
        wrong = match and check_include(floor, match.group(1), match.group(2), floors)
        if wrong:
            problems.append(f"{name}:{number}: {wrong}")
    if name.endswith(".h") and not text.startswith("#pragma once"):
        problems.append(f"{name}:1: no #pragma once")
    if text.count("\n") > 600:
        problems.append(f"{name}: more than 600 lines; split it")


def reachable(folder, floors):
    below = set()
    for lower in floors[folder].depends:
        below |= {lower} | reachable(lower, floors)
    return below


def picture(floors):
    """The floors from the top, each with those right below it (what these stand on is left out)."""
    width = max(map(len, floors))
    lines = []
    for level in sorted({floor.level for floor in floors.values()}, reverse=True):
        head = f"floor {level}"
        for floor in (floor for floor in floors.values() if floor.level == level):
            further = set().union(*(reachable(lower, floors) for lower in floor.depends))
            direct = [lower for lower in floor.depends if lower not in further]
            arrow = f"  → {', '.join(direct)}" if direct else ""
            lines.append(f"{head:8}  {floor.folder:{width}}{arrow}".rstrip())
            head = ""
        lines.append("")
    return "```\n" + "\n".join(lines).rstrip() + "\n```\n"


def main(arguments):
    root = pathlib.Path(arguments[1] if arguments[:1] == ["--check"] else ".")
    problems = []
    floors = read_floors(root / "src/README.md", problems)
    if problems:  # everything else would only repeat them
        print("\n".join(problems))
        return 1
    page = root / "docs/architecture.md"
    text = page.read_text(encoding="utf-8")
    current = PICTURE.sub(lambda m: m.group(1) + picture(floors) + m.group(2), text)
    if arguments == ["--picture"]:
        page.write_text(current, encoding="utf-8")
    elif current != text or not PICTURE.search(text):
        problems.append(f"{page}: the picture of the floors is old; scripts/floors.py --picture writes it anew")
    if root == pathlib.Path("."):
        tracked = subprocess.run(["git", "ls-files", "src/*.cpp", "src/*.h"], capture_output=True, text=True, check=True)
        names = tracked.stdout.split()
    else:
        names = sorted(str(p.relative_to(root)) for p in (root / "src").rglob("*") if p.suffix in (".cpp", ".h"))
    for name in names:
        if (root / name).exists():
            check_source(name, (root / name).read_text(encoding="utf-8"), floors, problems)
    print("\n".join(problems) or "floors: kept")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
