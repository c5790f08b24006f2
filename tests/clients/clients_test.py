"""clients_test.py: what hosts are shown, as they get it. The clients of samples/clients and the programs in README and docs run
where Wine has their interpreter or MinGW and clang compile them; names and numbers of arguments in the others, and in the
fragments of the pages, are held against the contracts. Then the first failures: without registration, without a catalogue,
with the libraries of the other bitness.

Run in a prefix of its own in which the libraries are registered; an argument chooses cases by their names."""

import concurrent.futures
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import zlib

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "scripts"), str(ROOT / "packaging")]
import idl  # noqa: E402
import import_header  # noqa: E402
import interop  # noqa: E402

CLIENTS, BUILT, WORK = ROOT / "samples/clients", ROOT / "build/mingw-x64", ROOT / "build/clients"
DRIVE = pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c"
GXX = ["x86_64-w64-mingw32-g++-posix", "-std=c++17"]
# Names that belong to the hosts, not to the libraries: Excel, Basic, Python, PowerShell.
HOSTS = {
    "vba": "Number Source Description Raise Clear Shapes AddPicture Range Left Top Path Rows UsedRange Cells Value",
    "vb": "Number Source Description Refresh Form PictureBox ScaleMode TwipsPerPixelX EndDoc Move AddSymbol",
    "python": "Dispatch com_error strerror excepinfo argv exit rglob is_dir path calcsize pi client CreateObject glob COMError "
              "details hresult Path win32com",
    "powershell": "ps1 png dxf Exception GetBaseException HResult Source Message",
}

def wine(*command, **options):
    run = subprocess.run(["wine", *map(str, command)], capture_output=True, timeout=400, **options)
    return run.returncode, (run.stdout + run.stderr).decode("cp850", "replace").replace("\r", "")


def windows(path):
    return "Z:" + str(path).replace("/", "\\")


def compiled(*command):
    run = subprocess.run(list(map(str, command)), capture_output=True, text=True)
    if run.returncode:
        raise AssertionError(run.stdout + run.stderr)


def picture_faults(path, width, height, shades=16):
    data = path.read_bytes()
    if struct.unpack(">II", data[16:24]) != (width, height):
        return f"{path.name} is {struct.unpack('>II', data[16:24])}"
    rows = b"".join(data[at + 8:at + 8 + struct.unpack(">I", data[at:at + 4])[0]] for at in
                    (match.start() - 4 for match in re.finditer(b"IDAT", data)))
    return None if len(set(zlib.decompress(rows))) > shades else f"{path.name} is empty"


class Programs:
    """Every client that runs here: how it is started with a catalogue, and what must come of it."""

    def __init__(self):
        WORK.mkdir(parents=True, exist_ok=True)
        libraries = ["-lole32", "-loleaut32", "-luuid", "-static"]
        compiled("x86_64-w64-mingw32-gcc-posix", "-Wall", "-Wextra", "-Werror", "-municode", f"-I{BUILT}/idl", CLIENTS / "c/bad.c", "-o",
                 WORK / "bad.exe", *libraries)
        compiled(*GXX, "-Wall", "-Wextra", "-Werror", "-municode", f"-I{BUILT}/idl", CLIENTS / "cpp/kueche.cpp", "-o", WORK / "kueche.exe",
                 *libraries)
        # The library's folders are those of MinGW's own compiler; clang knows the properties that smart pointers have.
        import_header.write(WORK / "import")
        own = pathlib.Path(subprocess.run([GXX[0], "-print-libgcc-file-name"], capture_output=True, text=True, check=True).stdout).parent
        compiled("clang++", "--target=x86_64-w64-mingw32", "-std=c++17", "-fms-extensions", "-Wall", "-Wextra", "-Werror",
                 "-isystem", own / "include/c++", "-isystem", own / "include/c++/x86_64-w64-mingw32", f"-I{WORK}/import", "-c",
                 CLIENTS / "cpp/kinderzimmer_msvc.cpp", "-o", WORK / "kinderzimmer.o")
        compiled(GXX[0], "-municode", WORK / "kinderzimmer.o", "-o", WORK / "kinderzimmer.exe", *libraries)

    @staticmethod
    def scripts(catalogue):
        """The scripts of samples/scripts, for their first failures."""
        at = {name: windows(ROOT / "samples/scripts" / name) for name in ("katalog.vbs", "zimmer.vbs", "zimmer.js", "zimmer.plan")}
        return {"katalog.vbs": ["cscript", "//nologo", at["katalog.vbs"], catalogue, "C:\\Plan"],
                "zimmer.vbs": ["cscript", "//nologo", at["zimmer.vbs"], catalogue, "C:\\Plan\\zimmer.png"],
                "zimmer.js": ["cscript", "//nologo", at["zimmer.js"], at["zimmer.plan"], "C:\\Plan", catalogue]}

    def commands(self, catalogue):
        folders = [catalogue, *(f"{catalogue}\\{path.name}" for path in (DRIVE / catalogue[3:]).iterdir() if path.is_dir())]
        return {
            "wohnzimmer": ["cscript", "//nologo", windows(CLIENTS / "vbscript/wohnzimmer.vbs"), catalogue, "C:\\Plan"],
            "stuhlkreis": ["cscript", "//nologo", windows(CLIENTS / "jscript/stuhlkreis.js"), "C:\\Plan", *folders],
            "bad": [windows(WORK / "bad.exe"), "C:\\Plan", *folders],
            "kueche": [windows(WORK / "kueche.exe"), "C:\\Plan", *folders],
            "kinderzimmer": [windows(WORK / "kinderzimmer.exe"), catalogue, "C:\\Plan"],
        }


