"""harness_test.py: lets scripts/test run planted faults and sees that it calls every one of them red, and nothing else."""

import os
import re
import subprocess
import sys

TABLE = "tests/harness/faults"
FAULTS = {
    f"{fault}-{road}"
    for fault in ("failing-teardown", "refused-registration", "silent-end", "abort-after-summary", "failing-case",
                  "skip-without-reason", "empty-filter")
    for road in ("native", "wine")
} | {"leak", "silent-script", "empty-script", "failing-script", "talking-script", "hanging-script", "missing-program",
     "failing-build", "killed-judge"}  # fmt: skip
SOUND = {"sound-native": 3, "sound-wine": 3, "sound-script": 2, "skip-one-native": 2, "skip-one-wine": 2, "skip-script": 0}


def test(*arguments):
    environment = {**os.environ, "CHECKS_TABLE": TABLE}
    run = subprocess.run(["scripts/test", *arguments], env=environment, capture_output=True, text=True)
    for line in (run.stdout + run.stderr).splitlines():
        print("|", line)
    figures = {}
    for name, *counts in re.findall(r"^(\S+) +(\d+) passed +(\d+) failed +(\d+) skipped +\d+ s", run.stdout, re.MULTILINE):
        figures[name] = tuple(map(int, counts))
    return run.returncode, run.stdout.splitlines(), figures


def cases():
    status, lines, figures = test()
    yield "every planted check has figures", figures.keys() == FAULTS | SOUND.keys()
    for name in sorted(FAULTS):
        yield name, figures.get(name, (0, 0, 0))[1] > 0
    for name, passed in SOUND.items():
        yield name, figures.get(name) == (passed, 0, int(name.startswith("skip")))
    yield "faults end with a failure", status != 0
    sums = [sum(counts) for counts in zip(*figures.values())]
    yield "the last line adds up", lines[-1:] == [f"{sums[0]} passed, {sums[1]} failed, {sums[2]} skipped"]
    yield "a reason for what is skipped", "skip-script: skipped: all: no such device" in lines
    reason = "skip-one-native: skipped: Faulty.Second: there is no such device here"
    yield "a reason from GoogleTest", reason in lines

    status, lines, figures = test("^so.nd-script$")
    yield "a regular expression chooses", figures.keys() == {"sound-script"}
    yield "sound checks end well", status == 0 and lines[-1:] == ["2 passed, 0 failed, 0 skipped"]

    status, lines, figures = test("no-such-name")
    yield "no check at all is red", status != 0 and lines[-1:] == ["0 passed, 1 failed, 0 skipped"]


def main():
    counts = [0, 0]
    for name, holds in cases():
        counts[not holds] += 1
        if not holds:
            print(f"failed: {name}")
    print(f"{counts[0]} passed, {counts[1]} failed, 0 skipped")
    return 1 if counts[1] else 0


if __name__ == "__main__":
    sys.exit(main())
