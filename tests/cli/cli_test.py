"""cli_test.py PROGRAM…: runs the program qsymbol as its users do; PROGRAM may be a command with arguments (Wine)."""

import ctypes
import json
import os
import pathlib
import pty
import re
import resource
import signal
import subprocess
import sys
import tempfile
from xml.etree import ElementTree

PROGRAM = [os.path.abspath(word) if os.path.exists(word) else word for word in sys.argv[1:]]
UNDER_WINE = "wine" in PROGRAM[0]
CATALOGUE = pathlib.Path("samples/katalog").resolve()
DOOR = ("SYM;CNT=2;WID=3.00;HEI=2.00;RPX=0.00;RPY=0.00\r\nPOLY;CNT=3;COL=255;WID=0.00;CLS=FALSE;FIL=-1\r\nPOINT;0.00;0.00\r\n"
        "POINT;3.00;2.00\r\nPOINT;0.00;2.00\r\nTEXT;COL=0;ANG=12.34;NAM=Arial;HEI=6;BOL=FALSE;ITA=FALSE;UND=FALSE;STR=FALSE;ALI=0;BKM=1"
        "\r\nPOINT;0.50;0.50\r\nSTRING;\"Tür\"\r\n").encode("cp1252")  # fmt: skip
COMMA = re.sub(rb"(\d)\.(\d\d)", rb"\1,\2", DOOR)
CHAIN = b"BLT 6000 6000 0 0 0\r\nSTR F=0 D=0.5 a b c 0 0 6000.0 6000.0\r\nEND\r\n"


def run(*arguments, environment=None, status=0):
    """Output and errors of the program, which has to end with this status."""
    ran = subprocess.run([*PROGRAM, *map(str, arguments)], capture_output=True, timeout=120,
                         env={**os.environ, **(environment or {})})  # fmt: skip
    out, errors = ran.stdout.decode("utf-8"), ran.stderr.decode("utf-8", "replace")
    if UNDER_WINE:  # it has advice of its own about 32 bits
        errors = "".join(line + "\n" for line in errors.splitlines() if line.startswith(("qsymbol", "Run ")))
    assert ran.returncode == status, f"status {ran.returncode} instead of {status}: {out}{errors}"
    return out, errors


def as_json(*arguments, **more):
    return json.loads(run(*arguments, "--json", **more)[0])


def codes(*arguments, **more):
    return [[finding["code"] for finding in file["findings"]] for file in as_json("check", "--decimal", "point", *arguments, **more)]


def put(name, data=DOOR):
    path = pathlib.Path(name)
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(data)
    return path


def info_tells_lengths_in_units_and_kinds():
    put("Tür.syt")
    assert as_json("info", "--decimal", "point", "Tür.syt") == [
        {"path": "Tür.syt", "name": "Tür", "format": "syt", "width": 300, "height": 200, "refX": 0, "refY": 0,
         "elements": {"poly": 1, "circle": 0, "arc": 0, "text": 1, "undefined": 0}, "points": 4, "bytes": len(DOOR)}]  # fmt: skip
    out, _ = run("info", "--decimal", "point", "Tür.syt")
    assert "3 x 2" in out and "Tür" in out, out


def one_array_holds_all_paths_and_bad_ones_are_told_of():
    put("a/x.syt"), put("a/sub/y.syt"), put("a/schlecht.syt", b"kein Symbol"), put("a/read.me", b"")
    put("b.txt", b"")
    bad = ("info", "--decimal", "point", "nix.syt", "b.txt", "a", "-r")
    out, errors = run(*bad, "--json", status=1)
    assert [pathlib.PureWindowsPath(entry["path"]).name for entry in json.loads(out)] == ["x.syt", "y.syt"]
    lines = errors.splitlines()
    assert lines[0] == "qsymbol: nix.syt: error 53: Datei nicht gefunden", errors
    assert lines[1] == "qsymbol: b.txt: error 3503: Keine gültige Extension für eine Symboldatei.", errors
    assert re.fullmatch(r"qsymbol: a[/\\]schlecht\.syt: error 3501: Keine gültige Symboldatei\.", lines[2]), errors
    assert len(lines) == 3
    assert len(as_json("info", "--decimal", "point", "a", status=1)) == 1, "without -r no subfolders"
    for again in ("a", "a/", "./a", "b/../a", os.path.abspath("a")):
        pathlib.Path("b").mkdir(exist_ok=True)
        for paths in (("a", again), ("a/x.syt", again), (again, "a/x.syt")):
            assert len(as_json("info", "--decimal", "point", *paths, status=1)) == 1, f"{paths} are met once"
    pathlib.Path("leer").mkdir()
    assert as_json("info", "leer") == [] and as_json("check", "leer") == []