# name: (size of its picture, placed symbols, what it says)
WANTED = {
    "wohnzimmer": ((800, 640), 5, ["Dort liegt: Sofa", "Fehler 5 in QPlan: Ung"]),
    "stuhlkreis": ((640, 640), 8, ["Oben links: Teppich rund", "Fehler 5: Ung"]),
    "bad": ((600, 680), 5, ["At (100, 60): Badewanne", "an unknown symbol: error 5 in QPlan: Ung"]),
    "kueche": ((800, 640), 3, ["At (400, 400): Esstisch 6", "error 5 in QPlan: Ung"]),
    "kinderzimmer": ((700, 500), 3, ["hit: Schreibtisch", "error 5 in QPlan: Ung"]),
}


def client_faults(name, command, wanted):
    """What is wrong with what a client says, draws and writes; `wanted` as in WANTED."""
    size, count, words = wanted
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
    compiled("mcs", "-warnaserror", f"-out:{WORK}/Spaet.exe", CLIENTS / "csharp/Spaet.cs")


class Names:
    def __init__(self):
        libraries = idl.libraries(ROOT)
        self.members, self.classes, self.of = {}, {}, {}
        for library in libraries:
            self.classes |= {f"{library.name}.{name}": creatable for name, (_, _, creatable) in library.classes.items()}
            for face, (_, members) in library.interfaces.items():
                self.of[f"{library.name}.{face[1:]}"] = {member.name for member in members}
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
        # A variable that says its class has that class's members only.
        for name, of in re.findall(r"\b(\w+)(?:\(\))? As (?:New )?((?:QMath|QSymbol|QPlan)\.\w+)", bare):
            for used in re.findall(rf"(?<![\w.]){name}\.([A-Za-z]\w+)", bare):
                if used not in self.of.get(of, {used}) and f"{name}.{used}" not in self.classes:
                    yield f"{of} has no member {used}"
        calls = r"\.(\w+) +([^=\n][^\n]*)$" if host in ("vba", "vb") else r"\.(\w+)\(([^()\n]*)\)"
        for name, given in re.findall(calls, bare, flags=re.M):
            methods = [member for member in self.members.get(name, []) if member.kind == "method"]
            count = len([part for part in re.sub(r"\([^()]*\)", "", given).split(",") if part.strip()])
            if methods and not any(sum(not a.optional for a in m.arguments) <= count <= len(m.arguments) for m in methods):
                if not re.match(r"(Then|And|Or|<>|=|&|\*|/|\+|-)", given):
                    yield f"{name} with {count} arguments"


def program_faults(text, number):
    program = WORK / f"example{number}.exe"
    program.with_suffix(".cpp").write_text(text)
    compiled(*GXX, "-Wall", "-Wextra", "-Werror", f"-I{BUILT}/idl", program.with_suffix(".cpp"), "-o", program, "-lole32", "-loleaut32",
             "-luuid", "-static")
    status, said = wine(windows(program))
    return [said] if status or not said.strip() else []


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


def lay_out():
    """A catalogue with folders in C:\\Katalog, without in C:\\Symbole, an empty one in C:\\Leer; C:\\Plan for what is made."""
    status, said = wine(windows(BUILT / "bin/qsymbol.exe"), "convert", "-q", "-r", "--decimal", "comma", "--to", "syb",
                        windows(ROOT / "samples/katalog"), "C:\\Katalog")
    assert status == 0, said
    for name in ("Symbole", "Plan", "Leer"):
        (DRIVE / name).mkdir()
    for path in (DRIVE / "Katalog").rglob("*.syb"):
        (DRIVE / "Symbole" / path.name).write_bytes(path.read_bytes())


def report(results):
    failed = 0
    for name, faults in results.items():
        if faults:
            failed += 1
            print(f"FAILED {name}: " + "\n    ".join(map(str, faults)))
    print(f"{len(results) - failed} passed, {failed} failed, 0 skipped")
    return failed


