"""At 150 % and on a small screen everything has its room; two windows share the clipboard; the preview shows the sheets."""

import os
import subprocess

from checks import require
from desktop import wait_for, windows_path
from editor import FLAT, PROGRAM, ROOM, Editor, copy_of, folder, symbols_of


def dots(count):
    subprocess.run(["wine", "reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD", "/d",
                    str(count), "/f"], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)  # fmt: skip


def inside(outer, inner):
    return outer[0] <= inner[0] <= inner[2] <= outer[2] and outer[1] <= inner[1] <= inner[3] <= outer[3]


def run():
    os.environ["SCREEN_SIZE"] = "1024x768"
    second = copy_of(ROOM)
    with Editor(copy_of(FLAT)) as editor:
        window = editor.wait_for_window()
        require(window.area[2] <= 1024 and window.area[3] <= 768, window.area)
        for control in window.controls:
            require(inside(window.area, tuple(map(int, control[2:6]))), control)
        editor.park()
        editor.save_picture("1024")

        # Sheets to print: fitted, then to scale.
        editor.key("ctrl+p")
        editor.desktop.window("#32770", "1 Blatt")
        editor.key("Down")
        editor.desktop.window("#32770", "1:50, ")
        editor.save_picture("preview")
        editor.key("Escape")
        editor.wait_for_hint("markiert Symbole")

        # From this window into another one.
        editor.click_at(editor.pixel(15000, 8000))
        editor.wait_for_count("107 Symbole, 1 markiert")
        editor.key("ctrl+c", "Escape")
        editor.desktop.start_beside(str(PROGRAM), "edit", windows_path(editor.catalogue), windows_path(second))
        editor.plan, editor.sheet = second, (8000, 6800)
        editor.wait_for_window("zimmer.plan – Planhost")
        editor.key("ctrl+v")
        editor.wait_for_hint("Einfügen: Klick setzt")
        at = editor.pixel(4000, 3000)
        editor.click_at(at)
        editor.wait_for_count("5 Symbole, 1 markiert")
        editor.save()
        car = symbols_of(second)[4]
        x, y = editor.place(at)
        require(car[0] == "Auto" and abs(car[1] - x) < 0.02 and abs(car[2] - y) < 0.02, car)
        editor.key("alt+F4")
        editor.wait_for_window("wohnung.plan – Planhost")
        editor.quit()

    dots(144)
    try:
        os.environ["SCREEN_SIZE"] = "1280x900"
        with Editor(folder() / FLAT.name) as editor:
            window = editor.wait_for_window()
            fields = [control for control in window.controls if control[0] == "Edit"]
            require(fields and all(int(field[5]) - int(field[3]) >= 28 for field in fields[:4]), fields)
            editor.click_at(editor.pixel(15000, 8000))
            editor.wait_for_count("107 Symbole, 1 markiert")
            editor.save_picture("150")
            editor.key("ctrl+u")
            editor.desktop.window("#32770", "Um eine Strecke")
            editor.save_picture("150-dialog")
            editor.key("Escape")
            editor.wait_for_window("wohnung.plan – Planhost")
            editor.quit()
    finally:
        dots(96)
