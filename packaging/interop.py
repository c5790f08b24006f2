"""interop.py: the contracts as C# declarations, what a host in C# is compiled against. Nothing of it is written by hand, so it
cannot differ from the type libraries."""

import dataclasses
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "scripts"))
import idl  # noqa: E402

TYPES = {"Long": "int", "Integer": "short", "Single": "float", "Double": "double", "Boolean": "bool", "String": "string",
         "enumerator": "object"}
INTERFACES = {"Object": "[MarshalAs(UnmanagedType.IDispatch)] object", "font object": "[MarshalAs(UnmanagedType.IDispatch)] object",
              "picture object": "[MarshalAs(UnmanagedType.IDispatch)] object", "Variant": "object"}
KEYWORDS = {"object", "ref", "string", "out", "in", "params"}


class Writer:
    def __init__(self, libraries):
        self.enums = {name for library in libraries for name in library.enums}
        self.owner = {name: library.name for library in libraries for name in [*library.classes, *library.enums]}

    def type(self, name):
        if name in TYPES:
            return TYPES[name]
        if name in INTERFACES:
            return "object"
        return f"{self.owner[name]}.{'' if name in self.enums else '_'}{name}"

    def attribute(self, name, place=""):
        if name == "enumerator":
            return f"[{place}MarshalAs(UnmanagedType.IUnknown)] "
        return f"[{place}MarshalAs(UnmanagedType.IDispatch)] " if INTERFACES.get(name, "object") != "object" else ""

    def argument(self, given):
        name = f"@{given.name}" if given.name in KEYWORDS else given.name
        optional = "[Optional] " if given.optional else ""
        return f"{optional}{self.attribute(given.type)}{'ref ' if given.by_ref else ''}{self.type(given.type)} {name}"

    def member(self, member):
        arguments = [self.argument(given) for given in member.arguments]
        if member.kind in ("let", "set"):
            arguments.append(f"{self.attribute(member.result)}{self.type(member.result)} value")
            return f"void {member.name}({', '.join(arguments)})"
        kind = self.type(member.result) if member.result else "void"
        return f"{self.attribute(member.result, 'return: ')}{kind} {member.name}({', '.join(arguments)})"

    def members(self, members):
        """In slot order. A property is one only where get and put stand together: otherwise its slots would move."""
        lines, at = [], 0
        while at < len(members):
            member, following = members[at], members[at + 1] if at + 1 < len(members) else None
            both = (member.kind == "get" and following and following.name == member.name and following.kind != "get")
            plain = member.kind != "method" and not member.arguments and not self.attribute(member.result)
            if plain and (both or self.alone(members, member)):
                accessors = f"[DispId({member.dispid})] get; " if member.kind == "get" else ""
                accessors += f"[DispId({member.dispid})] set; " if both or member.kind != "get" else ""
                lines.append(f"{self.type(member.result)} {member.name} {{ {accessors}}}")
                at += 2 if both else 1
                continue
            name = member.name if member.kind == "method" or member.arguments else f"{member.kind}_{member.name}"
            lines.append(f"[DispId({member.dispid})] {self.member(dataclasses.replace(member, name=name))};")
            at += 1
        return lines

    @staticmethod
    def alone(members, member):
        return sum(other.name == member.name for other in members) == 1


def text(root):
    libraries = idl.libraries(root)
    writer = Writer(libraries)
    out = ["// Made from the contracts of the libraries; compile it into a C# host. Result and arguments are as in the reference.",
           "using System.Runtime.InteropServices;", ""]
    for library in libraries:
        out += [f"namespace {library.name}", "{"]
        for name, constants in library.enums.items():
            out.append(f"    public enum {name} {{ {', '.join(f'{key} = {value}' for key, value in constants.items())} }}")
        for name, (guid, members) in library.interfaces.items():
            out += [f'    [ComImport, Guid("{guid}"), InterfaceType(ComInterfaceType.InterfaceIsDual)]',
                    f"    public interface {name}", "    {", *(f"        {line}" for line in writer.members(members)), "    }"]
        for name, (guid, help_text, creatable) in library.classes.items():
            if creatable:
                out += [f"    /// <summary>{help_text}</summary>", f'    [ComImport, Guid("{guid}")]', f"    public class {name} {{ }}"]
        out += ["}", ""]
    return "\n".join(out)


if __name__ == "__main__":
    print(text(pathlib.Path(__file__).resolve().parents[1]))
