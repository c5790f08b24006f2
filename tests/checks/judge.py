"""judge.py RUN NAME [--limit SECONDS] OPTION… -- COMMAND…: runs a check and judges what came of it.

Two ways of telling a result are understood: a last line "N passed, N failed, N skipped" (and before it a line
"skipped: NAME: REASON" for every skipped case), else GoogleTest's report. The check is red when a case failed, when its
exit status is not 0, when nothing ran, when there is no result or one that does not add up, when a case was skipped
without a reason, and when it took longer than its limit. Its output goes to build/test-logs, its figures to
build/test-results: a line "passed failed skipped seconds processor-seconds", then what there is to say about each failed and
skipped case."""

import os
import pathlib
import re
import resource
import signal
import subprocess
import sys
import time

SKIPPED = 77  # what CTest takes for skipped
CLOSING = re.compile(r"(\d+) passed, (\d+) failed, (\d+) skipped")
NOISE = re.compile(r"\[ +(RUN|OK) +\]|\[-+\]|$")


class Result:
    def __init__(self):
        self.passed = self.failed = self.skipped = 0
        self.notes = []

    def fail(self, note):
        self.failed += 1
        self.notes.append(f"failed: {note}")


def number(pattern, text):
    return sum(map(int, re.findall(pattern, text, re.MULTILINE)))


def by_closing_line(figures, lines, result):
    result.passed, result.failed, result.skipped = map(int, figures)
    result.notes += [line for line in lines if line.startswith(("failed: ", "skipped: "))]


def skip_notes(lines):
    """A GoogleTest program gives the reason between a test's first and last line."""
    running, reasons = None, []
    for line in lines:
        if line.startswith("[ RUN      ] "):
            running, reasons = line[13:], []
        elif running and re.match(r"\[ +(SKIPPED|OK|FAILED) +\] ", line):
            if line.startswith("[  SKIPPED ] ") and reasons:
                yield f"skipped: {running}: {' '.join(reasons)}"
            running = None
        elif running and line and not line.endswith(": Skipped"):
            reasons.append(line)


def by_googletest(text, lines, result):
    begun = re.findall(r"^\[={10}\] Running (\d+) tests? from", text, re.MULTILINE)
    ended = re.findall(r"^\[={10}\] (\d+) tests? from \d+ test suites? ran\.", text, re.MULTILINE)
    if len(begun) != len(ended):
        result.passed = len(re.findall(r"^\[       OK \] ", text, re.MULTILINE))
        result.fail("ended before its result")
        return
    if not begun:
        result.fail("no result")
        return
    result.passed = number(r"^\[  PASSED  \] (\d+) test", text)
    result.failed = number(r"^\[  FAILED  \] (\d+) tests?, listed below", text)
    result.skipped = number(r"^\[  SKIPPED \] (\d+) tests?, listed below", text)
    result.notes += sorted({f"failed: {name}" for name in re.findall(r"^\[  FAILED  \] ([^ ,]+\.[^ ,]+)", text, re.M)})
    result.notes += skip_notes(lines)
    ran = sum(map(int, ended))
    if ran != sum(map(int, begun)) or ran != result.passed + result.failed + result.skipped:
        result.fail(f"{ran} tests ran, {sum(map(int, begun))} were to, {result.passed} passed")
    disabled = number(r"^ *YOU HAVE (\d+) DISABLED TEST", text)
    if disabled:
        result.skipped += disabled
        result.notes.append(f"skipped: {disabled} disabled in the source")


def judge(text, status):
    """What a finished command's output and exit status come to."""
    result = Result()
    lines = text.replace("\r", "").splitlines()
    last = next((line for line in reversed(lines) if line.strip()), "")
    closing = CLOSING.fullmatch(last)
    if closing:
        by_closing_line(closing.groups(), lines, result)
    else:
        by_googletest("\n".join(lines), lines, result)
    if result.passed + result.failed + result.skipped == 0:
        result.fail("nothing ran")
    reasons = sum(note.startswith("skipped: ") for note in result.notes)
    if result.skipped > 0 and reasons == 0:
        result.fail("skipped without a reason")
    if status != 0 and result.failed == 0:
        result.fail(f"exit status {status} in spite of its result")
    return result


def run(command, log, limit):
    """The exit status; what still runs after the limit is ended, children included."""
    with open(log, "wb") as output:
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT,
                                   start_new_session=True)  # fmt: skip
        try:
            return process.wait(limit)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGTERM)
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                pass
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            output.write(f"\nNo end after {limit} s.\n".encode())
            return "none (too slow)"


def main():
    runner, name, *arguments = sys.argv[1:]
    limit = int(arguments[arguments.index("--limit") + 1])
    logs, results = pathlib.Path("build/test-logs"), pathlib.Path("build/test-results")
    for folder in (logs, results):
        folder.mkdir(parents=True, exist_ok=True)
    log, file = logs / f"{name}.log", results / name
    file.unlink(missing_ok=True)
    began = time.monotonic()
    status = run([runner, "inside", name, *arguments], log, limit)
    text = log.read_text(encoding="utf-8", errors="replace")
    result = judge(text, status)
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    figures = f"{result.passed} {result.failed} {result.skipped} {time.monotonic() - began:.0f} {used.ru_utime + used.ru_stime:.0f}"
    file.write_text("\n".join([figures, *result.notes]) + "\n", encoding="utf-8")
    print(f"{result.passed} passed, {result.failed} failed, {result.skipped} skipped")
    if result.failed:
        shown = [line for line in text.replace("\r", "").splitlines() if not NOISE.match(line)]
        print("\n".join(shown[-60:]), "\n".join(result.notes), f"All of it: {log}", sep="\n")
        return 1
    return SKIPPED if result.passed == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
