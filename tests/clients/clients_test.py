"""clients_test.py: what hosts are shown, as they get it. The clients of samples/clients and the scripts in README and docs run
where Wine has their interpreter or MinGW and Mono compile them; names and numbers of arguments in the others are held
against the contracts. Then the first failures: without registration, without a catalogue.

Run in a prefix of its own in which the libraries are registered."""

import concurrent.futures
import os
import pathlib
import re
import struct
import subprocess
import sys
import zlib

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "scripts"), str(ROOT / "packaging")]
import idl  # noqa: E402
import interop  # noqa: E402

CLIENTS, BUILT, WORK = ROOT / "samples/clients", ROOT / "build/mingw-x64", ROOT / "build/clients"
DRIVE = pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c"
GXX = ["x86_64-w64-mingw32-g++-posix", "-std=c++17"]
# Names that belong to the hosts, not to the libraries: Excel, Basic, Python, PowerShell.
HOSTS = {
    "vba": "Number Source Description Raise Clear Shapes AddPicture Range Left Top Path Rows UsedRange Cells Value",
    "vb": "Number Source Description Refresh Form PictureBox",
    "python": "Dispatch com_error strerror excepinfo argv exit rglob is_dir path calcsize pi client CreateObject glob COMError "
              "details hresult Path win32com",
    "powershell": "ps1 png dxf Exception GetBaseException HResult Source Message",
}

def wine(*command, **options):
    run = subprocess.run(["wine", *map(str, command)], capture_output=True, timeout=120, **options)
    return run.returncode, (run.stdout + run.stderr).decode("cp850", "replace").replace("\r", "")


def windows(path):
    return "Z:" + str(path).replace("/", "\\")


def compiled(*command):
    run = subprocess.run(list(map(str, command)), capture_output=True, text=True)
    if run.returncode:
        raise AssertionError(run.stdout + run.stderr)


def picture_faults(path, width, height):
    data = path.read_bytes()
    if struct.unpack(">II", data[16:24]) != (width, height):
        return f"{path.name} is {struct.unpack('>II', data[16:24])}"
    rows = b"".join(data[at + 8:at + 8 + struct.unpack(">I", data[at:at + 4])[0]] for at in
                    (match.start() - 4 for match in re.finditer(b"IDAT", data)))
    return None if len(set(zlib.decompress(rows))) > 16 else f"{path.name} is empty"


class Programs:
    """Every client that runs here: how it is started with a catalogue, and what must come of it."""

    def __init__(self):
        WORK.mkdir(parents=True, exist_ok=True)
        libraries = ["-lole32", "-loleaut32", "-luuid", "-static"]
        compiled("x86_64-w64-mingw32-gcc-posix", "-Wall", "-Wextra", "-Werror", "-municode", f"-I{BUILT}/idl", CLIENTS / "c/bad.c", "-o",
                 WORK / "bad.exe", *libraries)
        compiled(*GXX, "-Wall", "-Wextra", "-Werror", "-municode", f"-I{BUILT}/idl", CLIENTS / "cpp/kueche.cpp", "-o", WORK / "kueche.exe",
                 *libraries)

    def commands(self, catalogue):
        folders = [catalogue, *(f"{catalogue}\\{path.name}" for path in (DRIVE / catalogue[3:]).iterdir() if path.is_dir())]
        return {
            "wohnzimmer": ["cscript", "//nologo", windows(CLIENTS / "vbscript/wohnzimmer.vbs"), catalogue, "C:\\Plan"],
            "stuhlkreis": ["cscript", "//nologo", windows(CLIENTS / "jscript/stuhlkreis.js"), "C:\\Plan", *folders],
            "bad": [windows(WORK / "bad.exe"), "C:\\Plan", *folders],
            "kueche": [windows(WORK / "kueche.exe"), "C:\\Plan", *folders],
        }


