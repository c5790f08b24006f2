"""import_header.py FOLDER: writes what Microsoft's compiler makes of `#import "QMath.tlb"` and its siblings, as far as clients
see it: smart pointers, members that throw `_com_error`, properties, raw members. For a compiler that takes `#import` for an
`#include` that happens once and knows `__declspec(property)`, clang for MinGW.

Made from the contracts, by the published rules of `#import`: an argument that is text is a `_bstr_t`, a result is a smart
pointer or a `_bstr_t`, `X` of a property is `GetX`, `PutX`, `PutRefX`, raw `get_X`, `put_X`, `putref_X`, of a method `raw_X`."""

import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts"))
import idl  # noqa: E402

PLAIN = {"Long": "long", "Integer": "short", "Single": "float", "Double": "double", "Boolean": "VARIANT_BOOL"}
SYSTEM = {"Object": "IDispatch", "enumerator": "IUnknown", "font object": "IFontDisp", "picture object": "IPictureDisp"}
VERBS = {"get": ("Get", "get_"), "let": ("Put", "put_"), "set": ("PutRef", "putref_"), "method": ("", "raw_")}
# What comdef.h of MinGW declares and no library of it defines.
SUPPORT = """#pragma once
#include <comdef.h>
inline void WINAPI _com_issue_errorex(HRESULT status, IUnknown* object, REFIID iid) {
    ISupportErrorInfo* support = nullptr;
    IErrorInfo* info = nullptr;
    if (SUCCEEDED(object->QueryInterface(IID_ISupportErrorInfo, reinterpret_cast<void**>(&support)))) {
        if (support->InterfaceSupportsErrorInfo(iid) == S_OK) GetErrorInfo(0, &info);
        support->Release();
    }
    throw _com_error(status, info);
}
_COM_SMARTPTR_TYPEDEF(IUnknown, __uuidof(IUnknown));
_COM_SMARTPTR_TYPEDEF(IFontDisp, __uuidof(IFontDisp));
_COM_SMARTPTR_TYPEDEF(IPictureDisp, __uuidof(IPictureDisp));
"""


class Names:
    """Types as the header writes them."""

    def __init__(self, libraries):
        self.enums = {name: f"{library.name}::{name}" for library in libraries for name in library.enums}
        self.faces = {name: f"{library.name}::_{name}" for library in libraries for name in library.classes}

    def raw(self, name):
        if name in PLAIN:
            return PLAIN[name]
        if name == "String":
            return "BSTR"
        return self.enums.get(name) or f"{SYSTEM.get(name) or self.faces[name]}*"

    def held(self, name):
        if name == "String":
            return "_bstr_t"
        if name in PLAIN or name in self.enums:
            return self.raw(name)
        return f"{SYSTEM.get(name) or self.faces[name]}Ptr"


def default(names, argument):
    """Only values of omitted arguments that are no places for results."""
    if not argument.optional or argument.by_ref:
        return ""
    return f" = static_cast<{names.raw(argument.type)}>({argument.default})"


def member(names, face, given):
    verb, raw_verb = VERBS[given.kind]
    values = list(given.arguments)
    if given.kind in ("let", "set"):
        values.append(idl.Argument("value", given.result))
    result = given.result if given.kind in ("get", "method") else ""
    raw = [f"{names.raw(one.type)}{'*' if one.by_ref else ''} {one.name}" for one in values]
    raw += [f"{names.raw(result)}* result"] if result else []
    text = lambda one: one.type == "String" and not one.by_ref  # noqa: E731
    shown = [f"{'_bstr_t' if text(one) else names.raw(one.type)}{'*' if one.by_ref else ''} {one.name}{default(names, one)}"
             for one in values]
    call = ", ".join([*(one.name for one in values), *(["&result"] if result else [])])
    yield f"    virtual HRESULT STDMETHODCALLTYPE {raw_verb}{given.name}({', '.join(raw)}) = 0;"
    yield f"    {names.held(result) if result else 'HRESULT'} {verb}{given.name}({', '.join(shown)}) {{"
    yield f"        {names.raw(result)} result{{}};" if result else ""
    yield f"        const HRESULT status = {raw_verb}{given.name}({call});"
    yield "        if (FAILED(status)) _com_issue_errorex(status, this, __uuidof(this));"
    if result in PLAIN or result in names.enums or not result:
        yield f"        return {'result' if result else 'status'};"
    else:
        yield f"        return {names.held(result)}(result, false);"
    yield "    }"


def properties(names, members):
    kinds = {}
    for given in members:
        if given.kind != "method" and (given.kind == "get" or given.name not in kinds or "get" in kinds[given.name]):
            kinds.setdefault(given.name, {})[given.kind] = given
    for name, found in kinds.items():
        one = next(iter(found.values()))
        verbs = [f"{'get' if kind == 'get' else 'put'}={VERBS[kind][0]}{name}" for kind in ("get", "set" if "set" in found else "let")
                 if kind in found]
        if len(one.arguments) < 2:  # clang knows no property of two indices; its Get and Put are there
            yield f"    __declspec(property({', '.join(verbs)})) {names.held(one.result)} {name}{'[]' * len(one.arguments)};"


def uuid_of(type_name, guid):
    parts = guid.split("-")
    tail = parts[3] + parts[4]
    numbers = [f"0x{part}" for part in (*parts[:3], *(tail[at:at + 2] for at in range(0, 16, 2)))]
    return f"__CRT_UUID_DECL({type_name}, {', '.join(numbers)})"


def header(library, names, before):
    out = ["#pragma once", "#include \"import_support.h\"", *(f'#import "{name}.tlb"' for name in before)]
    classes = [name for name, (_, _, creatable) in library.classes.items() if creatable]
    out += [f"namespace {library.name} {{", *(f"struct {name};" for name in [*library.interfaces, *classes]), "}"]
    out += [uuid_of(f"{library.name}::{name}", guid) for name, (guid, _) in library.interfaces.items()]
    out += [uuid_of(f"{library.name}::{name}", library.classes[name][0]) for name in classes]
    out += [f"namespace {library.name} {{"]
    for name, constants in library.enums.items():
        out.append(f"enum {name} {{ {', '.join(f'{key} = {value}' for key, value in constants.items())} }};")
    out += [f"_COM_SMARTPTR_TYPEDEF({name}, __uuidof({name}));" for name in library.interfaces]
    for name, (_, members) in library.interfaces.items():
        out += [f"struct {name} : IDispatch {{", *properties(names, members)]
        for given in members:
            out += filter(None, member(names, name, given))
        out.append("};")
    return "\n".join([*out, "}", ""])


def write(folder):
    folder.mkdir(parents=True, exist_ok=True)
    libraries = {library.name: library for library in idl.libraries(ROOT)}
    names = Names(libraries.values())
    (folder / "import_support.h").write_text(SUPPORT)
    before = []
    for name in ("QMath", "QSymbol", "QPlan"):
        (folder / f"{name}.tlb").write_text(header(libraries[name], names, before))
        before.append(name)


if __name__ == "__main__":
    write(pathlib.Path(sys.argv[1]))
