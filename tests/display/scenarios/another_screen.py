"""On its way to a screen of 150 % and back everything takes the new size, with a symbol marked and one in hand; and the true
size is that of the glass, as its user has measured it."""

from checks import require, require_symbol
from desktop import wait_for
from editor import ROOM, Editor, copy_of, symbols_of

MEASURED = 120  # dots to the inch


def controls(window, kind):
    return [tuple(map(int, control[2:6])) for control in window.controls if control[0] == kind]


def turn_handle(editor, picture):
    """How many pixels the white of the handle above the chest's upper edge is high."""
    x, y = editor.pixel(2000, 1400)
    column = [picture.at(x, above) == (255, 255, 255) for above in range(y - 8, 0, -1)]
    first = column.index(True)
    return column[first:].index(False)


def run():
    settings = f"[Ansicht]\nFangen=0\nWeitersetzen=0\nPunkteJeZoll={MEASURED}\n"
    with Editor(copy_of(ROOM), settings=settings) as editor:
        usual = editor.wait_for_window()
        editor.click_at(editor.pixel(2000, 1600))
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.park()
        at_first = editor.picture()
        handle = turn_handle(editor, at_first)

        # Its frame stays where it is, as when only the user's choice for the screen changes.
        editor.desktop.tell_dots(144, usual.area)
        large = wait_for("larger parts", lambda: (now := editor.wait_for_window()) and
                         controls(now, "PlanhostPalette")[0][2] >= usual.area[0] + 360 and now)  # fmt: skip
        require(controls(large, "Edit")[0][3] - controls(large, "Edit")[0][1] >= 28, controls(large, "Edit"))
        bars = [controls(window, "msctls_statusbar32")[0] for window in (usual, large)]
        heights = [bar[3] - bar[1] for bar in bars]
        require(heights[1] > 1.3 * heights[0], "status bar", heights)
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.park()
        editor.save_picture("150")
        higher = turn_handle(editor, editor.picture())
        require(1.3 * handle < higher < 1.7 * handle, "handle", handle, higher)

        # The mouse finds everything where it is shown.
        editor.key("F3")
        editor.wait_for_hint("Kommode: Klick setzt")
        at = editor.pixel(4000, 2500)
        editor.click_at(at)
        editor.wait_for_count("5 Symbole")
        editor.save()
        require_symbol(symbols_of(editor.plan)[4], "Kommode", editor.place(at), 0)
        editor.key("ctrl+z")
        editor.wait_for_count("4 Symbole")
        editor.save()

        # Back again, with a symbol in hand.
        editor.key("F3")
        editor.wait_for_hint("Kommode: Klick setzt")
        editor.desktop.tell_dots(96, usual.area)
        wait_for("the first sizes", lambda: editor.wait_for_window().area == usual.area and
                 controls(editor.wait_for_window(), "PlanhostPlan") == controls(usual, "PlanhostPlan"))  # fmt: skip
        editor.key("Escape")
        editor.wait_for_hint("markiert Symbole")
        editor.click_at(editor.pixel(2000, 1600))
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.park()
        editor.wait_for_same("the first picture", at_first)

        # A ruler held against the glass: as many dots as were measured are an inch of the plan.
        editor.key("ctrl+1")
        editor.wait_for_status(3, "1:1")
        middle = ((editor.area[2] - editor.area[0]) // 2, (editor.area[3] - editor.area[1]) // 2)
        places = []
        for x in (middle[0] - MEASURED, middle[0] + MEASURED):
            before = editor.status()[1]
            editor.desktop.move(editor.area[0] + x, editor.area[1] + middle[1])
            places.append(wait_for("another place", lambda: (now := editor.status()[1]) != before and now).split()[1])
        require(abs(int(places[1]) - int(places[0]) - 2 * 25.4) <= 1, places)
        editor.quit()
