"""Places are typed, keys are held, points are caught: everything to the hundredth of a millimetre."""

from checks import require, require_symbol
from editor import ROOM, Editor, copy_of, symbols_of


def place(editor, click):
    """Places the armchair once more; the symbol as it is in the file."""
    editor.key("F3")
    editor.wait_for_hint("Sessel: Klick setzt")
    count = len(symbols_of(editor.plan))
    click()
    editor.wait_for_count(f"{count + 1} Symbole")
    editor.save()
    return symbols_of(editor.plan)[-1]


def typed(editor, text):
    editor.point_at(editor.pixel(5000, 3000))
    editor.desktop.type(text)
    editor.save_picture("entry")
    editor.key("Return")


def caught(editor, near, kind):
    """Points at a place some pixels beside, and clicks."""
    x, y = editor.pixel(*near)
    editor.desktop.move(editor.area[0] + x + 5, editor.area[1] + y - 4)
    editor.save_picture(kind)
    editor.desktop.click()


def run():
    with Editor(copy_of(ROOM), settings="[Ansicht]\nFangen=1\nWeitersetzen=0\n") as editor:
        editor.click_at(editor.pixel(4500, 4100))
        editor.wait_for_count("4 Symbole, 1 markiert")
        require_symbol(place(editor, lambda: typed(editor, "3000,25;2500")), "Sessel", (3000.25, 2500), 30)
        require_symbol(place(editor, lambda: typed(editor, "@-100;250,5")), "Sessel", (2900.25, 2750.5), 30)

        # A held key goes on turning.
        editor.key("F3")
        editor.wait_for_hint("Sessel: Klick setzt")
        editor.point_at(editor.pixel(5000, 3000))
        editor.wait_for_direction(30)
        editor.desktop.hold("Up")
        editor.wait_for_more_than(40)
        editor.desktop.let_go("Up")
        editor.key("ctrl+Home")
        editor.wait_for_direction(0)
        editor.key("Escape")

        # Wall corners, the middle of a wall's edge, anywhere on an edge; the point of a symbol goes before.
        require_symbol(place(editor, lambda: caught(editor, (280, 1080), "corner")), "Sessel", (280, 1080), 30)
        require_symbol(place(editor, lambda: caught(editor, (4000, 1320), "middle")), "Sessel", (4000, 1320), 30)
        at = place(editor, lambda: caught(editor, (5200, 1320), "edge"))
        require(at[2] == 1320 and abs(at[1] - 5200) < 60, at)
        require_symbol(place(editor, lambda: caught(editor, (6500, 2300), "symbol")), "Sessel", (6500, 2300), 30)

        # The grid where it is shown and nothing else is near; not with F9 off.
        editor.key("F7")
        at = place(editor, lambda: caught(editor, (3000, 4400), "grid"))
        require(at[1] % 100 == 0 and at[2] % 100 == 0, at)
        editor.key("F9")
        at = place(editor, lambda: caught(editor, (280, 6520), "nothing"))
        require((at[1], at[2]) != (280, 6520), at)

        # The dialog that moves stands over its window, begins with where the symbol is, and names it.
        editor.click_at(editor.pixel(6900, 2300))
        editor.key("Escape")
        editor.click_at(editor.pixel(2000, 1600))
        editor.wait_for_status(2, "1 markiert")
        editor.key("ctrl+u")
        editor.desktop.window("#32770", "Alle markierten")
        editor.key("alt+a")
        window = editor.desktop.window("#32770", "Einfügepunkt von \"Kommode\"")
        texts = [control[1] for control in window.controls]
        require("2000" in texts and "1400" in texts, texts)
        middle = (window.area[0] + window.area[2]) / 2
        require(abs(middle - (editor.window[0] + editor.window[2]) / 2) < 20, window.area)
        editor.save_picture("dialog")
        editor.key("Escape")
        editor.wait_for_window("zimmer.plan – Planhost")
        editor.quit()
