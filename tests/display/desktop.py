"""A program of the Wine prefix on the display, driven by real mouse and key events as a user gives them.

Nothing is timed: whoever gives an event waits for what it brings about, and a limit that no healthy machine
reaches turns a missing answer into a failure."""

import os
import subprocess
import time

import screen

LIMIT = 120  # seconds
PAUSE = 0.05  # between two looks
NAME = "test"  # of the Windows desktop


class Missing(AssertionError):
    """What was waited for did not come."""


def windows_path(path):
    return "Z:" + os.path.abspath(path).replace("/", "\\")


def wait_for(what, condition):
    """The first answer of the condition that is not false; what: for the message."""
    end = time.monotonic() + LIMIT
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Missing(f"{what}: {answer!r}")
        time.sleep(PAUSE)


class Window:
    """A top-level window: class, text, client area as (left, top, right, bottom), controls, status texts."""

    def __init__(self, kind, text, *area):
        self.kind = kind
        self.text = text
        self.area = tuple(map(int, area))
        self.controls = []
        self.status = []


class Desktop:
    """Starts a program; leaving the block ends it, however it stands."""

    def __init__(self, program, *arguments):
        size = os.environ["SCREEN_SIZE"]
        self._log = open(os.path.join(os.path.dirname(os.environ["SCREEN"]), "wine.log"), "wb")
        self._reader = None
        command = ["wine", "explorer", f"/desktop={NAME},{size},x11", windows_path(program), *arguments]
        self._program = subprocess.Popen(command, stdout=self._log, stderr=self._log)
        self._folder = os.path.dirname(program)

    def start_beside(self, program, *arguments):
        """One more program on the same desktop."""
        size = os.environ["SCREEN_SIZE"]
        command = ["wine", "explorer", f"/desktop={NAME},{size},x11", windows_path(program), *arguments]
        subprocess.Popen(command, stdout=self._log, stderr=self._log)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._stop_reader()
        self._log.close()
        # What still runs on the display goes with it.

    def _stop_reader(self):
        if self._reader is not None:
            self._reader.stdin.close()
            self._reader.wait(LIMIT)
            self._reader = None

    def _start_reader(self):
        self._reader = subprocess.Popen(
            ["wine", os.path.join(self._folder, "window_reader.exe"), NAME],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=self._log, encoding="utf-8")  # fmt: skip

    def tell_dots(self, dots, area):
        """Tells the front window that its screen has so many dots to the inch now; area: of its client."""
        self.windows(f"dots {dots} {' '.join(map(str, area))}")

    def windows(self, order=""):
        """All visible windows, the front one first; none before the desktop is there. order: what the reader is to do
        before."""
        if self._reader is None:
            self._start_reader()
        try:
            self._reader.stdin.write(order + "\n")
            self._reader.stdin.flush()
        except BrokenPipeError:
            pass
        found = []
        while True:
            line = self._reader.stdout.readline()
            if not line:  # there is no desktop yet, or no more
                self._reader.wait(LIMIT)
                self._reader = None
                return []
            kind, *fields = line.rstrip("\r\n").split("\t")
            if kind == "window":
                found.append(Window(*fields))
            elif kind == "control":
                found[-1].controls.append(fields)
            elif kind == "part":
                found[-1].status.append(fields[1])
            else:
                return found

    def window(self, kind, text=""):
        """Waits for the front window to be one of this class with this in its text or in a control's."""

        def front():
            windows = self.windows()
            if windows and windows[0].kind == kind:
                if text in windows[0].text or any(text in control[1] for control in windows[0].controls):
                    return windows[0]
            return None

        return wait_for(f"window {kind} {text!r}", front)

    def wait_for_end(self):
        """Waits until the program has ended of itself, and the desktop after it."""
        wait_for("the window's end", lambda: not self.windows())
        self._stop_reader()  # it keeps the desktop
        wait_for("the program's end", lambda: self._program.poll() is not None)

    @staticmethod
    def _event(*arguments):
        subprocess.run(["xdotool", *map(str, arguments)], check=True)

    def move(self, x, y):
        self._event("mousemove", x, y)

    def press(self, button=1):
        self._event("mousedown", button)

    def release(self, button=1):
        self._event("mouseup", button)

    def click(self, button=1):
        self._event("click", button)

    def wheel(self, up):
        self._event("click", 4 if up else 5)

    def double_click(self):
        self._event("click", "--repeat", 2, "--delay", 20, 1)

    def hold(self, key):
        self._event("keydown", key)

    def let_go(self, key):
        self._event("keyup", key)

    def key(self, *keys):
        self._event("key", *keys)

    def type(self, text):
        self._event("type", "--", text)

    @staticmethod
    def wait_for_picture(what, condition):
        """Waits until the screen is as the condition wants it; that picture."""
        return wait_for(what, lambda: (lambda picture: condition(picture) and picture)(screen.take()))
