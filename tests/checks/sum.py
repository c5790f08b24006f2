"""sum.py CTEST_STATUS NAME…: adds the figures of all checks; one without figures has failed."""

import pathlib
import sys

RESULTS = pathlib.Path("build/test-results")


def main():
    ctest_status, names = int(sys.argv[1]), sys.argv[2:]
    total, notes = [0, 0, 0], []
    for name in names:
        file = RESULTS / name
        if file.exists():
            figures, *lines = file.read_text(encoding="utf-8").splitlines()
        else:
            figures, lines = "0 1 0 0 0", ["failed: no result: what it needs could not be made, or its judge was ended"]
        *counts, seconds, used = map(int, figures.split())
        total = [a + b for a, b in zip(total, counts)]
        notes += [f"{name}: {line}" for line in lines]
        print(f"{name:32} {counts[0]:5} passed {counts[1]:4} failed {counts[2]:4} skipped {seconds:6} s {used:6} s of a processor")
    if ctest_status != 0 and total[1] == 0:
        total[1] = 1
        notes.append(f"failed: ctest ended with {ctest_status}")
    print(*(["", *notes]), sep="\n")
    print(f"{total[0]} passed, {total[1]} failed, {total[2]} skipped")
    return 1 if total[1] else 0


if __name__ == "__main__":
    sys.exit(main())