def numbers_follow_the_decimal_separator():
    put("p.syt"), put("k.syt", COMMA)
    width = lambda name, *more, **env: as_json("info", name, *more, **env)[0]["width"]
    assert width("p.syt", "--decimal", "point") == width("k.syt", "--decimal", "comma") == 300
    if UNDER_WINE:
        return
    for variable, value in (("LC_ALL", "de_DE.UTF-8"), ("LC_NUMERIC", "fr_FR.UTF-8"), ("LANG", "nl_NL")):
        clean = {"LC_ALL": "", "LC_NUMERIC": "", "LANG": "en_US.UTF-8", variable: value}
        assert width("k.syt", environment=clean) == 300, value
    for value in ("C", "en_US.UTF-8", "de_CH.UTF-8"):
        assert width("p.syt", environment={"LC_ALL": value}) == 300, value


def check_finds_what_is_wrong():
    good = put("gut.syt")
    assert codes(good) == [[]]
    head, rest = DOOR.split(b"\r\n", 1)
    cases = {
        "zero-size": DOOR.replace(b"WID=3.00;HEI=2.00", b"WID=0.00;HEI=0.00"),
        "size-mismatch": DOOR.replace(b"WID=3.00", b"WID=4.00"),
        "reference-far": DOOR.replace(b"RPX=0.00", b"RPX=6.01"),
        "colour-not-in-table": DOOR.replace(b"COL=255", b"COL=256000"),
        "degenerate-element": head.replace(b"CNT=2", b"CNT=3") + b"\r\n" + rest
        + b"CIRCLE;COL=0;WID=0.00;MPX=1.00;MPY=1.00;RAD=0.00;FIL=-1\r\n",
        "undefined-element": head.replace(b"CNT=2", b"CNT=3") + b"\r\n" + rest,
        "dxf-text-size": DOOR.replace(b"HEI=6;", b"HEI=7;"),
        "empty": b"\r\n",
        "unreadable": b"SYM;CNT=1;WID=1;HEI=1;RPX=0;XYZ=0\r\n",
    }
    for code, data in cases.items():
        found = as_json("check", "--decimal", "point", put("fall.syt", data), status=1)[0]
        expected = [code, "zero-size"] if code == "empty" else [code]
        assert [finding["code"] for finding in found["findings"]] == expected, (code, found)
        assert found["status"] == ("error" if code == "unreadable" else "warning")
        assert found["findings"][0]["number"] == (3502 if code == "unreadable" else None)
        element = {"colour-not-in-table": 1, "degenerate-element": 3, "undefined-element": 3, "dxf-text-size": 2}.get(code)
        assert found["findings"][0]["element"] == element, found
    put("fremd.wsc", CHAIN.replace(b"END", b"XYZ 1"))
    stopped = as_json("check", "fremd.wsc", status=1)[0]["findings"]
    assert [f["message"] for f in stopped] == ["Folgende Zeile kann nicht verarbeitet werden: XYZ 1 --> Abbruch"], stopped
    put("o/gut.syt"), put("u/GUT.SYT"), put("u/gut.syb", b"")
    assert codes("o", "u/GUT.SYT", status=1) == [[], ["duplicate-name"]]
    assert "2 files, 1 error, 0 warnings" in run("check", "--decimal", "point", "o", "u/GUT.SYT", status=1)[0]


def the_sample_catalogue_has_no_finding():
    assert run("check", "-r", CATALOGUE)[0] == f"{len(list(CATALOGUE.rglob('*.syt')))} files, 0 errors, 0 warnings\n"


