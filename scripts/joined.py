"""Joins the sources of the portable floors for an analysis: reading them with all their headers once takes a fraction of
the time of reading them file by file.

joined.py FOLDER N   writes N files into FOLDER that include all sources between them, and prints their paths. A path
                     begins in src/. What two of these sources keep to themselves must have two names.
"""

import pathlib
import sys

import floors

# The command line is not among them: the headers of its packages are not ours to analyse.
WINGS = ("base", "messages", "qmath", "qsymbol", "qplan", "platform")


def portable_sources(src):
    """The sources by floor, lowest first."""
    problems = []
    listed = floors.read_floors(src / "README.md", problems)
    if problems:
        sys.exit("\n".join(problems))
    return [sorted((src / floor.folder).glob("*.cpp")) for floor in listed.values()
            if floor.system != "Windows" and floor.folder.split("/")[0] in WINGS]


def shares(groups, count):
    """The groups in their order, as count lists with about as many bytes."""
    whole = sum(path.stat().st_size for group in groups for path in group)
    result, taken = [[] for _ in range(count)], 0
    for group in groups:
        result[min(count * taken // whole, count - 1)] += group
        taken += sum(path.stat().st_size for path in group)
    return result


def main(folder, count):
    src, folder = pathlib.Path("src"), pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    for number, share in enumerate(shares(portable_sources(src), int(count)), 1):
        # The analyzer of Clang knows by this name that the sources in it are no headers.
        joined = folder / f"UnifiedSource_{number}.cpp"
        joined.write_text("".join(f'#include "{path.relative_to(src)}"\n' for path in share), encoding="utf-8")
        print(joined)


if __name__ == "__main__":
    main(*sys.argv[1:])
