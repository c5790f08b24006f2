"""A group is moved by the mouse, turned by the keypad in both of its forms, moved by typed numbers, copied."""

from checks import grouped, require, require_group
from editor import ROOM, Editor, copy_of, symbols_of


def run():
    with Editor(copy_of(ROOM)) as editor:
        before = symbols_of(editor.plan)
        # Chest and armchair: the chest, standing at 0°, is the first.
        editor.drag(editor.pixel(1000, 1500), editor.pixel(5450, 4400))
        editor.wait_for_count("4 Symbole, 2 markiert")
        editor.key("ctrl+m")
        editor.wait_for_hint("Verschieben: Klick setzt")
        target = editor.pixel(4000, 4300)
        editor.point_at(target)
        editor.wait_for_direction(0)
        # With Num Lock, without it, the signs of the keypad and those beside the letters.
        for key, degrees in (("KP_4", 90), ("KP_Page_Up", 315), ("KP_Up", 0), ("KP_9", 315), ("KP_Add", 314),
                             ("KP_Multiply", 304), ("KP_Divide", 314), ("KP_Subtract", 315), ("minus", 316),
                             ("KP_8", 0), ("KP_Begin", 0), ("Up", 1), ("Right", 0), ("Prior", 10), ("Next", 0), ("Home", 90),
                             ("End", 0), ("plus", 359), ("slash", 9), ("ctrl+Home", 0), ("KP_7", 45), ("KP_Subtract", 46)):  # fmt: skip
            editor.key(key)
            editor.wait_for_direction(degrees)
        editor.save_picture("turned")
        editor.desktop.click()
        editor.wait_for_hint("Strg+M verschiebt")
        editor.park()
        editor.save_picture("fixed")
        editor.save()
        moved = symbols_of(editor.plan)
        require_group(moved[:2], grouped(before[:2], editor.place(target), 46))
        require(moved[2:] == before[2:], moved[2:])

        # The same two by typed numbers, relative to where they are.
        editor.key("ctrl+u")
        editor.desktop.window("#32770", "Verschieben")
        editor.desktop.type("-250,5\t100.25")
        editor.save_picture("typed")
        editor.key("Return")
        editor.wait_for_window("zimmer.plan* – Planhost")
        editor.save()
        typed = symbols_of(editor.plan)
        _, x, y, _ = moved[0]
        require_group(typed[:2], grouped(moved[:2], (x - 250.5, y + 100.25), 0))

        # And to a place of the plan: the base point of the group comes there.
        editor.key("ctrl+u")
        editor.desktop.window("#32770", "Verschieben")
        editor.key("alt+a")
        editor.key("alt+x")
        editor.desktop.type("2000\t600")
        editor.key("Return")
        editor.wait_for_window("zimmer.plan* – Planhost")
        editor.save()
        require_group(symbols_of(editor.plan)[:2], grouped(typed[:2], (2000, 600), 0))

        # What is no number is said, and the dialog stays.
        editor.key("ctrl+u")
        editor.desktop.window("#32770", "Um eine Strecke")
        editor.desktop.type("zwei")
        editor.key("Return")
        editor.desktop.window("#32770", "\"zwei\" ist keine Länge in Millimetern.")
        editor.save_picture("no-number")
        editor.key("Return")
        editor.desktop.window("#32770", "Um eine Strecke")
        editor.key("Escape")
        editor.wait_for_window("zimmer.plan – Planhost")

        # A copy; then everything is taken back, step by step.
        editor.key("ctrl+d")
        editor.wait_for_hint("Duplizieren: Klick setzt")
        copy = editor.pixel(5000, 4800)
        editor.click_at(copy)
        editor.wait_for_count("6 Symbole, 2 markiert")
        editor.save()
        copied = symbols_of(editor.plan)
        require_group(copied[4:], grouped(copied[:2], editor.place(copy), 0))
        editor.key("ctrl+z")
        editor.wait_for_count("4 Symbole")
        editor.key("ctrl+z", "ctrl+z", "ctrl+z")
        editor.wait_for_window("zimmer.plan* – Planhost")
        editor.key("ctrl+s")
        editor.wait_for_window("zimmer.plan – Planhost")
        require(editor.plan.read_text(encoding="utf-8") == ROOM.read_text(encoding="utf-8"), "not taken back")
        editor.quit()