def converting_is_whole_and_never_overwrites_unasked():
    put("q/Tür.syt"), put("q/sub/Tür.syt"), put("q/schlecht.syb", b"")
    out, errors = run("convert", "--decimal", "point", "-r", "q", "z/neu", "--to", "syb", status=1)
    assert out == "2 files written\n" and errors.count("\n") == 1 and "error 62: " in errors, out + errors
    assert {p.relative_to("z/neu").as_posix() for p in pathlib.Path("z/neu").rglob("*.*")} == {"Tür.syb", "sub/Tür.syb"}
    run("convert", "--decimal", "point", "z/neu/Tür.syb", "back.syt")
    assert pathlib.Path("back.syt").read_bytes() == DOOR
    run("convert", "--decimal", "comma", "z/neu/Tür.syb", "komma.syt", "-q")
    assert pathlib.Path("komma.syt").read_bytes() == COMMA
    _, errors = run("convert", "--decimal", "comma", "z/neu/Tür.syb", "back.syt", status=1)
    assert errors == "qsymbol: back.syt: error 58: Datei existiert bereits\n", errors
    assert pathlib.Path("back.syt").read_bytes() == DOOR
    run("convert", "-f", "--decimal", "comma", "z/neu/Tür.syb", "back.syt")
    assert pathlib.Path("back.syt").read_bytes() == COMMA
    assert "error 3503" in run("convert", "back.syt", "back.wsc", status=1)[1]
    run("convert", "--decimal", "comma", "back.syt", "ordner/", "--to", "syb"), run("convert", "--decimal", "comma", "back.syt", "z", "--to", "syb")
    assert pathlib.Path("ordner/back.syb").exists() and pathlib.Path("z/back.syb").exists()
    put("zwei/a.syt"), put("zwei/a.wsc", CHAIN)
    _, errors = run("convert", "--decimal", "point", "-f", "zwei", "eins", "--to", "syb", status=1)
    assert re.fullmatch(r"qsymbol: zwei[/\\]a\.wsc: error 58: Datei existiert bereits\n", errors), errors
    assert not list(pathlib.Path().rglob("*.tmp")), "nothing is left beside"


def diff_tells_changes_and_nothing_of_formats():
    old = put("alt/Tür.syt")
    run("convert", "--decimal", "point", old, "alt.syb"), put("komma.syt", COMMA)
    for other in ("alt.syb", "komma.syt"):
        assert as_json("diff", old, other) == [] == as_json("diff", other, old)
    put("neu/Tür.syt", DOOR.replace(b"WID=3.00", b"WID=3.50").replace(b"POINT;3.00;2.00", b"POINT;3.00;1.00"))
    put("neu/Gast.syt", DOOR.replace(b"HEI=2.00", b"HEI=1.00")), put("alt/Alt.syt", DOOR.replace(b"HEI=2.00", b"HEI=1.00"))
    put("neu/Mehr.syt", DOOR.replace(b"HEI=2.00", b"HEI=5.00"))
    assert as_json("diff", "alt", "neu", status=1) == [
        {"symbol": "Gast", "change": "symbol-renamed", "from": "Alt", "to": "Gast"},
        {"symbol": "Mehr", "change": "symbol-added"},
        {"symbol": "Tür", "change": "header", "field": "width", "from": 300, "to": 350},
        {"symbol": "Tür", "change": "element-changed", "element": 1, "type": "poly", "oldElement": 1, "field": "points",
         "point": 2, "from": [300, 200], "to": [300, 100]}]  # fmt: skip
    assert "element 1 (poly) point 2: (3, 2) -> (3, 1)" in run("diff", "alt/Tür.syt", "neu/Tür.syt", status=1)[0]
    put("neu/Alt.syt", b"kaputt")
    assert "Alt" not in {change["symbol"] for change in as_json("diff", "alt", "neu", status=1)}, "neither gone nor renamed"
    assert as_json("diff", "/dev/null", old, status=1) == [{"symbol": "Tür", "change": "symbol-added"}]


