"""The plan editor as its user sees it, and the plan files that it leaves."""

import math
import os
import pathlib
import shutil
import subprocess
import time

import screen
from desktop import PAUSE, Desktop, wait_for, windows_path

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = ROOT / "build/mingw-x64/bin/planhost.exe"
PICTURES = ROOT / "build/test-output"
ROOM = ROOT / "tests/display/zimmer.plan"
FLAT = ROOT / "samples/planhost/wohnung.plan"
MARK = (0, 95, 184)
WALL = (74, 74, 78)
MARGIN = 8  # pixels round the sheet
UNITS = 100  # in a millimetre
NEW_SHEET = (12000, 9000)


def folder():
    """For what this run writes; empty at its start."""
    return pathlib.Path(os.environ["SCREEN"]).parent


def copy_of(plan):
    target = folder() / plan.name
    shutil.copyfile(plan, target)
    return target


def make_catalogue():
    catalogue = folder() / "katalog"
    subprocess.run(
        ["wine", PROGRAM, "convert", windows_path(ROOT / "samples/katalog"), windows_path(catalogue)],
        check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)  # fmt: skip
    return catalogue


def sheet_of(plan):
    """Width and height in millimetres."""
    for line in plan.read_text(encoding="utf-8").splitlines():
        if line.startswith("PLAN;"):
            return tuple(map(int, line.split(";")[2:4]))
    raise AssertionError(f"no sheet in {plan}")


def symbols_of(plan):
    """(name, x, y, degrees) of all placed symbols, in millimetres."""
    records = (line.split(";") for line in plan.read_text(encoding="utf-8").splitlines() if line.startswith("SYMBOL;"))
    return [(name, float(x), float(y), float(angle)) for _, name, x, y, angle in records]


