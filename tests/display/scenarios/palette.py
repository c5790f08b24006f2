"""Symbols come from the palette into the plan: found, clicked, dragged, by keys alone; favourites and recent ones on top."""

import shutil

from checks import require, require_symbol
from editor import ROOM, Editor, copy_of, folder, symbols_of

FILTER = (100, 18)  # from the palette's left top
FIRST = (58, 138)  # the middle of the first tile; the next one is beside it
SECOND = (170, 138)


def run():
    with Editor(copy_of(ROOM), settings="[Ansicht]\nFangen=0\n") as editor:

        def point_at(place):
            editor.desktop.move(editor.window[0] + place[0], editor.area[1] + place[1])

        def click(place):
            point_at(place)
            editor.desktop.click()

        def expect(name):
            """A symbol is being placed; it is given up again."""
            editor.wait_for_hint(f"{name}: Klick setzt")
            editor.key("Escape")
            editor.wait_for_hint("markiert Symbole")

        # Typed, taken with Enter, placed with a click, and again until Esc.
        editor.save_picture("opened")
        click(FILTER)
        editor.desktop.type("zeile kuche")
        editor.save_picture("found")
        editor.key("Return")
        editor.wait_for_hint("Küchenzeile: Klick setzt")
        target = editor.pixel(2000, 1500)
        editor.click_at(target)
        editor.wait_for_count("5 Symbole")
        editor.wait_for_hint("Küchenzeile: Klick setzt")
        again = editor.pixel(2500, 4000)
        editor.click_at(again)
        editor.wait_for_count("6 Symbole")
        editor.key("Escape")
        editor.wait_for_hint("markiert Symbole")
        editor.key("alt+y", "s")  # the switch in the menu
        editor.key("F3")
        editor.wait_for_hint("Küchenzeile: Klick setzt")
        editor.click_at(editor.pixel(2500, 3000))
        editor.wait_for_hint("markiert Symbole")
        editor.key("ctrl+z")
        editor.wait_for_count("6 Symbole")
        editor.key("alt+y", "s")

        # The filter stays until Esc; then the recent symbol stands first.
        editor.key("ctrl+f")
        editor.desktop.type("qqq")
        editor.save_picture("nothing")
        editor.key("Escape")
        click(FIRST)
        expect("Küchenzeile")

        # By keys: to the list, a favourite, then the favourites stand first.
        editor.key("ctrl+f")
        editor.desktop.type("stuhl")
        editor.key("Down", "Right", "space", "Escape", "Home", "Return")
        expect("Liegestuhl")
        editor.save_picture("favourite")
        editor.key("ctrl+f")
        editor.key("Down", "Menu", "Down", "Down", "Return")
        editor.key("Home", "Return")
        expect("Küchenzeile")

        # A category, and a letter typed in the list goes to the filter.
        editor.key("ctrl+f")
        editor.key("Tab", "z", "Tab", "Down", "Right", "Return")
        expect("Maßstab")
        click(SECOND)
        expect("Maßstab")
        editor.key("ctrl+f")
        editor.key("Tab", "a", "Tab", "Down")
        editor.desktop.type("grill")
        editor.key("Return")
        expect("Grill")

        # The wheel turns what the mouse points to: the list here, not the plan that has the keyboard.
        zoom = editor.status()[3]
        editor.key("ctrl+f")
        editor.key("BackSpace", "Tab", "a")
        editor.desktop.move(editor.area[0] + 300, editor.area[1] + 20)
        editor.key("Escape")
        point_at(FIRST)
        for _ in range(3):
            editor.desktop._event("click", 5)
        editor.save_picture("scrolled")
        editor.desktop.click()
        editor.wait_for_hint("Klick setzt")
        require(not editor.status()[0].startswith(("Liegestuhl", "Küchenzeile", "Grill")), "not scrolled", editor.status())
        require(editor.status()[3] == zoom, "zoomed", editor.status())
        editor.key("Escape")
        editor.key("ctrl+f")
        editor.desktop.type("grill")

        # A symbol that was added meanwhile is there when the catalogue is loaded anew.
        shutil.copy(folder() / "katalog/Möbel/Sofa.syb", folder() / "katalog/Garten/Gartenbank.syb")
        editor.key("Down", "Menu", "Down", "Down", "Down", "Return")
        editor.key("ctrl+f", "Tab", "a", "ctrl+f")
        editor.desktop.type("gartenbank")
        editor.key("Return")
        expect("Gartenbank")
        editor.key("ctrl+f")
        editor.desktop.type("grill")

        # Dragged: placed where it is let go, and nowhere when that is not in the plan.
        point_at(FIRST)
        editor.desktop.press()
        point_at((FIRST[0] + 20, FIRST[1] + 30))
        editor.desktop.move(editor.area[0] + 300, editor.area[1] + 300)
        editor.wait_for_hint("Grill")
        end = editor.pixel(1500, 3000)
        editor.point_at(end)
        editor.save_picture("dragging")
        editor.desktop.release()
        editor.wait_for_count("7 Symbole")
        editor.wait_for_hint("markiert Symbole")  # one is enough for who drags
        point_at(FIRST)
        editor.desktop.press()
        point_at((FIRST[0] + 20, FIRST[1] + 30))
        editor.wait_for_hint("Grill")
        editor.desktop.release()
        editor.wait_for_hint("markiert Symbole")
        editor.wait_for_count("7 Symbole")

        editor.save()
        placed = symbols_of(editor.plan)[4:]
        require(len(placed) == 3, "placed", placed)
        for symbol, name, pixel in zip(placed, ("Küchenzeile", "Küchenzeile", "Grill"), (target, again, end)):
            require_symbol(symbol, name, editor.place(pixel), 0)
        editor.quit()