def pictures_pages_and_drawings_are_made():
    put("k/Bad/Tür & Tor.syt"), put("k/x.syt"), put("k/schlecht.syt", b"kein Symbol")
    said = re.compile(r"qsymbol: k[/\\]schlecht\.syt: error 3501: Keine gültige Symboldatei\.\n")
    for target, made in (("bilder", ["bilder/Bad/Tür & Tor.svg", "bilder/x.svg"]), ("seite.html", ["seite.html"]),
                         ("plan.dxf", ["plan.dxf"])):  # fmt: skip
        command = {"bilder": "svg", "seite.html": "gallery", "plan.dxf": "dxf"}[target]
        out, errors = run(command, "-r", "--decimal", "point", "k", target, status=1)
        assert said.fullmatch(errors), errors
        first = [pathlib.Path(name).read_bytes() for name in made]
        _, errors = run(command, "-r", "--decimal", "point", "k", target, status=1)
        assert errors.count(": error 58: ") == len(made), errors
        put("k/x.syt", DOOR.replace(b"3.00;2.00", b"2.00;2.00"))
        out, errors = run(command, "-rqf", "--decimal", "point", "k", target, status=1)
        assert out == "" and said.fullmatch(errors), (out, errors)
        assert pathlib.Path(made[-1]).read_bytes() != first[-1]
        put("k/x.syt")
        assert not [path.name for path in pathlib.Path(".").rglob("*") if path.suffix in (".new", ".neu", ".tmp")]
    picture = ElementTree.parse("bilder/Bad/Tür & Tor.svg").getroot()
    assert picture.get("width", "").endswith("mm") and "Tür" in "".join(picture.itertext())
    page = pathlib.Path("seite.html").read_text(encoding="utf-8")
    assert "Tür &amp; Tor" in page and "Tür & Tor" not in page and not re.search(r"(src|href)=.https?:", page)
    units = {}
    for unit in ("mm", "cm", "m"):
        run("dxf", "-f", "--decimal", "point", "--units", unit, "k/x.syt", "plan.dxf")
        words = pathlib.Path("plan.dxf").read_text(encoding="latin-1").split()
        units[unit] = words[words.index("$INSUNITS") + 2]
        assert words[words.index("$ACADVER") + 2] == "AC1018" and words.count("INSERT") == 1
    assert units == {"mm": "4", "cm": "5", "m": "6"}
    put("l/x.wsc", CHAIN)
    _, errors = run("svg", "-rf", "--decimal", "point", "k/x.syt", "l", "k/Bad", "bilder", status=1)
    assert re.fullmatch(r"qsymbol: l[/\\]x\.wsc: error 58: .*\n", errors), f"two sources, one target: {errors}"


def plans_become_pictures_and_drawings():
    put("k/Bad/x.syt"), put("k/x.syb", b"kaputt"), put("k/schlecht.syb", b"kaputt")
    plan = "PLAN;Haus & Hof;5000;4000\nFLOOR;255;0;0;5000;4000\nWALL;0;0;5000;0;240\nROOM;Küche;100;200\n"
    put("h.plan", (plan + "SYMBOL;X;1000;2000.5;90\nSYMBOL;x;-1;0;0\n").encode())
    write = ("plan", "h.plan", "k/Bad", "--decimal", "point", "--svg", "neu/h.svg", "--dxf", "neu/h.dxf")
    assert run(*write) == ("2 symbols\n", "")
    picture = ElementTree.parse("neu/h.svg").getroot()
    assert (picture.get("width"), picture.get("viewBox")) == ("5000mm", "0 0 5000 4000")
    assert [use.get("transform") for use in picture.iter("{http://www.w3.org/2000/svg}use")] == [
        "translate(1000 2000.5) rotate(-90)", "translate(-1 0)"]  # fmt: skip
    assert [text.text for text in picture.iter("{http://www.w3.org/2000/svg}text")] == ["Tür", "Tür", "Haus & Hof", "Küche"]
    words = pathlib.Path("neu/h.dxf").read_text(encoding="latin-1").split()
    layers = [words[i + 2] for i, word in enumerate(words) if word == "AcDbLayerTableRecord"]
    assert layers == ["0", "BOEDEN", "WAENDE", "SYMBOLE", "RAEUME"] and words.count("INSERT") == 2, layers
    old = pathlib.Path("neu/h.svg").read_bytes()
    for line, number, text in (("SYMBOL;y;0;0;0", 5, 'Das Symbol "y" ist nicht im Katalog.'),
                               ("SYMBOL;x;0;0;0;0", 321, "SYMBOL verlangt 4 Felder."),
                               ("TISCH;x", 321, 'Unbekannte Zeilenart "TISCH".')):  # fmt: skip
        put("f.plan", (plan + line).encode())
        failed = run("plan", "-rf", "f.plan", "k", "--decimal", "point", "--svg", "neu/h.svg", status=1)
        assert failed == ("", f"qsymbol: f.plan: error {number}: Zeile 5: {text}\n"), failed
    target = re.compile(r"qsymbol: neu[/\\]h\.svg: error 58: .*\n")
    assert target.fullmatch(run(*write, status=1)[1]) and target.fullmatch(run(*write[:-2], "-q", status=1)[1])
    broken = run("plan", "-rf", *write[1:2], "k", *write[3:], status=1)[1]
    assert re.fullmatch(r"qsymbol: k[/\\]x\.syb: error 3501: .*\n", broken), broken
    assert "k: error 75" in run("plan", "h.plan", put("keiner/k"), "--svg", "z.svg", status=1)[1].replace("keiner/", "").replace("keiner\\", "")
    assert pathlib.Path("neu/h.svg").read_bytes() == old and not pathlib.Path("z.svg").exists()
    assert run(*write, "-fq", "--units", "m") == ("", "")


