"""Save under another name, open, export, start anew; after the export symbols are hit as before."""

from checks import require
from desktop import wait_for
from editor import ROOM, Editor, copy_of, folder


def run():
    with Editor(copy_of(ROOM)) as editor:
        other = folder() / "zwei.plan"
        editor.key("ctrl+shift+s")
        editor.answer_with_file("Plan speichern", other)
        editor.wait_for_window("zwei.plan – Planhost")
        require(other.read_bytes() == editor.plan.read_bytes(), "not the same plan")

        drawing = folder() / "zimmer.dxf"
        editor.key("ctrl+e")
        editor.answer_with_file("Als DXF exportieren", drawing)
        wait_for("the drawing", lambda: drawing.exists() and drawing.read_bytes().endswith(b"EOF\r\n"))
        editor.wait_for_hint("markiert Symbole")
        editor.click_at(editor.pixel(6500, 2300))
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.click_at(editor.pixel(6500, 2300 + 250))  # just below the stool
        editor.wait_for_count("4 Symbole")

        editor.key("ctrl+n")
        editor.wait_for_window("Unbenannt – Planhost")
        editor.wait_for_count("0 Symbole")
        editor.key("ctrl+o")
        editor.answer_with_file("Plan öffnen", other)
        editor.wait_for_window("zwei.plan – Planhost")
        editor.wait_for_count("4 Symbole")

        # The plan before that one is the second of the recent ones.
        editor.key("ctrl+shift+s")
        editor.answer_with_file("Plan speichern", folder() / "drei.plan")
        editor.wait_for_window("drei.plan – Planhost")
        editor.key("alt+p")
        editor.desktop.window("#32768")
        editor.key("z")
        editor.key("2")
        editor.wait_for_window("zwei.plan – Planhost")

        # By the menu alone: everything marked, then the program left.
        editor.key("alt+b")
        editor.desktop.window("#32768")
        editor.key("a")
        editor.wait_for_count("4 Symbole, 4 markiert")
        editor.key("alt+p")
        editor.desktop.window("#32768")
        editor.key("b")
        editor.desktop.wait_for_end()
