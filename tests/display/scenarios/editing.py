"""Drag, copy, turn by the handle, nudge, type over, order and align what is marked; everything back and forth again."""

from checks import require, require_symbol
from desktop import wait_for
from editor import ROOM, Editor, copy_of, symbols_of


def saved(editor, change):
    """The symbols that are in the file after a change."""
    change()
    editor.wait_for_window("zimmer.plan* – Planhost")
    editor.save()
    return symbols_of(editor.plan)


def run():
    with Editor(copy_of(ROOM)) as editor:
        before = symbols_of(editor.plan)
        names = [symbol[0] for symbol in before]
        stool = names.index("Hocker")

        # The pointer over a symbol shows a frame; away from it, none.
        editor.park()
        calm = editor.picture()
        editor.point_at(editor.pixel(6500, 2300))
        editor.wait_for_picture("the frame", lambda now: now != calm)
        editor.save_picture("hover")
        editor.park()
        editor.wait_for_same("without a frame", calm)

        # It hangs where it was taken hold of: it goes exactly as far as the mouse.
        start, end = editor.pixel(6450, 2350), editor.pixel(6000, 3000)
        now = saved(editor, lambda: editor.drag(start, end))
        (x0, y0), (x1, y1) = editor.place(start), editor.place(end)
        moved = (before[stool][1] + x1 - x0, before[stool][2] + y1 - y0)
        require_symbol(now[stool], "Hocker", moved, 0)

        # With Ctrl a copy; the copy is marked.
        editor.desktop.hold("ctrl")
        start, end = editor.pixel(*moved), editor.pixel(moved[0] - 800, moved[1] + 1500)
        editor.drag(start, end)
        editor.desktop.let_go("ctrl")
        editor.wait_for_count("5 Symbole, 1 markiert")
        editor.wait_for_window("zimmer.plan* – Planhost")
        editor.save()
        now = symbols_of(editor.plan)
        require(len(now) == 5 and now[:4] == [*before[:stool], ("Hocker", *now[stool][1:3], 0.0), *before[stool + 1:]], now)
        (x0, y0), (x1, y1) = editor.place(start), editor.place(end)
        require_symbol(now[4], "Hocker", (moved[0] + x1 - x0, moved[1] + y1 - y0), 0)

        # Arrows: ten millimetres, one with Shift; taken back as one step.
        x, y = now[4][1:3]
        after = saved(editor, lambda: editor.key("Right", "Right", "Down", "shift+Left", "shift+Up"))
        require_symbol(after[4], "Hocker", (x + 19, y + 9), 0)
        require(saved(editor, lambda: editor.key("ctrl+z")) == now, "nudges are one step")
        require(saved(editor, lambda: editor.key("ctrl+y")) == after, "not forth again")

        # Where the copy lies upon the armchair: a click marks the copy, the next one what it covers, then the copy again.
        for name in ("Hocker", "Sessel", "Hocker"):
            editor.click_at(editor.pixel(after[4][1] - 130, after[4][2] - 80))
            wait_for(name, lambda: name == next(c[1] for c in editor.wait_for_window().controls if c[0] == "Edit"))

        # The chest by its handle: a quarter turn about its insertion point.
        editor.click_at(editor.pixel(2000, 1600))
        editor.wait_for_count("5 Symbole, 1 markiert")
        editor.park()
        picture = editor.picture()
        editor.save_picture("handles")
        above = editor.pixel(2000, 1400)
        handle = next((above[0], y) for y in range(above[1] - 8, 0, -1) if picture.at(above[0], y) == (255, 255, 255))
        editor.point_at((handle[0], handle[1] - 2))
        editor.desktop.press()
        editor.point_at((above[0] - 120, above[1]))
        editor.wait_for_hint("Drehen: um 90°")
        editor.save_picture("turning")
        now = saved(editor, editor.desktop.release)
        require_symbol(now[0], "Kommode", before[0][1:3], 90)

        # Typed over: name, place and angle.
        editor.key("F4")
        editor.desktop.type("3000,5\t")
        editor.desktop.type("2000\t")
        editor.desktop.type("15,5\t")
        editor.desktop.type("Stuhl")
        now = saved(editor, lambda: editor.key("Return"))
        require_symbol(now[0], "Stuhl", (3000.5, 2000), 15.5)
        editor.save_picture("properties")
        editor.key("F4", "shift+Tab")
        editor.desktop.type("Einhorn")
        editor.key("Return")
        editor.answer("\"Einhorn\" ist nicht im Katalog", "Return")
        editor.wait_for_window("zimmer.plan – Planhost")

        # What is typed counts also when the mouse goes elsewhere, and Esc takes it back.
        editor.key("F4")
        editor.desktop.type("5000")
        editor.key("Escape", "F4")
        editor.desktop.type("3100")
        now = saved(editor, lambda: editor.click_at(editor.pixel(7000, 6000)))
        require_symbol(now[0], "Stuhl", (3100, 2000), 15.5)
        editor.wait_for_count("5 Symbole")

        # To the back and aligned, by the context menu and by the menu.
        editor.key("ctrl+a")
        editor.wait_for_count("5 Symbole, 5 markiert")
        editor.point_at(editor.pixel(3000, 2200))
        editor.desktop.click(3)
        editor.desktop.window("#32768")
        editor.save_picture("context-menu")
        editor.key("Escape")
        editor.click_at(editor.pixel(*now[4][1:3]))
        editor.wait_for_count("5 Symbole, 1 markiert")
        ordered = saved(editor, lambda: editor.key("ctrl+shift+Next"))
        require([symbol[0] for symbol in ordered] == ["Hocker", "Stuhl", *names[1:]], ordered)
        editor.key("ctrl+a", "alt+a")
        editor.desktop.window("#32768")
        aligned = saved(editor, lambda: editor.key("o"))
        stools = [symbol for symbol in aligned if symbol[0] == "Hocker"]
        require(abs(stools[0][2] - stools[1][2]) < 0.02, "not on one line", stools)

        editor.key("ctrl+z")
        editor.wait_for_window("zimmer.plan* – Planhost")
        editor.quit_without_saving()