def wrong_usage_is_status_2():
    put("x.syt")
    own = {"--json": "info check diff", "--to syb": "convert", "--units m": "dxf plan", "--svg z.svg": "plan", "--dxf z.dxf": "plan"}
    plain = {"info": "x.syt", "check": "x.syt", "convert": "x.syt y.syb", "svg": "x.syt .", "gallery": ". y.html",
             "dxf": "x.syt y.dxf", "diff": "x.syt x.syt", "plan": "x.plan . --svg y.svg"}  # fmt: skip
    wrong = ["", "help", "-r", "--nein", "convert . y", "convert x.syt y.syb --to wsc", "convert x.syt y.syb --to syt",
             "diff x.syt .", "diff . x.syt", "gallery . y.txt", "dxf x.syt y.txt", "dxf x.syt y.dxf --units km", "dxf x.syt y.dxf --units 1", "info x.syt --decimal 1", "svg x.syt",
             "plan x.plan .", "plan x.plan . --svg y.dxf", "plan x.plan . --dxf y.svg", "plan x.plan . --svg"]  # fmt: skip
    for command, words in plain.items():
        wrong += [command, f"{command} {words} -x", f"{command} {words} --decimal", f"{command} {words} --decimal x",
                  f"{command} {words} --decimal comma --decimal point"]  # fmt: skip
        wrong += [f"{command} {words} {option}" for option, those in own.items() if command not in those.split()]
        if command in ("convert", "gallery", "diff", "plan"):
            wrong += [f"{command} {words} z", f"{command} {words.split()[0]}"]
    for arguments in wrong[::10] if UNDER_WINE else wrong:  # there a start takes its time
        out, errors = run(*arguments.split(), status=2)
        assert out == "" and errors.startswith("qsymbol: "), (arguments, out, errors)
    assert os.listdir() == ["x.syt"], "wrong usage does nothing"
    for arguments in ("info nix", "check nix", "convert nix y.syb", "convert nix y --to syb", "svg nix y", "gallery nix y.html",
                      "dxf nix y.dxf", "plan nix . --svg y.svg", "plan x.plan nix --dxf y.dxf", "diff nix x.syt", "diff . nix", "diff nix .")[::4 if UNDER_WINE else 1]:  # fmt: skip
        _, errors = run(*arguments.split(), "--decimal", "point", status=1)
        assert errors == "qsymbol: nix: error 53: Datei nicht gefunden\n", (arguments, errors)
    assert re.fullmatch(r"qsymbol \d+\.\d+\.\d+\n", run("--version")[0])
    page = (pathlib.Path(__file__).resolve().parents[2] / "man/qsymbol.1").read_text(encoding="utf-8").replace("\\-", "-")
    text = run("--help")[0]
    for command in re.findall(r"^  ([a-z]+) ", text.split("Subcommands:")[1], re.M):
        assert f"qsymbol {command}" in page or f".B {command}" in page, command
        for option in re.findall(r"--[a-z]+", run(command, "--help")[0]):
            assert option in page, f"the manual page lacks {command} {option}"


def only_files_are_files():
    if UNDER_WINE:
        return
    os.mkfifo("rohr.syt")
    os.symlink("schleife", "schleife")
    os.makedirs("f/g")
    os.symlink("..", "f/g/zurück")
    put("f/a.syt")
    for path in ("rohr.syt", "/dev/null"):
        assert "error 75" in run("info", path, status=1)[1]
    run("info", "schleife", status=1)
    assert len(as_json("info", "-r", "f", "f/a.syt", "--decimal", "point")) == 1
    with open("/dev/full", "wb") as full:
        assert subprocess.run([*PROGRAM, "info", "-r", CATALOGUE], stdout=full, stderr=subprocess.DEVNULL).returncode == 1