def main():
    lay_out()
    programs, names = Programs(), Names()
    cases = {name: lambda name=name, command=command: client_faults(name, command, WANTED[name])
             for name, command in programs.commands("C:\\Katalog").items()}
    cases["csharp"] = csharp_faults
    cases["pictures of the classes"] = class_picture_faults
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
            cases[name] = lambda text=text, number=number: program_faults(text, number)
        elif language == "vba":
            cases[name] = lambda text=text: sorted({*names.faults(text, "vb")})
    # A name that is nowhere must be found, or the check of names would be worth nothing.
    wrong = "Plan.HitTset 1\nX.SetScale 1, 2\nNew QPlan.CPlane\nDim P As QMath.CPt\nP.Radius = 1"
    cases["a wrong name"] = lambda: [] if {*names.faults(wrong, "vba")} == {
        "no member HitTset", "SetScale with 2 arguments", "no class QPlan.CPlane", "no member CPlane",
        "QMath.CPt has no member Radius"} else ["not found"]
    # A client is read at a glance.
    cases["length"] = lambda: [f"{path.name}: {len(path.read_bytes().splitlines())} lines" for path in CLIENTS.glob("*/*")
                               if path.suffix != ".manifest" and not 15 <= len(path.read_bytes().splitlines()) <= 60]
    assert any(language == "cpp" and "int main" in text for _, language, text in examples()), "a whole program in C++"
    for name, command in (programs.commands("C:\\Leer") | programs.scripts("C:\\Leer")).items():
        cases[f"{name} without a catalogue"] = lambda command=command: first_failure(command, "*.syb")

    results = together(cases)
    without = programs.commands("C:\\Katalog") | programs.scripts("C:\\Katalog")
    for state, bring_about in {"without registration": unregister, "without QMath": lambda: register_alone("QSymbol", "QPlan"),
                               "registered for the other bitness": lambda: (unregister(), register_other_bitness())}.items():
        bring_about()
        results |= together({f"{name} {state}": lambda command=command: first_failure(command, "regsvr32 QMath")
                             for name, command in without.items()})
    return report(results)


def together(cases):
    """Most of a client's time is its start: several start at once. With an argument, those whose names match."""
    cases = {name: case for name, case in cases.items() if re.search(sys.argv[1] if len(sys.argv) > 1 else "", name)}
    with concurrent.futures.ThreadPoolExecutor(4) as pool:
        return dict(zip(cases, pool.map(faults_of, cases.values())))


def faults_of(run):
    try:
        return run()
    except Exception as error:  # a compiler's words, a missing tool
        return [f"{type(error).__name__}: {error}"]


def class_picture_faults():
    """The script of the classes' pictures still draws them all, in their size."""
    target = DRIVE / "Bilder"
    target.mkdir()
    status, said = wine("cscript", "//nologo", windows(ROOT / "docs/images/classes.vbs"), "C:\\Symbole", "C:\\Bilder")
    faults = [said] if status else []
    for kept in (ROOT / "docs/images/classes").glob("*.png"):
        made = target / kept.name
        size = struct.unpack(">II", kept.read_bytes()[16:24])
        faults.append(picture_faults(made, *size, shades=4) if made.is_file() else f"{made.name} is not drawn")
    return [fault for fault in faults if fault]


def register_alone(*names):
    """Libraries that were copied and registered without the one that they need."""
    (DRIVE / "Allein").mkdir()
    for name in names:
        shutil.copy(BUILT / f"bin/{name}.dll", DRIVE / "Allein")
        wine("regsvr32", "/s", f"C:\\Allein\\{name}.dll")


def register_other_bitness():
    """What a registration for 32 bits leaves: names and type libraries for all, classes out of the sight of 64-bit programs."""
    lines = ["Windows Registry Editor Version 5.00", ""]
    for library in idl.libraries(ROOT):
        for name, (guid, _, creatable) in library.classes.items():
            if creatable:
                clsid = "{" + guid.upper() + "}"
                lines += [f"[HKEY_LOCAL_MACHINE\\Software\\Classes\\{library.name}.{name}\\CLSID]", f'@="{clsid}"', "",
                          f"[HKEY_LOCAL_MACHINE\\Software\\Classes\\Wow6432Node\\CLSID\\{clsid}\\InprocServer32]",
                          f'@="C:\\\\x86\\\\{library.name}.dll"', ""]
    (DRIVE / "x86.reg").write_text("\r\n".join(lines), "utf-16")
    status, said = wine("reg", "import", "C:\\x86.reg")
    assert status == 0, said


def first_failure(command, words):
    status, said = wine(*command)
    return [] if status == 1 and words in said else [f"{command[-2:]}: status {status}: {said}"]


def unregister():
    for library in ("QPlan", "QSymbol", "QMath"):
        wine("regsvr32", "/u", "/s", windows(BUILT / f"bin/{library}.dll"))


if __name__ == "__main__":
    sys.exit(bool(main()))
