"""Nothing stays behind of what tools and rubber band showed, texts and thick lines included."""

from checks import require
from editor import FLAT, Editor, copy_of


def wander(editor, keys):
    """Moves the mouse all over the plan, with a key at every stop."""
    for i, key in enumerate(keys):
        editor.point_at(editor.pixel(1500 + 1730 * i % 13000, 1300 + 2390 * i % 11000))
        editor.key(key)


def run():
    with Editor(copy_of(FLAT)) as editor:
        editor.wait_for_count("107 Symbole")
        editor.park()
        clean = editor.picture()

        # The car and the scale with its numbers, one after the other.
        for name, picture, x, y in (("Auto", "car", 15000, 8000), ("Maßstab", "scale", 13300, 13450)):
            editor.click_at(editor.pixel(x, y))
            editor.wait_for_count("107 Symbole, 1 markiert")
            editor.key("F3")
            editor.wait_for_hint(name + ": Klick setzt")
            wander(editor, ["Prior", "Home", "Left", "Up", "End", "Next", "Down", "Prior", "ctrl+Home"])
            editor.save_picture("placing-" + picture)
            editor.key("Escape")
            editor.wait_for_hint("markiert Symbole")
            editor.park()
            editor.wait_for_same("after placing " + name, clean)

        # The whole kitchen, with a menu opened over it on the way.
        editor.drag(editor.pixel(760, 760), editor.pixel(4200, 4200))
        wait_marked = editor.status()[2]
        require("markiert" in wait_marked, wait_marked)
        editor.park()
        marked = editor.picture()
        editor.key("ctrl+m")
        editor.wait_for_hint("Verschieben: Klick setzt")
        wander(editor, ["KP_4", "KP_Add", "KP_9", "KP_Divide"])
        editor.key("alt+b")
        editor.desktop.window("#32768")
        editor.save_picture("menu")
        editor.key("Escape", "Escape")
        editor.wait_for_hint("Verschieben: Klick setzt")
        wander(editor, ["KP_1", "KP_Multiply", "minus"])
        editor.save_picture("moving")
        editor.key("Escape")
        editor.wait_for_hint("Strg+M verschiebt")
        editor.park()
        editor.wait_for_same("after moving", marked)

        # A rubber band, given up.
        editor.point_at(editor.pixel(5000, 5000))
        editor.desktop.press()
        wander(editor, ["Shift_L"] * 6)
        editor.key("Escape")
        editor.desktop.release()
        editor.park()
        editor.wait_for_same("after the rubber band", marked)
        require(editor.wait_for_window().text == "wohnung.plan – Planhost", "nothing has changed")
        editor.quit()