def under(change, *arguments):
    """The errors of the program in a process that this changed before, and the memory that it took, in MiB."""
    program = subprocess.Popen([*PROGRAM, *map(str, arguments)], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, preexec_fn=change,
                               restore_signals=False, env={**os.environ, "ASAN_OPTIONS": "quarantine_size_mb=1"})  # fmt: skip
    errors = program.stderr.read().decode()
    program.stderr.close()
    _, status, used = os.wait4(program.pid, 0)
    program.returncode = os.waitstatus_to_exitcode(status)
    assert program.returncode == (1 if errors else 0) or (arguments[0] == "check" and program.returncode == 1), (arguments, errors)
    return errors, used.ru_maxrss // 1024


def writing_commands(source, name):
    return (("convert", source, f"z/{name}.syb"), ("svg", source, "z"), ("gallery", source, f"z/{name}.html"), ("dxf", source, f"z/{name}.dxf"))


def memory_is_bounded():
    if UNDER_WINE:
        return
    head, line = "SYM;CNT=%s;WID=3.00;HEI=2.00;RPX=0.00;RPY=0.00\r\n", "POLY;CNT=%s;COL=255;WID=0.00;CLS=FALSE;FIL=-1\r\n"
    put("points.syt", (head % 1 + line % 1500000 + "POINT;1.00;2.00\r\n").encode())
    put("elements.syt", (head % 100000).encode())
    put("more.syt", (head % 2000000000).encode()), put("text.syt"), run("convert", "--decimal", "point", "text.syt", "tail.syb")
    put("tail.syt"), put("tail.wsc", CHAIN.replace(b"END", b"XYZ"))
    for name in ("tail.syt", "tail.syb", "tail.wsc"):
        os.truncate(name, 2 << 30)
    for path, failure in (("points.syt", ""), ("elements.syt", ""), ("more.syt", "error 7:"), ("tail.syt", "error 9:"), ("tail.syb", ""),
                          ("tail.wsc", "error 3501:")):  # fmt: skip
        commands = (("info", path), ("check", path), ("diff", path, path), *writing_commands(path, "x"))
        for command in commands:
            errors, memory = under(None, *command, "-f", "--decimal", "point")
            assert failure in errors or command[0] == "check", (command, errors)
            assert memory < 256, f"{command}: {memory} MiB"


def failures_of_the_disk_lose_nothing():
    """Folders and files that may not be read or written, and a disk that is full: told of, the others go on, old files stay."""
    if UNDER_WINE:
        return
    run("convert", "-r", "--to", "syt", "--decimal", "point", put("k/a.syt").parent, "k2")
    for name in ("k/zu/b.syt", "k/c.syt", "z/zu/x"):
        put(name)
    for name, mode in (("k/zu", 0), ("k/c.syt", 0), ("z/zu", 0o555)):
        os.chmod(name, mode)
    drop = lambda: [ctypes.CDLL(None).prctl(24, capability) for capability in (1, 2)]  # the superuser's way around modes
    denied = "qsymbol: k/c.syt: error 70: Zugriff verweigert\nqsymbol: k/zu: error 70: Zugriff verweigert\n"
    for command in (("info", "k"), ("check", "k"), ("svg", "k", "b"), ("gallery", "k", "g.html"), ("dxf", "k", "d.dxf"), ("diff", "k", "k2"),
                    ("convert", "--to", "syb", "k", "c")):  # fmt: skip
        assert under(drop, *command, "-r", "--decimal", "point")[0] == denied, command
    assert {str(path) for made in ("b", "c", "g.html", "d.dxf") for path in [pathlib.Path(made), *pathlib.Path(made).glob("*")]} == {
        "b", "b/a.svg", "c", "c/a.syb", "g.html", "d.dxf"}  # fmt: skip
    for command in writing_commands("k/a.syt", "zu/y"):
        target = "z/zu/a.svg" if command[0] == "svg" else command[2]
        errors, _ = under(drop, *command[:2], "z/zu" if command[0] == "svg" else target, "--decimal", "point")
        assert errors == f"qsymbol: {target}: error 70: Zugriff verweigert\n", errors
    def full():
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        resource.setrlimit(resource.RLIMIT_FSIZE, (60, 60))
    for command in writing_commands("k/a.syt", "a"):
        target = "z/a.svg" if command[0] == "svg" else command[2]
        put(target, b"alt")
        errors, _ = under(full, *command, "-f", "--decimal", "point")
        assert errors == f"qsymbol: {target}: error 61: Datenträger voll\n", errors
        assert pathlib.Path(target).read_bytes() == b"alt"
    assert sorted(os.listdir("z")) == ["a.dxf", "a.html", "a.svg", "a.syb", "zu"], "nothing is left beside"
    for name in ("k/zu", "z/zu"):
        os.chmod(name, 0o755)