# name: (size of its picture, placed symbols, what it says)
WANTED = {
    "wohnzimmer": ((800, 640), 5, ["Dort liegt: Sofa", "Fehler 5 in QPlan: Ung"]),
    "stuhlkreis": ((640, 640), 8, ["Oben links: Teppich rund", "Fehler 5: Ung"]),
    "bad": ((600, 680), 5, ["At (100, 60): Badewanne", "an unknown symbol: error 5 in QPlan: Ung"]),
    "kueche": ((800, 640), 3, ["At (400, 400): Esstisch 6", "error 5 in QPlan: Ung"]),
}


def client_faults(name, command):
    size, count, words = WANTED[name]
    status, said = wine(*command)
    faults = [f"does not say {text!r}" for text in words if text not in said] + ([f"status {status}"] if status else [])
    for ending in ("png", "dxf"):
        if not (DRIVE / f"Plan/{name}.{ending}").exists():
            return [*faults, f"no {ending}", said]
    faults.append(picture_faults(DRIVE / f"Plan/{name}.png", *size))
    inserts = (DRIVE / f"Plan/{name}.dxf").read_text("latin-1").replace("\r", "").count("\nINSERT\n")
    faults.append(inserts != count and f"{inserts} inserts in the drawing")
    return [fault for fault in faults if fault] and [*filter(None, faults), said]


def csharp_faults():
    (WORK / "QSymbol.Interop.cs").write_text(interop.text(ROOT))
    compiled("mcs", "-warnaserror", f"-out:{WORK}/Buero.exe", CLIENTS / "csharp/Buero.cs", WORK / "QSymbol.Interop.cs")
    compiled("mcs", "-warnaserror", "-r:Microsoft.CSharp.dll", f"-out:{WORK}/Spaet.exe", CLIENTS / "csharp/Spaet.cs")


class Names:
    def __init__(self):
        libraries = idl.libraries(ROOT)
        self.members, self.classes, self.constants = {}, {}, set()
        for library in libraries:
            self.constants |= {name for values in library.enums.values() for name in values}
            self.classes |= {f"{library.name}.{name}": creatable for name, (_, _, creatable) in library.classes.items()}
            for _, members in library.interfaces.values():
                for member in members:
                    self.members.setdefault(member.name, []).append(member)

    def faults(self, text, host):
        """Names behind a dot that neither the libraries nor the host know, classes that there are not, too many arguments."""
        bare = re.sub(r'"[^"\n]*"|\'[^\'\n]*$' if host in ("vba", "vb") else r'"""[\s\S]*?"""|"[^"\n]*"|(?m:#.*$)', '""', text, flags=re.M)
        for library, name in re.findall(r"\b(QMath|QSymbol|QPlan)\.(\w+)", text):
            if f"{library}.{name}" not in self.classes and name not in ("dll", "Interop"):
                yield f"no class {library}.{name}"
        for name in re.findall(r"(?<![\d\w.])[A-Za-z_)\]][\w)\]]*\.([A-Za-z]\w+)", bare):
            if name not in self.members and name not in HOSTS[host].split() and not any(full.endswith(f".{name}") for full in self.classes):
                yield f"no member {name}"
        calls = r"\.(\w+) +([^=\n][^\n]*)$" if host in ("vba", "vb") else r"\.(\w+)\(([^()\n]*)\)"
        for name, given in re.findall(calls, bare, flags=re.M):
            methods = [member for member in self.members.get(name, []) if member.kind == "method"]
            count = len([part for part in re.sub(r"\([^()]*\)", "", given).split(",") if part.strip()])
            if methods and not any(sum(not a.optional for a in m.arguments) <= count <= len(m.arguments) for m in methods):
                if not re.match(r"(Then|And|Or|<>|=|&|\*|/|\+|-)", given):
                    yield f"{name} with {count} arguments"


def script_faults(text, number):
    script = WORK / f"example{number}.{'js' if 'ActiveXObject' in text else 'vbs'}"
    script.write_text(text.replace("\n", "\r\n"), encoding="cp1252")
    status, said = wine("cscript", "//nologo", windows(script))
    # Examples end well, and say no more than they mean to.
    return [said] if status or re.search(r"rror|Fehler|\.vbs|No symbols", said) else []


