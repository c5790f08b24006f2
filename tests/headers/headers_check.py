"""Compiles small hosts against the published headers: python3 headers_check.py FOLDER

Both languages, the compilers of both worlds, every order with <windowsx.h>, with all warnings as errors. Ends with a
line of figures and with 1 when a host did not compile.
"""
import itertools
import os
import shutil
import subprocess
import sys
import tempfile

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Werror", "-fsyntax-only"]
WINE = "/usr/include/wine/wine"

HOST_C = """
HRESULT Name(_CSymbol* symbol, BSTR* name) { return _CSymbol_get_Name(symbol, name); }
HRESULT Font(_CFontSelector* fonts) {
    return _CFontSelector_SelectFont(fonts, NULL, 0, 10, 0, VARIANT_FALSE, VARIANT_FALSE, VARIANT_FALSE, VARIANT_FALSE, NULL);
}
const CLSID* Class(void) { return &CLSID_CSymbol; }
int Kind(void) { return symText; }
"""
HOST_CPP = """
HRESULT Name(_CSymbol* symbol, BSTR* name) { return symbol->get_Name(name); }
HRESULT Font(_CFontSelector* fonts) {
    return (fonts->SelectFont)(nullptr, 0, 10, 0, VARIANT_FALSE, VARIANT_FALSE, VARIANT_FALSE, VARIANT_FALSE, nullptr);
}
const CLSID* Class() { return &CLSID_CSymbol; }
int Kind() { return symText; }
"""
PLAN_C = """
HRESULT Add(_CPlan* plan, BSTR name, _CPlacement** placed) { return _CPlan_Add(plan, name, 1, 2, 0.5, placed); }
HRESULT Draw(_CPlan* plan, _CPicture* picture, _CTrans* trans) {
    return _CPlan_Draw(plan, (IDispatch*)picture, trans);
}
HRESULT Take(_CPlan* plan, _CSymbolColl* symbols) { return _CPlan_putref_Symbols(plan, symbols); }
const CLSID* Plan(void) { return &CLSID_CPlan; }
int Unit(void) { return planMetres; }
"""
PLAN_CPP = """
HRESULT Add(_CPlan* plan, BSTR name, _CPlacement** placed) { return plan->Add(name, 1, 2, 0.5, placed); }
HRESULT Draw(_CPlan* plan, _CPicture* picture, _CTrans* trans) { return plan->Draw(picture, trans); }
HRESULT Take(_CPlan* plan, _CSymbolColl* symbols) { return plan->putref_Symbols(symbols); }
const CLSID* Plan() { return &CLSID_CPlan; }
int Unit() { return planMetres; }
"""
# Wine's headers, taken for the mode of another compiler, carry no ids of interfaces.
IDS = """
HRESULT Ask(IUnknown* object, void** symbol) { return object->QueryInterface(__uuidof(_CSymbol), symbol); }
"""
# The macro of <windowsx.h> must be there for a host that wants it.
MACRO = """
HFONT Select(HDC dc, HFONT font) { return SelectFont(dc, font); }
"""
INCLUDES = {
    "alone": ["QSymbol.h"],
    "windowsx.h first": ["windowsx.h", "QSymbol.h"],
    "windowsx.h last": ["QSymbol.h", "windowsx.h"],
    "windowsx.h between": ["QMath.h", "windowsx.h", "QSymbol.h"],
    "plans": ["QPlan.h"],
    "plans, windowsx.h first": ["windowsx.h", "QPlan.h"],
    "plans, windowsx.h last": ["QPlan.h", "windowsx.h"],
    "plans before the others": ["QPlan.h", "QSymbol.h", "QMath.h"],
    "plans after the others, each twice": ["QMath.h", "QSymbol.h", "QPlan.h"] * 2,
}


def compilers():
    for triple in ("x86_64-w64-mingw32", "i686-w64-mingw32"):
        yield f"{triple}-gcc", "C", [f"{triple}-gcc-posix", "-std=c99"]
        yield f"{triple}-g++", "C++", [f"{triple}-g++-posix", "-std=c++14"]
    if shutil.which("clang"):
        resources = subprocess.run(["clang", "-print-resource-dir"], capture_output=True, text=True, check=True)
        system = ["-nostdinc", "-fms-extensions", "-fms-compatibility"]
        for folder in (resources.stdout.strip() + "/include", f"{WINE}/msvcrt", f"{WINE}/windows"):
            system += ["-isystem", folder]
        for target in ("x86_64-pc-windows-msvc", "i686-pc-windows-msvc"):
            yield f"clang {target}", "C", ["clang", f"--target={target}", "-std=c99", *system]
        # Wine's header defines what is built into this compiler.
        yield "clang++ x86_64-pc-windows-msvc", "C++", [
            "clang++", "--target=x86_64-pc-windows-msvc", "-std=c++14", *system,
            "-D_InterlockedCompareExchange128=WineInterlockedCompareExchange128"]


def failure(command, language, includes, headers, folder):
    """The compiler's output when a host does not compile, else an empty text."""
    source = os.path.join(folder, "host.c" if language == "C" else "host.cpp")
    with open(source, "w", encoding="ascii") as file:
        file.write("#define COBJMACROS\n" if language == "C" else "")
        file.write("".join(f"#include <{name}>\n" for name in includes))
        file.write(HOST_C if language == "C" else HOST_CPP)
        if "QPlan.h" in includes:
            file.write(PLAN_C if language == "C" else PLAN_CPP)
        file.write(IDS if "g++-posix" in command[0] else "")
        file.write(MACRO if "windowsx.h" in includes else "")
    # Headers of the same names in an earlier folder must not be taken for those beside the one that the host wants.
    earlier = []
    for name in ("QMath.h", "QSymbol.h"):
        if name not in includes:
            earlier += ["-I", os.path.join(folder, name)]
    done = subprocess.run([*command, *WARNINGS, *earlier, "-I", headers, source], capture_output=True, text=True, check=False)
    return done.stderr if done.returncode != 0 else ""


def main():
    headers = sys.argv[1]
    passed = failed = 0
    with tempfile.TemporaryDirectory() as folder:
        for name in ("QMath.h", "QSymbol.h"):
            os.mkdir(os.path.join(folder, name))
            with open(os.path.join(folder, name, name), "w", encoding="ascii") as file:
                file.write("#error this is somebody else's\n")
        for (name, language, command), (order, includes) in itertools.product(compilers(), INCLUDES.items()):
            text = failure(command, language, includes, headers, folder)
            if text:
                failed += 1
                print(f"{name}, {language}, {order}:\n{text[:2000]}")
            else:
                passed += 1
    print(f"{passed} passed, {failed} failed, 0 skipped")
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main())
