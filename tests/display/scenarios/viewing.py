"""The wheel zooms about the mouse, the middle button and Space pan; the picture is smooth, and what tools draw in it leaves
nothing behind."""

from checks import require
from desktop import wait_for
from editor import FLAT, UNITS, Editor, copy_of, symbols_of


def shades(picture, at):
    """How many colours there are around a place."""
    return len({picture.at(at[0] + dx, at[1] + dy) for dx in range(-12, 13) for dy in range(-12, 13)})


def run():
    def wait_for_zoom(scale):
        """As it is seen on a screen of 96 dots to the inch."""
        editor.wait_for_status(3, f"1:{round(scale / UNITS * 96 / 25.4)}")

    with Editor(copy_of(FLAT)) as editor:
        editor.wait_for_count("107 Symbole")
        fitted = editor.scale
        wait_for_zoom(fitted)
        editor.park()
        whole = editor.picture()
        # Round things have soft edges: more shades than the few colours of a compass.
        north = next(symbol for symbol in symbols_of(editor.plan) if symbol[0] == "Nordpfeil")
        require(shades(whole, editor.pixel(*north[1:3])) > 12, "no smooth lines")

        # Three notches towards the car: what was under the mouse stays there.
        car = editor.pixel(15000, 8000)
        editor.point_at(car)
        for _ in range(3):
            editor.desktop.wheel(up=True)
            editor.zoomed_about(car, editor.scale / 2 ** 0.25)
        wait_for_zoom(editor.scale)
        editor.point_at(editor.pixel(14000, 8000))
        editor.save_picture("zoomed")
        require(editor.status()[2] == "107 Symbole", editor.status())

        # By the middle button, then by Space: the place goes where the mouse goes.
        for press, release, button in ((None, None, 2), ("space", "space", 1)):
            start, end = (500, 400), (380, 330)
            editor.point_at(start)
            if press:
                editor.desktop.hold(press)
            editor.desktop.press(button)
            editor.desktop.move(editor.area[0] + end[0], editor.area[1] + end[1])
            editor.offset = tuple(o + (a - b) * editor.scale for o, a, b in zip(editor.offset, start, end))
            wait_for("panned", lambda: editor._is_near(*editor.place(end)))
            editor.desktop.release(button)
            if release:
                editor.desktop.let_go(release)
        editor.point_at((600, 300))

        # A tool at this zoom: nothing stays behind, and the click is where it is shown.
        editor.park()
        clean = editor.picture()
        editor.click_at(editor.pixel(15000, 8000))
        editor.wait_for_count("107 Symbole, 1 markiert")
        editor.key("F3")
        editor.wait_for_hint("Auto: Klick setzt")
        for place in ((400, 300), (500, 420), (300, 200)):
            editor.point_at(place)
            editor.key("Prior")
        editor.save_picture("tool")
        editor.key("Escape")
        editor.wait_for_hint("markiert Symbole")
        editor.park()
        editor.wait_for_same("after the tool", clean)
        editor.key("F3")
        editor.wait_for_hint("Auto: Klick setzt")
        editor.desktop.wheel(up=False)  # with the tool in hand
        wait_for_zoom(editor.scale * 2 ** 0.25)
        editor.key("Escape")

        # What is marked fills the window; the true size; the whole again, pixel by pixel.
        editor.key("ctrl+a", "ctrl+2")
        wait_for("all marked", lambda: editor.status()[2].endswith("107 markiert"))
        editor.key("ctrl+1")
        editor.wait_for_status(3, "1:1")
        editor.key("Escape", "ctrl+0")
        wait_for_zoom(fitted)
        editor.park()
        editor.wait_for_same("the whole plan", whole)

        # The grid darkens its points, and goes again.
        editor.key("F7")
        editor.wait_for_picture("the grid", lambda now: now != whole)
        editor.save_picture("grid")
        editor.key("F7")
        editor.wait_for_same("without the grid", whole)
        editor.quit()
