"""A symbol chosen in the library's dialog comes into a new plan, which is saved under a name."""

from checks import require, require_symbol
from desktop import wait_for
from editor import Editor, folder, symbols_of


def choose(desktop, width, height):
    """Goes down the list until the preview has this size, as the regional settings write it."""

    def shown():
        texts = [control[1].replace(",", ".") for control in desktop.window("#32770", "Symbol auswählen").controls]
        entries = [text for text in texts if text.isdecimal()]
        return (entries[0], width in texts and height in texts) if entries else None

    now = wait_for("the list", shown)
    while not now[1]:
        desktop.key("Down")
        now = wait_for("the next entry", lambda: (next_ := shown()) and next_[0] != now[0] and next_)


def run():
    with Editor() as editor:
        editor.wait_for_count("0 Symbole")
        editor.key("F2")
        choose(editor.desktop, "1600.00", "900.00")
        editor.save_picture("dialog")
        editor.key("Return")
        editor.wait_for_hint("Sofa zweisitzig: Klick setzt")
        target = editor.pixel(4000, 3000)
        editor.click_at(target)
        editor.wait_for_count("1 Symbol")
        editor.park()
        editor.save_picture("placed")

        # Given up, nothing comes of it; the dialog opens at the last choice.
        editor.key("F2")
        editor.answer("1600", "Escape")  # its width
        editor.wait_for_hint("markiert Symbole")

        # The dialog takes a "+" for a separator.
        place = folder() / "Haus + Hof"
        place.mkdir()
        editor.plan = place / "neu.plan"
        editor.key("ctrl+s")
        editor.answer_with_file("Plan speichern", editor.plan)
        editor.wait_for_window("neu.plan – Planhost")
        require(len(symbols_of(editor.plan)) == 1, "symbols")
        require_symbol(symbols_of(editor.plan)[0], "Sofa zweisitzig", editor.place(target), 0)

        # Pictures of the whole catalogue come beside the plan, and the editor says so before.
        editor.key("F2")
        editor.desktop.window("#32770", "Symbol auswählen")
        hints = [window.status[0] for window in editor.desktop.windows() if window.status]
        require(any("Bilder aller Symbole kommen nach " in hint for hint in hints), "hint", hints)
        editor.key("alt+j")
        wait_for("95 pictures", lambda: len(list(place.glob("*.JPG"))) == 95)
        editor.answer("Symbol auswählen", "Escape")
        editor.wait_for_hint("markiert Symbole")
        editor.quit()
