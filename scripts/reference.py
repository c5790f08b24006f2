"""reference.py [ROOT]: holds the reference against the contracts. Every class and every enumeration of idl/ has a page of
its own in docs/classes, and its table of members says slot, name, kind, arguments and types as the contract does: a member
without its row and a row without its member are named, and the exit status is 1."""

import pathlib
import re
import sys

import idl

KINDS = {"method": "", "get": "get", "let": "let", "set": "set"}


def rows(page, first_header):
    """The cells of every table of a page whose first column is headed so."""
    inside = False
    for line in page.splitlines():
        cells = [cell.strip() for cell in re.split(r"(?<!\\)\|", line)[1:-1]] if line.startswith("|") else None
        if cells is None:
            inside = False
        elif cells[0] == first_header:
            inside = True
        elif inside and not set(line) <= set("|-: "):
            yield cells


def stated(cells):
    """One row as [(slot, name, kind, arguments, result)], one for each of its slots."""
    name = re.match(r"\[?`(\w+)`(?:\]\([^)]*\))?(?: \(([^)]*)\))?$", cells[1])
    if not name:
        raise ValueError(f"no member: {cells[1]}")
    # "default" and "hidden" are remarks beside the kind.
    kinds = [word for word in (name.group(2) or "").split(", ") if word in KINDS.values() and word] or ["method"]
    slots = [int(slot) for slot in cells[0].split(",")]
    if len(slots) != len(kinds):
        raise ValueError(f"{name.group(1)}: {len(slots)} slots for {len(kinds)} kinds")
    text = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", cells[2])
    given, _, result = (part.strip() for part in text.partition("→"))
    arguments = []
    for flags, names, kind in re.findall(r"((?:optional |ByRef )*)((?:`\w+`(?:, )?)+) (\w+(?: object)?)", given):
        arguments += [idl.Argument(word, kind, "ByRef" in flags, "optional" in flags)
                      for word in re.findall(r"`(\w+)`", names)]
    if not arguments and not result and kinds != ["method"]:
        result = given
    return [(slot, name.group(1), kind, tuple(arguments), result) for slot, kind in zip(slots, kinds)]


def described(member):
    arguments = ", ".join(("optional " if a.optional else "") + ("ByRef " if a.by_ref else "") + f"{a.name} {a.type}"
                          for a in member[3])
    return f"{member[1]} ({member[2]}) {arguments}" + (f" → {member[4]}" if member[4] else "")


def class_faults(name, members, page):
    found, faults = {}, []
    for cells in rows(page, "#"):
        try:
            found.update({entry[0]: entry for entry in stated(cells)})
        except ValueError as error:
            faults.append(str(error))
    for slot, member in enumerate(members, 1):
        contract = (slot, member.name, member.kind, member.arguments, member.result)
        row = found.pop(slot, None)
        if row is None:
            faults.append(f"slot {slot}, {member.name} ({member.kind}), has no row")
        elif row != contract:
            faults.append(f"slot {slot} says {described(row)}, the contract {described(contract)}")
    faults += [f"slot {slot}, {row[1]}, is not in the contract" for slot, row in found.items()]
    return [f"docs/classes/{name}.md: {fault}" for fault in faults]


def enum_faults(name, constants, page):
    found = {cells[0].strip("`"): int(cells[1]) for cells in rows(page, "Name")}
    return [f"docs/classes/{name}.md: {key} is {found.get(key, 'without a row')}, in the contract "
            f"{constants.get(key, 'it is not')}" for key in sorted(found.keys() | constants.keys())
            if found.get(key) != constants.get(key)]


def check(root):
    faults, pages = [], {path.stem: path for path in pathlib.Path(root).glob("docs/classes/*.md")}
    known = set()
    for library in idl.libraries(root):
        tables = {name[1:]: (class_faults, members) for name, (_, members) in library.interfaces.items()}
        tables |= {name: (enum_faults, constants) for name, constants in library.enums.items()}
        for name, (compare, contract) in tables.items():
            known.add(name)
            if name in pages:
                faults += compare(name, contract, pages[name].read_text(encoding="utf-8"))
            else:
                faults.append(f"{library.name}.{name} has no page docs/classes/{name}.md")
    faults += [f"docs/classes/{name}.md is of no class" for name in sorted(pages.keys() - known)
               if re.match("C[A-Z]", name)]
    return faults


if __name__ == "__main__":
    findings = check(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[1])
    print("\n".join(findings) or "reference: complete")
    sys.exit(bool(findings))