def examples():
    for path in [ROOT / "README.md", *sorted(ROOT.glob("docs/**/*.md")), *sorted(CLIENTS.glob("*.md"))]:
        for found in re.finditer(r"^( *)```(\w+)\n(.*?)^\1```$", path.read_text(encoding="utf-8"), re.S | re.M):
            indent, language, text = found.groups()
            yield f"{path.relative_to(ROOT)}: {language} at {found.start()}", language, re.sub(f"^{indent}", "", text, flags=re.M)


def main():
    status, said = wine(windows(BUILT / "bin/qsymbol.exe"), "convert", "-q", "-r", "--decimal", "comma", "--to", "syb",
                        windows(ROOT / "samples/katalog"), "C:\\Katalog")
    assert status == 0, said
    for name in ("Symbole", "Plan", "Leer"):
        (DRIVE / name).mkdir()
    for path in (DRIVE / "Katalog").rglob("*.syb"):
        (DRIVE / "Symbole" / path.name).write_bytes(path.read_bytes())
    programs, names = Programs(), Names()
    cases = {name: lambda name=name, command=command: client_faults(name, command)
             for name, command in programs.commands("C:\\Katalog").items()}
    cases["csharp"] = csharp_faults
    for path, host in ((CLIENTS / "vba/Wohnung.bas", "vba"), (CLIENTS / "vb/PlanForm.frm", "vb"),
                       (CLIENTS / "powershell/Arbeitszimmer.ps1", "powershell"), *((path, "python") for path in CLIENTS.glob("python/*.py"))):
        cases[path.name] = lambda path=path, host=host: [*names.faults(path.read_text(), host)]
        if host == "python":
            compile(path.read_text(), path.name, "exec")
    for number, (name, language, text) in enumerate(examples()):
        if language == "vbscript" or (language == "js" and "ActiveXObject" in text):
            cases[name] = lambda text=text, number=number: script_faults(text, number)
        elif language == "python":
            cases[name] = lambda text=text, name=name: compile(text, name, "exec") and None
        elif language == "cpp" and "int main" in text:
            (WORK / f"example{number}.cpp").write_text(text)
            cases[name] = lambda number=number: compiled(*GXX, "-fsyntax-only", f"-I{BUILT}/idl", WORK / f"example{number}.cpp")
    # A name that is nowhere must be found, or the check of names would be worth nothing.
    cases["a wrong name"] = lambda: [] if {*names.faults("Plan.HitTset 1\nX.SetScale 1, 2\nNew QPlan.CPlane", "vba")} == {
        "no member HitTset", "SetScale with 2 arguments", "no class QPlan.CPlane", "no member CPlane"} else ["not found"]
    for name, command in programs.commands("C:\\Leer").items():
        cases[f"{name} without a catalogue"] = lambda command=command: first_failure(command, "*.syb")
    cases["without registration"] = lambda: [fault for command in unregistered(programs) for fault in first_failure(command, "regsvr32 QMath")]

    # Most of a client's time is its start: several start at once. Without registration comes when all others are done.
    last = cases.pop("without registration")
    with concurrent.futures.ThreadPoolExecutor(4) as pool:
        results = dict(zip(cases, pool.map(faults_of, cases.values())))
    results["without registration"] = faults_of(last)

    failed = 0
    for name, faults in results.items():
        if faults:
            failed += 1
            print(f"FAILED {name}: " + "\n    ".join(map(str, faults)))
    print(f"{len(results) - failed} passed, {failed} failed, 0 skipped")
    return failed


def faults_of(run):
    try:
        return run()
    except Exception as error:  # a compiler's words, a missing tool
        return [f"{type(error).__name__}: {error}"]


def first_failure(command, words):
    status, said = wine(*command)
    return [] if status == 1 and words in said else [f"{command[-2:]}: status {status}: {said}"]


def unregistered(programs):
    for library in ("QPlan", "QSymbol", "QMath"):
        wine("regsvr32", "/u", "/s", windows(BUILT / f"bin/{library}.dll"))
    return programs.commands("C:\\Katalog").values()


if __name__ == "__main__":
    sys.exit(bool(main()))