class Editor:
    """A running editor with a plan; the map from plan to pixels is worked out here once more, from the sizes alone."""

    def __init__(self, plan=None, settings="[Ansicht]\nFangen=0\nWeitersetzen=0\n", prepare=None):
        """Without a plan: with the new one that the editor makes. settings: what it remembers; None: as it left them.
        prepare: what else is to be done with the catalogue's folder."""
        self.catalogue = catalogue = make_catalogue()
        if prepare:
            prepare(catalogue)
        self.plan = plan
        self.settings = folder() / "planhost.ini"
        if settings is not None:
            self.settings.write_text(settings, encoding="utf-16")
        os.environ["PLANHOST_INI"] = windows_path(self.settings)
        arguments = [windows_path(catalogue)] + ([windows_path(plan)] if plan else [])
        self.desktop = Desktop(str(PROGRAM), "edit", *arguments)
        self.sheet = sheet_of(plan) if plan else NEW_SHEET

    def __enter__(self):
        self.desktop.__enter__()
        self.wait_for_window(f"{self.plan.name if self.plan else 'Unbenannt'} – Planhost")
        return self

    def __exit__(self, *error):
        if error[0] is not None:
            PICTURES.mkdir(parents=True, exist_ok=True)
            screen.take().save(PICTURES / f"{folder().name}-failed.png")
        self.desktop.__exit__(*error)

    # What is to be seen

    def wait_for_window(self, title=""):
        window = self.desktop.window("PlanhostEditor", title)
        self.window = window.area
        self.area = next(tuple(map(int, c[2:6])) for c in window.controls if c[0] == "PlanhostPlan")
        width, height = self.area[2] - self.area[0], self.area[3] - self.area[1]
        scale = max(self.sheet[0] * UNITS / (width - 2 * MARGIN), self.sheet[1] * UNITS / (height - 2 * MARGIN))
        self.scale = math.ceil(scale * 256) / 256  # a tile of 256 pixels begins at whole units
        self.offset = tuple(round((side * UNITS / self.scale - pixels) / 2) * self.scale
                            for side, pixels in zip(self.sheet, (width, height)))  # fmt: skip
        return window

    def zoomed_about(self, pixel, scale):
        """From here on the plan is seen at this scale, and the place under this pixel is where it was."""
        at = [part * self.scale + offset for part, offset in zip(pixel, self.offset)]
        self.scale = math.ceil(scale * 256) / 256
        self.offset = tuple(round(place / self.scale - part) * self.scale for place, part in zip(at, pixel))

    def status(self):
        """Hint, position and count of the front window; empty texts while that is not the editor's."""
        windows = self.desktop.windows()
        return windows[0].status if windows and windows[0].kind == "PlanhostEditor" else ["", "", "", ""]

    def wait_for_status(self, part, text):
        wait_for(f"status {text!r}", lambda: text in self.status()[part])

    def wait_for_hint(self, text):
        self.wait_for_status(0, text)

    def wait_for_direction(self, degrees):
        wait_for(f"direction {degrees}°", lambda: self.status()[1].endswith(f" {degrees}°"))

    def wait_for_more_than(self, degrees):
        wait_for(f"more than {degrees}°", lambda: int(self.status()[1].split()[-1].rstrip("°")) > degrees)

    def wait_for_count(self, text):
        wait_for(f"count {text!r}", lambda: self.status()[2] == text)

    def picture(self):
        """The plan's part of the screen, once it has settled."""
        return self._part(self._settled())

    def _settled(self):
        """The screen when it has stayed the same while the program answered several times."""
        last, same = screen.take(), 0
        while same < 3:
            self.desktop.windows()
            time.sleep(PAUSE)
            now = screen.take()
            last, same = now, same + 1 if now == last else 0
        return last

    def _part(self, picture):
        return picture.part(*self.area)

    def wait_for_picture(self, what, condition):
        return self.desktop.wait_for_picture(what, lambda picture: condition(self._part(picture)))

    def wait_for_same(self, what, expected):
        """Waits until the plan's part of the screen is the expected picture, pixel by pixel."""
        try:
            self.wait_for_picture(what, lambda picture: picture == expected)
        except AssertionError as error:
            raise AssertionError(f"{what}: {self._part(screen.take()).differing(expected)} pixels differ") from error

    @staticmethod
    def save_picture_of(desktop, name):
        """The screen, once the front window has answered."""
        desktop.windows()
        screen.take().save(PICTURES / f"{folder().name}-{name}.png")

    def save_picture(self, name):
        PICTURES.mkdir(parents=True, exist_ok=True)
        self._settled().save(PICTURES / f"{folder().name}-{name}.png")

    # Places: millimetres of the plan and pixels of the picture

    def pixel(self, x, y):
        return tuple(round((place * UNITS - offset) / self.scale) for place, offset in zip((x, y), self.offset))

    def place(self, pixel):
        """Where a click at this pixel is in the plan."""
        return tuple(round(part * self.scale + offset) / UNITS for part, offset in zip(pixel, self.offset))

    # What the user does

    def point_at(self, pixel):
        """Moves the mouse and waits until the editor knows."""
        self.desktop.move(self.area[0] + pixel[0], self.area[1] + pixel[1])
        x, y = self.place(pixel)
        wait_for(f"mouse at {x}, {y}", lambda: self._is_near(x, y))

    def _is_near(self, x, y):
        words = self.status()[1].split()  # x 1 mm y 2 mm
        return len(words) >= 6 and abs(int(words[1]) - x) <= 1 and abs(int(words[4]) - y) <= 1

    def park(self):
        """Takes the mouse out of the picture."""
        self.desktop.move(self.window[2] - 200, self.window[3] - 10)

    def click_at(self, pixel):
        self.point_at(pixel)
        self.desktop.click()

    def drag(self, start, end):
        self.point_at(start)
        self.desktop.press()
        self.point_at(((start[0] + end[0]) // 2, (start[1] + end[1]) // 2))
        self.point_at(end)
        self.desktop.release()

    def key(self, *keys):
        self.desktop.key(*keys)

    def answer(self, text, *keys):
        """Waits for a message or a dialog with this text, and gives it these keys."""
        self.desktop.window("#32770", text)
        self.key(*keys)

    def answer_with_file(self, title, path):
        """Types a path into a file dialog."""
        self.desktop.window("#32770", title)
        self.desktop.type(windows_path(path))
        self.key("Return")

    def double_click_caption(self):
        """Maximises the window or gives it its size back; waits for the new size."""
        before = self.area
        self.desktop.move(self.window[0] + 300, self.window[1] - 30)
        self.desktop.double_click()
        wait_for("another size", lambda: self.wait_for_window().area != before)

    def save(self):
        self.key("ctrl+s")
        self.wait_for_window(f"{self.plan.name} – Planhost")

    def quit_without_saving(self):
        self.key("alt+F4")
        self.answer("Änderungen speichern?", "n")
        self.desktop.wait_for_end()

    def quit(self):
        self.key("alt+F4")
        self.desktop.wait_for_end()


def turned(vector, degrees):
    """Counter-clockwise as seen, y downwards."""
    angle = math.radians(degrees)
    x, y = vector
    return (x * math.cos(angle) + y * math.sin(angle), -x * math.sin(angle) + y * math.cos(angle))
