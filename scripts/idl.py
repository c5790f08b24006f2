"""Reads the contracts in idl/: libraries, classes, interfaces with their members in slot order, enumerations."""

import dataclasses
import pathlib
import re

BASIC = {"long": "Long", "short": "Integer", "float": "Single", "double": "Double", "VARIANT_BOOL": "Boolean",
         "BSTR": "String", "IDispatch": "Object", "IUnknown": "enumerator", "IFontDisp": "font object",
         "IPictureDisp": "picture object", "VARIANT": "Variant", "OLE_COLOR": "Long"}


@dataclasses.dataclass(frozen=True)
class Argument:
    name: str
    type: str  # as Basic calls it
    by_ref: bool = False
    optional: bool = False
    default: str = dataclasses.field(default="0", compare=False)  # what stands for it when it is left out


@dataclasses.dataclass(frozen=True)
class Member:
    name: str
    kind: str  # method, get, let, set
    dispid: int
    arguments: tuple  # without the result; the value of a property that is put is its type alone
    result: str  # "" without one


@dataclasses.dataclass
class Library:
    name: str
    guid: str
    help: str
    version_macro: str
    interfaces: dict  # _CName: (guid, [Member])
    classes: dict  # CName: (guid, help, creatable)
    enums: dict  # name: {constant: value}


def basic_type(idl_type):
    bare = idl_type.replace("*", "").strip()
    return BASIC.get(bare, bare.removeprefix("_"))


def _argument(text):
    flags, declared, name = re.fullmatch(r"\[([^\]]*)\]\s*([\w ]+?\s*\**)\s*(\w+)", text.strip()).groups()
    words = {word.split("(")[0].strip() for word in flags.split(",")}
    omitted = re.search(r"defaultvalue\(([^)]*)\)", flags)
    return words, Argument(name, basic_type(declared), "out" in words and "retval" not in words,
                           bool({"optional", "defaultvalue"} & words), omitted.group(1) if omitted else "0")


def _member(flags, name, arguments):
    words = re.sub(r'"[^"]*"', "", flags)
    kind = next((kind for word, kind in (("propputref", "set"), ("propput", "let"), ("propget", "get"))
                 if re.search(rf"\b{word}\b", words)), "method")
    parsed = [_argument(part) for part in re.split(r",\s*(?=\[)", arguments) if part.strip()]
    result = next((argument.type for flag, argument in parsed if "retval" in flag), "")
    inward = tuple(argument for flag, argument in parsed if "retval" not in flag)
    if kind in ("let", "set"):
        result, inward = inward[-1].type, inward[:-1]
    return Member(name, kind, int(re.search(r"\bid\((-?\d+)\)", words).group(1)), inward, result)


def read(path):
    text = re.sub(r"//[^\n]*", "", path.read_text(encoding="utf-8"))
    text = re.sub(r"^#.*$", "", text, flags=re.M)
    text = re.sub(r"\s*OMITTED\(([^)]*)\)", r", defaultvalue(\1)", text)
    interfaces = {}
    for flags, name, body in re.findall(r"\[([^\]]*)\]\s*interface (_C\w+) : IDispatch \{(.*?)\n\}", text, re.S):
        members = re.findall(r"\[((?:[^\]\"]|\"[^\"]*\")*)\]\s*HRESULT (\w+)\((.*?)\);", body, re.S)
        interfaces[name] = (re.search(r"uuid\(([\w-]+)\)", flags).group(1), [_member(*member) for member in members])
    classes = {}
    for flags, name in re.findall(r"\[((?:[^\]\"]|\"[^\"]*\")*)\]\s*coclass (\w+)", text):
        classes[name] = (re.search(r"uuid\(([\w-]+)\)", flags).group(1),
                         re.search(r'helpstring\("([^"]*)"\)', flags).group(1), "noncreatable" not in flags)
    enums = {name: {constant: int(value, 0) for constant, value in re.findall(r"(\w+)\s*=\s*(-?\w+)", body)}
             for body, name in re.findall(r"typedef\s+(?:\[[^\]]*\]\s*)?enum\s*\w*\s*\{([^}]*)\}\s*(\w+);", text)}
    head, name = re.search(r"\[([^\]]*)\]\s*library (\w+)", text).groups()
    return Library(name, re.search(r"uuid\(([\w-]+)\)", head).group(1),
                   re.search(r'helpstring\("([^"]*)"\)', head).group(1),
                   re.search(r"version\((\w+)\)", head).group(1), interfaces, classes, enums)


def libraries(root):
    return [read(path) for path in sorted(pathlib.Path(root).glob("idl/*.idl"))]
