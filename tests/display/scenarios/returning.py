"""Who comes back finds the window where it was, the last plan, the plans before it, the favourites and the switches."""

from checks import require
from desktop import Desktop, wait_for
from editor import FLAT, PROGRAM, ROOM, Editor, copy_of

FILTER = (100, 18)  # from the palette's left top
FIRST = (58, 138)  # the middle of the first tile
FRAME = 2  # pixels of the window's frame in which it is grasped


def run():
    other = copy_of(FLAT)
    with Editor(copy_of(ROOM)) as editor:
        desktop = editor.desktop

        def area():
            return desktop.window("PlanhostEditor").area

        def drag(start, way, what):
            before = area()
            desktop.move(*start)
            desktop.press()
            for part in (2, 1):
                desktop.move(start[0] + way[0] // part, start[1] + way[1] // part)
            desktop.release()
            wait_for(what, lambda: area() != before)

        # Smaller, and elsewhere.
        drag((editor.window[2] + FRAME, editor.window[3] + FRAME), (-150, -120), "another size")
        drag((editor.window[0] + 300, editor.window[1] - 30), (70, 90), "another place")
        editor.wait_for_window()
        editor.key("F7", "F9")  # the grid on; snapping, which this scenario begins without, on
        editor.desktop.move(editor.window[0] + FILTER[0], editor.area[1] + FILTER[1])
        editor.desktop.click()
        editor.desktop.type("nordpfeil")
        editor.key("Down", "space", "Escape", "Escape")
        editor.key("ctrl+o")
        editor.answer_with_file("Plan öffnen", other)
        editor.plan, editor.sheet = other, (16600, 13780)
        editor.wait_for_window("wohnung.plan – Planhost")
        left = area()
        editor.quit()

    with Desktop(str(PROGRAM)) as desktop:
        window = desktop.window("PlanhostEditor", "wohnung.plan – Planhost")
        require(window.area == left, window.area, left)
        require(window.status[2] == "107 Symbole", window.status)
        editor.save_picture_of(desktop, "again")
        # The favourite stands first; snapping and the grid are as they were left.
        plan = next(tuple(map(int, c[2:6])) for c in window.controls if c[0] == "PlanhostPlan")
        desktop.move(left[0] + FIRST[0], plan[1] + FIRST[1])
        desktop.click()
        wait_for("the favourite", lambda: desktop.windows()[0].status[0].startswith("Nordpfeil: Klick setzt"))
        desktop.key("Escape")
        settings = editor.settings.read_text(encoding="utf-16")
        require("Raster=1" in settings and "Fangen=1" in settings, settings)
        # The plan before is the second of the recent ones.
        desktop.key("alt+p")
        desktop.window("#32768")
        desktop.key("z")
        desktop.key("2")
        desktop.window("PlanhostEditor", "zimmer.plan – Planhost")
        # Left maximised, it comes back so, and has its place below that still.
        desktop.move(left[0] + 300, left[1] - 30)
        desktop.double_click()
        wait_for("the whole screen", lambda: desktop.window("PlanhostEditor").area[2] > 1200)
        desktop.key("alt+F4")
        desktop.wait_for_end()

    with Desktop(str(PROGRAM)) as desktop:
        whole = desktop.window("PlanhostEditor", "zimmer.plan – Planhost").area
        require(whole[2] > 1200, whole)
        desktop.move(whole[0] + 300, whole[1] - 30)
        desktop.double_click()
        wait_for("its place", lambda: desktop.window("PlanhostEditor").area == left)
        desktop.key("alt+F4")
        desktop.wait_for_end()