def names_may_be_unusual():
    names = ["a  b", "-r", "ü" * 100] if UNDER_WINE else ["a  b", "-r", "ü" * 125, "x" * 251, "\"q'<i>&amp;", "NUL", "oben\nunten\tESC\x1b[2J\x9b"]
    for name in names:
        put(f"k/{name}.syt")
    bad = [] if UNDER_WINE else [b"k/k\xff.syt", b"k/\xfe.txt"]
    for path in bad:
        pathlib.Path(os.fsdecode(path)).write_bytes(DOOR)
    if bad:
        os.mkdir(b"k/o\xffo")
    said = "".join(f"qsymbol: k/{name}: error 52: Dateiname oder -nummer falsch\n" for name in (["k\ufffd.syt"] if bad else []))
    for command in (("info", "k"), ("info", "--json", "k"), ("check", "--json", "k"), ("svg", "k", "b"), ("gallery", "k", "g.html"),
                    ("dxf", "k", "d.dxf"), ("convert", "--to", "syb", "k", "c"), ("diff", "--json", "k", "c")):  # fmt: skip
        out, errors = run(*command, "--decimal", "point", status=1 if bad else 0)
        assert sorted(errors.splitlines()) == sorted(said.splitlines()), (command, errors)
        if command == ("info", "k"):
            assert len(out.splitlines()) == 1 + len(names) and not re.search("[\0-\x09\x0b-\x1f\x7f-\x9f]", out), out
        elif command[:2] == ("info", "--json"):
            assert {entry["name"] for entry in json.loads(out)} == set(names)
        elif command[1] == "--json":
            assert [entry for entry in json.loads(out) if entry.get("status") != "ok"][:-2] == [], out
    if bad:
        assert "qsymbol: k/o\ufffdo: error 52: " in run("info", "-r", "--decimal", "point", "k", status=1)[1]
    assert {path.stem for path in pathlib.Path("c").iterdir()} == {path.stem for path in pathlib.Path("b").iterdir()} == set(names)
    assert all(ElementTree.parse(path) for path in pathlib.Path("b").iterdir())
    out = run("info", "--decimal", "point", "--", *[f"k/{name}.syt" for name in names])[0]
    assert len(out.splitlines()) == 1 + len(names)
    if UNDER_WINE:
        for target in ("NUL.syb", "aux.syt", "COM1.syb"):
            assert "error 75" in run("convert", "-f", "--decimal", "point", "k/-r.syt", target, status=1)[1], target
    else:
        put("f.wsc", CHAIN.replace(b"END", b"X\x1b[2J\x7fy"))
        assert "X?[2J?y" in run("info", "f.wsc", status=1)[1] and "X?[2J?y" in run("check", "f.wsc", status=1)[0]


def progress_is_for_terminals():
    if UNDER_WINE:
        return
    for number in range(3):
        put(f"k/{number}.syt")
    for quiet in ((), ("-q",)):
        terminal, end = pty.openpty()
        subprocess.run([*PROGRAM, "check", "--decimal", "point", "k", *quiet], stdout=subprocess.DEVNULL, stderr=end, check=True)
        os.close(end)
        try:
            shown = os.read(terminal, 1000)
        except OSError:  # nothing was written, and nobody is there any more
            shown = b""
        os.close(terminal)
        # It goes away at the end: blanks over the last line.
        assert shown == (b"" if quiet else b"\r0 / 3\r1 / 3\r2 / 3\r     \r"), shown
    assert run("check", "--decimal", "point", "k")[1] == ""


def main():
    cases = [case for name, case in globals().items() if callable(case) and "_" in name and case.__module__ == __name__
             and name not in ("as_json", "writing_commands")]  # fmt: skip
    failed = 0
    for case in cases:
        with tempfile.TemporaryDirectory() as folder:
            os.chdir(folder)
            try:
                case()
            except Exception as error:  # every kind is a failure of this case alone
                failed += 1
                print(f"failed: {case.__name__}: {error!r}")
            os.chdir(CATALOGUE)
    print(f"{len(cases) - failed} passed, {failed} failed, 0 skipped")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
