"""A symbol turned by every key, placed by a click, is in the saved plan; the next one gets a guide line."""

from checks import require, require_map, require_symbol
from editor import ROOM, Editor, copy_of, symbols_of, turned


def run():
    with Editor(copy_of(ROOM)) as editor:
        editor.wait_for_count("4 Symbole")
        require_map(editor)
        editor.park()
        opened = editor.picture()
        editor.save_picture("opened")

        editor.click_at(editor.pixel(4500, 4100))
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.key("F3")
        editor.wait_for_hint("Sessel: Klick setzt")
        target = editor.pixel(6000, 4400)
        editor.point_at(target)
        editor.wait_for_direction(30)
        for key, degrees in (("Prior", 40), ("Up", 41), ("Down", 40), ("Next", 30), ("End", 300), ("Home", 30),
                             ("Left", 31), ("Right", 30), ("plus", 29), ("minus", 30), ("asterisk", 20), ("slash", 30),
                             ("KP_Add", 29), ("KP_4", 90), ("KP_Down", 180), ("KP_7", 45)):  # fmt: skip
            editor.key(key)
            editor.wait_for_direction(degrees)
        editor.desktop.hold("ctrl")
        editor.key("Home")
        editor.wait_for_direction(0)
        editor.key("Prior")
        editor.wait_for_direction(10)
        editor.desktop.let_go("ctrl")
        for key, degrees in (("Next", 0), ("Down", 359), ("Home", 89), ("Next", 79)):
            editor.key(key)
            editor.wait_for_direction(degrees)
        editor.save_picture("following")
        editor.desktop.click()
        editor.wait_for_count("5 Symbole")
        editor.park()
        editor.save_picture("placed")
        editor.save()
        symbols = symbols_of(editor.plan)
        require(len(symbols) == 5, symbols)
        require_symbol(symbols[4], "Sessel", editor.place(target), 79)

        placed = editor.picture()
        dx, dy = turned((0, 425), 79)  # the middle of the armchair from its back
        seat = editor.pixel(symbols[4][1] + dx, symbols[4][2] + dy)
        require(placed.at(*seat) != opened.at(*seat), "no armchair to be seen")

        # Once more, from there, with a guide line; and away again.
        editor.key("F3")
        editor.wait_for_hint("Sessel: Klick setzt")
        far = editor.pixel(1500, 3500)
        editor.point_at(far)
        middle = ((target[0] + far[0]) // 2, (target[1] + far[1]) // 2)
        around = range(middle[1] - 2, middle[1] + 3)
        editor.wait_for_picture("the guide line", lambda now: any(
            now.at(middle[0], y) != placed.at(middle[0], y) for y in around))  # fmt: skip
        editor.save_picture("guide-line")
        editor.key("Escape")
        editor.wait_for_hint("markiert Symbole")
        editor.park()
        editor.wait_for_same("the picture after Escape", placed)

        # Shift catches the middle of the stool from some pixels beside it.
        editor.key("F3")
        editor.wait_for_hint("Sessel: Klick setzt")
        stool = editor.pixel(6500, 2300)
        editor.desktop.hold("shift")
        editor.point_at((stool[0] + 7, stool[1] - 6))
        editor.save_picture("caught")
        editor.desktop.click()
        editor.wait_for_count("6 Symbole")
        editor.desktop.let_go("shift")
        editor.save()
        require_symbol(symbols_of(editor.plan)[5], "Sessel", (6500, 2300), 79)
        editor.quit()
