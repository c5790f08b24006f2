"""What is deleted is deleted in the file, and only that; what is not saved is asked about."""

from checks import require
from editor import FLAT, Editor, copy_of, symbols_of


def run():
    plan = copy_of(FLAT)
    lines = plan.read_text(encoding="utf-8").splitlines()
    car = next(line for line in lines if line.startswith("SYMBOL;Auto;"))
    with Editor(plan) as editor:
        editor.click_at(editor.pixel(15000, 8000))
        editor.wait_for_count("107 Symbole, 1 markiert")
        editor.key("Delete")
        editor.wait_for_count("106 Symbole")
        editor.wait_for_window("wohnung.plan* – Planhost")
        editor.key("alt+F4")
        editor.desktop.window("#32770", "\"wohnung.plan\" ist geändert. Änderungen speichern?")
        editor.save_picture("question")
        editor.key("Escape")
        editor.wait_for_window("wohnung.plan* – Planhost")
        editor.save()
        editor.park()
        editor.wait_for_picture("the lawn", lambda picture: picture.at(*editor.pixel(15000, 8000)) == (226, 226, 224))
        saved = editor.picture()
        editor.save_picture("saved")
        editor.quit()
    lines.remove(car)
    require(plan.read_text(encoding="utf-8").splitlines() == lines, "more than the car has changed")

    for keys, is_saved in ((("n",), False), (("Return",), True)):
        with Editor(plan) as editor:
            editor.wait_for_count("106 Symbole")
            editor.park()
            editor.wait_for_same("the saved plan", saved)
            editor.click_at(editor.pixel(13300, 13450))
            editor.wait_for_count("106 Symbole, 1 markiert")
            editor.key("Delete")
            editor.wait_for_count("105 Symbole")
            editor.key("alt+F4")
            editor.answer("Änderungen speichern?", *keys)
            editor.desktop.wait_for_end()
        require(len(symbols_of(plan)) == (105 if is_saved else 106), "saved or not", keys)
