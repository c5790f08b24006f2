"""dialog_test.py SCENARIO: what a planner does with the selection dialog, with mouse and keyboard, and what comes of it.

Without a scenario it names them all. Pictures are in build/test-output."""

import os
import pathlib
import shutil
import subprocess
import sys

import screen
from desktop import Desktop, wait_for, windows_path

ROOT = pathlib.Path(__file__).resolve().parents[2]
BIN = ROOT / "build/mingw-x64/bin"
PICTURES = ROOT / "build/test-output"
WHITE = (255, 255, 255)
USUAL, DOUBLE = 96, 192  # pixels to an inch of the desktop
STILL = 8  # equal pictures in a row
FRAME = 2  # pixels of the window's frame in which it is grasped


def require(condition, *what):
    if not condition:
        raise AssertionError(*what)


def wine(*arguments):
    subprocess.run(["wine", *map(str, arguments)], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def set_resolution(value):
    wine("reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD", "/d", value, "/f")
    subprocess.run(["wineserver", "-w"], check=True)  # programs read it when the desktop starts


class Dialog:
    """The dialog of a host with the sample catalogue, "Sofa" selected, on a desktop of a resolution."""

    def __init__(self, name, resolution=USUAL):
        self.name = name
        self.resolution = resolution
        self.folder = pathlib.Path(os.environ["SCREEN"]).parent
        (self.folder / "bilder").mkdir()
        (self.folder / "texte").mkdir()
        for symbol in (ROOT / "samples/katalog").rglob("*.syt"):  # all in one folder: the host reads no subfolders
            shutil.copy(symbol, self.folder / "texte")
        wine(BIN / "planhost.exe", "convert", windows_path(self.folder / "texte"), windows_path(self.folder / "katalog"))

    def __enter__(self):
        if self.resolution != USUAL:
            set_resolution(self.resolution)
        self.desktop = Desktop(str(BIN / "automation_host.exe"), "choose", windows_path(self.folder))
        self.desktop.__enter__()
        self.look("Breite:")
        return self

    def __exit__(self, *error):
        if error[0] is not None:
            self.save("failed")
        self.desktop.__exit__(*error)
        if self.resolution != USUAL:
            set_resolution(USUAL)

    def look(self, text=""):
        self.window = self.desktop.window("#32770", text)
        return self.window

    def control(self, kind):
        """Text and place of the first control of a class."""
        for control_kind, text, *place in self.look().controls:
            if control_kind.lower() == kind.lower():
                return text, tuple(map(int, place))
        raise AssertionError(f"no {kind} in {self.window.controls}")

    def preview(self):
        """The place of the largest control that is no list."""
        return max((tuple(map(int, c[2:])) for c in self.look().controls if c[0].lower() == "static"),
                   key=lambda place: (place[2] - place[0]) * (place[3] - place[1]))  # fmt: skip

    def wait_for_preview(self):
        """Waits until something is drawn in the preview; how many of its pixels are not white."""

        def drawn():
            picture = screen.take().part(*self.preview())
            return picture.width * picture.height - picture.count(WHITE)

        # The frame alone is a line round it.
        left, top, right, bottom = self.preview()
        return wait_for("a drawing", lambda: (count := drawn()) > 3 * (right - left + bottom - top) and count)

    def save(self, what):
        PICTURES.mkdir(parents=True, exist_ok=True)
        left, top, right, bottom = self.window.area
        picture = screen.take()
        caption = 40 * self.resolution // USUAL
        picture.part(max(left - 8, 0), max(top - caption, 0), min(right + 8, picture.width),
                     min(bottom + 8, picture.height)).save(PICTURES / f"{self.name}-{what}.png")  # fmt: skip

    def chosen(self):
        """What the host got, once the dialog is closed."""
        self.desktop.wait_for_end()
        for line in (self.folder / "wine.log").read_text(encoding="utf-8", errors="replace").splitlines():
            if line.startswith("chosen: "):
                return line.removeprefix("chosen: ").rstrip("\r")
        raise AssertionError("the host got nothing")

    def drag_corner(self, dx, dy):
        _, _, right, bottom = self.look().area
        self.desktop.move(right + FRAME, bottom + FRAME)
        self.desktop.press()
        self.desktop.move(right + FRAME + dx // 2, bottom + FRAME + dy // 2)
        self.desktop.move(right + FRAME + dx, bottom + FRAME + dy)
        self.desktop.release()

    def resize(self, dx, dy):
        width, height = size(self.look().area)
        self.drag_corner(dx, dy)
        wait_for("the new size", lambda: size(self.look().area) == (width + dx, height + dy))


    def picture(self):
        """The client area, without the mouse."""
        self.desktop.move(1, 1)
        return screen.take().part(*self.look().area)

    def settled_picture(self):
        """The same, when nothing is being painted any more."""
        seen = []

        def unchanged():
            seen.append(self.picture())
            return len(seen) >= STILL and all(picture == seen[-1] for picture in seen[-STILL:]) and seen[-1]

        return wait_for("a picture that stays", unchanged)


def size(place):
    return place[2] - place[0], place[3] - place[1]


def selecting():
    """Keys move through the list, the preview follows, Enter accepts."""
    with Dialog("dialog-100") as dialog:
        dialog.wait_for_preview()
        dialog.settled_picture()
        dialog.save("opened")
        first, _ = dialog.control("ListBox")
        before = screen.take().part(*dialog.preview())
        dialog.desktop.key("Down", "Down")
        wait_for("the second next entry", lambda: int(dialog.control("ListBox")[0]) == int(first) + 2)
        wait_for("another drawing", lambda: screen.take().part(*dialog.preview()) != before)
        dialog.desktop.type("sofa z")
        wait_for("Sofa zweisitzig", lambda: int(dialog.control("ListBox")[0]) == int(first) - 1)
        dialog.desktop.key("Down", "Down", "Down", "Return")
        require(dialog.chosen() == "Spüle", dialog.chosen())


def resizing():
    """List and preview follow the window's corner, down to a smallest size; nothing of the old places is left."""
    with Dialog("dialog-resized") as dialog:
        dialog.wait_for_preview()
        at_first = dialog.settled_picture()
        opened = size(dialog.window.area)
        list_before, preview_before = size(dialog.control("ListBox")[1]), size(dialog.preview())
        dialog.resize(150, 90)
        require(size(dialog.control("ListBox")[1]) == (list_before[0] + 50, list_before[1] + 90))
        require(size(dialog.preview()) == (preview_before[0] + 100, preview_before[1] + 90))
        dialog.wait_for_preview()
        dialog.save("large")
        larger = dialog.settled_picture()
        dialog.resize(60, 40)
        dialog.resize(-60, -40)
        wait_for("the same picture again", lambda: dialog.picture() == larger)
        dialog.resize(-150, -90)
        wait_for("the first picture again", lambda: dialog.picture() == at_first)
        dialog.drag_corner(-600, -500)
        wait_for("a small window", lambda: size(dialog.look().area)[0] < opened[0])
        dialog.settled_picture()
        small = size(dialog.window.area)
        dialog.save("small")
        dialog.drag_corner(-200, -200)
        dialog.desktop.key("Up")
        wait_for("the smallest size", lambda: size(dialog.look().area) == small)
        dialog.desktop.key("Escape")
        require(dialog.chosen() == "", dialog.chosen())


def doubled():
    """On a desktop of 200 % everything is twice as large; a double click accepts."""
    with Dialog("dialog-100") as dialog:
        usual = size(dialog.window.area)
        dialog.desktop.key("Escape")
        require(dialog.chosen() == "")
    for name in ("texte", "katalog", "bilder"):
        shutil.rmtree(dialog.folder / name)
    with Dialog("dialog-200", DOUBLE) as dialog:
        now = size(dialog.window.area)
        require(all(1.8 < a / b < 2.2 for a, b in zip(now, usual)), now, usual)
        dialog.wait_for_preview()
        dialog.save("opened")
        left, top, *_ = dialog.control("ListBox")[1]
        dialog.desktop.move(left + 40, top + 12)
        dialog.desktop.click()
        before = int(wait_for("a selection", lambda: dialog.control("ListBox")[0]))
        dialog.desktop.click()
        require(before >= 0)
        require(dialog.chosen() != "", "a double click")


def exporting():
    """The access key starts the export; each entry gets its picture, and the dialog is there for the user meanwhile."""
    with Dialog("dialog-export") as dialog:
        dialog.wait_for_preview()
        dialog.desktop.key("alt+j")
        dialog.look(" von 95")
        dialog.save("running")
        pictures = dialog.folder / "bilder"
        wait_for("all pictures", lambda: len(list(pictures.glob("*.JPG"))) == 95)
        dialog.look("Alle als &JPEG speichern")
        dialog.look("95 Bilder in " + windows_path(pictures) + " gespeichert")
        dialog.settled_picture()
        dialog.save("saved")
        dialog.desktop.key("Escape")
        require(dialog.chosen() == "")
        for picture in pictures.iterdir():
            data = picture.read_bytes()
            require(data[:3] == b"\xff\xd8\xff" and data[-2:] == b"\xff\xd9", picture)


SCENARIOS = {scenario.__name__: scenario for scenario in (selecting, resizing, doubled, exporting)}

if __name__ == "__main__":
    if len(sys.argv) == 1:
        print(*SCENARIOS, sep="\n")
    else:
        SCENARIOS[sys.argv[1]]()
        print("1 passed, 0 failed, 0 skipped")
