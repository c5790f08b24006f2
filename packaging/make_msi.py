"""make_msi.py STAGE x64|x86 FILE.msi: the installer of one bitness, by wixl, from what stage.py laid out.

What regsvr32 would write stands in it as rows of its registry table, made from the contracts: the installer takes them away
again, also after the DLLs are gone. scripts/package --test holds both against each other."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

import release

sys.path.insert(0, str(release.ROOT / "scripts"))
import idl  # noqa: E402

MARSHALLER = "{00020424-0000-0000-C000-000000000046}"


def add(parent, tag, **attributes):
    return xml.SubElement(parent, tag, {name.rstrip("_"): str(value) for name, value in attributes.items()})


class Installer:
    def __init__(self, staged, kind):
        self.staged, self.kind, self.wide = staged, kind, kind == "x64"
        self.ids, self.components = {}, []
        self.root = xml.Element("Wix", xmlns="http://schemas.microsoft.com/wix/2006/wi")
        self.product = add(self.root, "Product", Id=release.guid("product", kind, str(release.BUILD)), Language=1031, Name="QSymbol",
                           Version=release.MSI_VERSION, Manufacturer="Tessera", UpgradeCode=release.guid("upgrade", kind))
        add(self.product, "Package", Id=release.guid("package", kind, release.TEXT, str(release.EPOCH)), InstallerVersion=200,
            Compressed="yes", InstallScope="perMachine", Description=f"QSymbol {release.TEXT}, {kind}", Manufacturer="Tessera",
            Languages=1031)
        add(self.product, "MajorUpgrade", DowngradeErrorMessage="Eine neuere Fassung von QSymbol ist installiert.")
        add(self.product, "Media", Id=1, Cabinet="qsymbol.cab", EmbedCab="yes")
        add(self.product, "Property", Id="ARPCOMMENTS", Value=f"QSymbol {release.TEXT}")
        add(self.product, "Property", Id="ARPNOMODIFY", Value="1")
        self.target = add(self.product, "Directory", Id="TARGETDIR", Name="SourceDir")
        self.folders()
        feature = add(self.product, "Feature", Id="Alles", Title="QSymbol", Level=1)
        for component in self.components:
            add(feature, "ComponentRef", Id=component)

    def id(self, kind, name):
        """A short id for anything, the same in every build."""
        return self.ids.setdefault((kind, name), f"{kind}{release.guid(kind, name).replace('-', '')[:24]}")

    def component(self, folder, name, wide=None, shared=False):
        """One that both bitnesses have in common counts its installations: what it wrote goes with the last of them."""
        identity = self.id("c", name)
        self.components.append(identity)
        return add(folder, "Component", Id=identity, Guid=release.guid("shared" if shared else self.kind, name),
                   Win64="yes" if (self.wide if wide is None else wide) else "no")

    def files(self, folder, source, name, keep=lambda path: True):
        """A folder with its files and those below it."""
        files = [path for path in sorted(source.iterdir()) if path.is_file() and keep(path)]
        if files:
            component = self.component(folder, name)
            for path in files:
                add(component, "File", Id=self.id("f", f"{name}/{path.name}"), Name=path.name, Source=pathlib.Path("stage") / path.relative_to(self.staged),
                    **({"KeyPath": "yes"} if path == files[0] else {}))
        for path in sorted(path for path in source.iterdir() if path.is_dir()):
            inner = add(folder, "Directory", Id=self.id("d", f"{name}/{path.name}"), Name=path.name)
            self.files(inner, path, f"{name}/{path.name}", keep)

    def folders(self):
        programs = add(self.target, "Directory", Id="ProgramFiles64Folder" if self.wide else "ProgramFilesFolder")
        main = add(programs, "Directory", Id="INSTALLDIR", Name="QSymbol")
        self.files(main, self.staged / self.kind, "programs")
        for name in ("include", "samples", "documentation"):
            self.files(add(main, "Directory", Id=self.id("d", name), Name=name), self.staged / name, name)
        self.registration(main)
        self.documents()
        self.menu()

    def documents(self):
        """The catalogue belongs to all users: below the shared documents, wherever the machine has them."""
        known = add(self.product, "Property", Id="SHAREDDOCUMENTS")
        add(known, "RegistrySearch", Id="SharedDocuments", Root="HKLM", Type="raw", Name="Common Documents",
            Key="Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders")
        add(self.product, "CustomAction", Id="UsualDocuments", Property="SHAREDDOCUMENTS", Value="[%PUBLIC]\\Documents")
        for sequence in ("InstallUISequence", "InstallExecuteSequence"):
            table = self.product.find(sequence)
            table = add(self.product, sequence) if table is None else table
            step = add(table, "Custom", Action="UsualDocuments", Before="CostInitialize")
            step.text = "NOT SHAREDDOCUMENTS"
        shared = add(self.target, "Directory", Id="SHAREDDOCUMENTS", Name="Documents")
        own = add(shared, "Directory", Id=self.id("d", "shared"), Name="QSymbol")
        self.files(add(own, "Directory", Id="CATALOGUEDIR", Name="Katalog"), self.staged / "katalog/syb", "katalog")
        plan = self.component(own, "plan")
        add(plan, "File", Id="SamplePlan", Name="Wohnung.plan", Source="stage/samples/planhost/wohnung.plan", KeyPath="yes")

    def menu(self):
        start = add(self.target, "Directory", Id="ProgramMenuFolder")
        folder = add(start, "Directory", Id=self.id("d", "menu"), Name=f"QSymbol ({self.kind})")
        component = self.component(folder, "menu")
        entry = add(component, "RegistryValue", Root="HKLM", Key="Software\\Tessera\\QSymbol", Name=f"Menu.{self.kind}", Type="integer",
                    Value=1, KeyPath="yes")
        assert entry is not None
        add(component, "Shortcut", Id="MenuEditor", Name="Editor", WorkingDirectory="INSTALLDIR",
            Target=f"[#{self.id('f', 'programs/planhost.exe')}]",
            Arguments='edit "[CATALOGUEDIR]." "[#SamplePlan]"')
        add(component, "Shortcut", Id="MenuDocumentation", Name="Dokumentation", WorkingDirectory="INSTALLDIR",
            Target=f"[#{self.id('f', 'documentation/index.html')}]")
        add(component, "RemoveFolder", Id="RemoveMenu", On="uninstall")

    def value(self, component, key, value, name=None, first=False):
        add(component, "RegistryValue", Root="HKLM", Key=f"Software\\Classes\\{key}", Type="string", Value=value,
            **({"Name": name} if name else {}), **({"KeyPath": "yes"} if first else {}))

    def registration(self, folder):
        versions = {"QMATH_VERSION": "1.0", "QPLAN_VERSION": "1.0",
                    "QSYMBOL_VERSION": ".".join(release.VERSION.split(".")[:2])}
        for library in idl.libraries(release.ROOT):
            guid = lambda text: "{" + text.upper() + "}"  # noqa: E731
            dll = f"[#{self.id('f', f'programs/{library.name}.dll')}]"
            version = versions[library.version_macro]
            own = self.component(folder, f"{library.name}-classes")
            common = self.component(folder, f"{library.name}-common", shared=True)
            for name, (clsid, _, creatable) in library.classes.items():
                if not creatable:
                    continue
                key = f"CLSID\\{guid(clsid)}"
                self.value(own, key, f"{library.name}.{name}")
                self.value(own, f"{key}\\InprocServer32", dll)
                self.value(own, f"{key}\\InprocServer32", "Apartment", "ThreadingModel")
                self.value(own, f"{key}\\ProgID", f"{library.name}.{name}")
                self.value(own, f"{key}\\TypeLib", guid(library.guid))
                self.value(own, f"{key}\\Version", version)
                self.value(own, f"{key}\\Programmable", "")
                self.value(common, f"{library.name}.{name}", f"{library.name}.{name}")
                self.value(common, f"{library.name}.{name}\\CLSID", guid(clsid))
            key = f"TypeLib\\{guid(library.guid)}\\{version}"
            self.value(common, key, library.help)
            self.value(common, f"{key}\\FLAGS", "8")  # as the system counts those that are files
            self.value(common, f"{key}\\HELPDIR", "[INSTALLDIR]")
            for locale in ("0", "409"):
                self.value(own, f"{key}\\{locale}\\{'win64' if self.wide else 'win32'}", dll)
            # A 64-bit machine serves callers of both bitnesses.
            views = [own, self.component(folder, f"{library.name}-interfaces", wide=False, shared=True)] if self.wide else [
                self.component(folder, f"{library.name}-interfaces", shared=True)]
            for name, (iid, _) in library.interfaces.items():
                for component in views:
                    key = f"Interface\\{guid(iid)}"
                    self.value(component, key, name)
                    self.value(component, f"{key}\\ProxyStubClsid32", MARSHALLER)
                    self.value(component, f"{key}\\TypeLib", guid(library.guid))
                    self.value(component, f"{key}\\TypeLib", version, "Version")
            for component in {id(one): one for one in (own, common, *views)}.values():
                component[0].set("KeyPath", "yes")


def build(staged, kind, target):
    installer = Installer(staged, kind)
    xml.indent(installer.root)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        xml.ElementTree(installer.root).write(folder / "qsymbol.wxs", encoding="utf-8", xml_declaration=True)

        def tool(*command):
            return subprocess.run(["faketime", "-f", release.STAMP, *command], check=True, cwd=folder, stdout=subprocess.PIPE,
                                  env=os.environ | {"TZ": "UTC"}).stdout

        (folder / "stage").symlink_to(staged)
        tool("wixl", "-a", kind, "-o", "made.msi", "qsymbol.wxs")
        # wixl draws the package code by lot and leaves some rows in any order: the tables are put together once more, sorted.
        # They are in UTF-8, for names of symbols have umlauts, and have to say so.
        arguments = []
        for table in sorted(tool("msiinfo", "tables", "made.msi").decode().split()):
            lines = tool("msiinfo", "export", "made.msi", table).split(b"\r\n")
            if table == "_SummaryInformation":
                code = "{" + release.guid("package", kind, release.TEXT, str(release.EPOCH)) + "}"
                lines = [f"9\t{code}".encode() if line.startswith(b"9\t") else line for line in lines]
            # After the search for the shared documents, whose answer it looks at; wixl puts it anywhere.
            lines = [re.sub(rb"^(UsualDocuments\t.*\t)\d+$", rb"\g<1>701", line) if table.endswith("Sequence") else line for line in lines]
            rows = sorted(filter(None, lines[3:])) if table != "_ForceCodepage" else []
            head = lines[:3] if table != "_ForceCodepage" else [b"", b"", b"65001\t_ForceCodepage"]
            (folder / f"{table}.idt").write_bytes(b"\r\n".join([*head, *rows, b""]))
            arguments += ["-i", f"{table}.idt"]
        (folder / "qsymbol.cab").write_bytes(tool("msiinfo", "extract", "made.msi", "qsymbol.cab"))
        tool("msibuild", "q.msi", *arguments)
        tool("msibuild", "q.msi", "-a", "qsymbol.cab", "qsymbol.cab")
        shutil.copyfile(folder / "q.msi", target)


if __name__ == "__main__":
    build(pathlib.Path(sys.argv[1]).resolve(), sys.argv[2], pathlib.Path(sys.argv[3]).resolve())
