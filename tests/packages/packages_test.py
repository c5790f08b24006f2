"""packages_test.py: the packages in dist/packages as a user has them, each in a place of its own.

The zip, unpacked, without any registration. The installers: what they leave in registry and files, a script host with what
they installed, the next build over it, and nothing left after uninstalling. The Debian package in a clean root made by
debootstrap. SHA256SUMS; and that making them again gives the same bytes."""

import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "packaging"))
import release  # noqa: E402

PACKAGES, WORK = ROOT / "dist/packages", ROOT / "build/packages"
NAME = f"QSymbol-{release.VERSION}"


class Prefix:
    """A fresh Windows: a copy of the ready prefix, where nothing of ours was ever registered."""

    def __init__(self, name):
        self.folder, self.drive = ROOT / f"build/wine/{name}", ROOT / f"build/wine/{name}/drive_c"
        self.shell(f"own_home; wine_prefix; copy_prefix build/wine/prefix {self.folder}")
        self.environment = os.environ | {"WINEPREFIX": str(self.folder), "WINEDEBUG": "-all", "WINEARCH": "win64",
                                         "HOME": str(ROOT / "build/home"), "WINEDLLOVERRIDES": "winemenubuilder.exe="}

    @staticmethod
    def shell(text):
        subprocess.run(["bash", "-c", f". scripts/common.sh; {text}"], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)

    def run(self, *command, folder=None):
        ran = subprocess.run(["wine", *map(str, command)], capture_output=True, env=self.environment, timeout=280, cwd=folder)
        return ran.returncode, (ran.stdout + ran.stderr).decode("cp850", "replace").replace("\r", "")

    def need(self, *command, folder=None):
        status, said = self.run(*command, folder=folder)
        assert status == 0, f"{command}: {status}: {said}"
        return said

    def registry(self):
        """Every value as key, name, content; without what an installation makes the system itself note down."""
        self.need("reg", "export", "HKLM\\Software", "C:\\software.reg", "/y")
        text = (self.drive / "software.reg").read_text("utf-16").replace("\\\n  ", "")
        found, key = set(), ""
        for line in text.splitlines():
            if line.startswith("["):
                key = line.strip("[]")
            elif "=" in line and not re.search(r"\\Installer\\?|\\Uninstall\\|\\SharedDLLs|CurrentVersion\\(Run|Time)", key + "\\"):
                found.add((key.lower(), line))
        return found

    def files(self):
        system = self.drive / "windows"
        return {str(path.relative_to(self.drive)) for path in self.drive.rglob("*") if not path.is_relative_to(system)} | {
            str(path.relative_to(self.drive)) for path in (system / "Installer").glob("*")}

    def stop(self):
        subprocess.run(["wineserver", "-k"], env=self.environment)


def checksums():
    for line in (PACKAGES / "SHA256SUMS").read_text().splitlines():
        digest, name = line.split("  ")
        assert hashlib.sha256((PACKAGES / name).read_bytes()).hexdigest() == digest, name
    named = {line.split("  ")[1] for line in (PACKAGES / "SHA256SUMS").read_text().splitlines()}
    assert named == {path.name for path in PACKAGES.iterdir()} - {"SHA256SUMS"}, named


def zip_unpacked():
    prefix = Prefix("package-zip")
    try:
        with zipfile.ZipFile(PACKAGES / f"{NAME}-windows.zip") as package:
            package.extractall(prefix.drive)
        folder = prefix.drive / f"{NAME}-windows"
        at = f"C:\\{folder.name}"
        said = prefix.need(f"{at}\\x64\\planhost.exe", "plan", f"{at}\\katalog\\syb", f"{at}\\samples\\planhost\\wohnung.plan", "C:\\w.png")
        assert "Symbole in" in said and (prefix.drive / "w.png").stat().st_size > 20000, said
        assert "95" in prefix.need(f"{at}\\x64\\qsymbol.exe", "info", "-r", f"{at}\\katalog\\syt"), "the command line"
        status, said = prefix.run("cscript", "//nologo", f"{at}\\samples\\clients\\vbscript\\wohnzimmer.vbs", f"{at}\\katalog\\syb", "C:\\")
        assert status == 1 and "regsvr32" in said, f"a script without registration: {said}"
        # Alone, the sample host says what it misses.
        shutil.copytree(folder / "x64", prefix.drive / "alone")
        (prefix.drive / "alone/QSymbol.dll").unlink()
        status, said = prefix.run("C:\\alone\\planhost.exe", "sheet", f"{at}\\katalog\\syb", "C:\\s.png")
        assert status == 1 and "in den Ordner dieses Programms" in said, f"without QSymbol.dll: {status} {said}"
        for name in ("documentation/docs/README.html", "documentation/index.html", "include/QPlan.h", "include/QSymbol.Interop.cs",
                     "x86/QPlan.dll", "x86/QSymbol.X.manifest", "x64/QPlan.tlb", "CHANGELOG.md", "README.txt", "planhost.cmd"):
            assert (folder / name).is_file(), name
    finally:
        prefix.stop()


def next_build(kind):
    """The same installer as the next build makes it."""
    target = WORK / f"next-{kind}.msi"
    subprocess.run([sys.executable, "packaging/make_msi.py", WORK / "windows", kind, target], check=True, cwd=ROOT,
                   env=os.environ | {"QSYMBOL_BUILD_NUMBER": str(release.BUILD + 1)})
    return target


def installed(prefix, names=("QMath", "QSymbol", "QPlan")):
    """What regsvr32 writes for the same DLLs, by the same paths."""
    for name in names:
        prefix.need("regsvr32", "/s", f"C:\\Program Files\\QSymbol\\{name}.dll")


def installer():
    prefix, other = Prefix("package-msi"), Prefix("package-regsvr32")
    try:
        # The script host enters types of its own when it first runs.
        for one in (prefix, other):
            (one.drive / "warm.vbs").write_text("WScript.Echo WScript.Arguments.Count")
            one.need("cscript", "//nologo", "C:\\warm.vbs", "x")
        registry, files = prefix.registry(), prefix.files()
        shutil.copy(PACKAGES / f"{NAME}-x64.msi", prefix.drive / "q.msi")
        shutil.copy(next_build("x64"), prefix.drive / "next.msi")
        prefix.need("msiexec", "/i", "C:\\q.msi", "/qn")
        added = prefix.registry() - registry

        other_before = other.registry()
        shutil.copytree(prefix.drive / "Program Files/QSymbol", other.drive / "Program Files/QSymbol")
        installed(other)
        wanted = other.registry() - other_before
        assert len(wanted) > 200, len(wanted)
        missing = {entry for entry in wanted - added}
        assert not missing, f"regsvr32 writes, the installer does not: {sorted(missing)[:5]}"
        extra = {(key, line) for key, line in added - wanted if not (line == '@=""' and key.endswith("programmable")) and
                 "tessera" not in key}
        assert not extra, f"the installer writes, regsvr32 does not: {sorted(extra)[:5]}"

        menu = {path.name for path in prefix.drive.rglob("*.lnk") if "QSymbol" in str(path)}
        assert menu == {"Editor.lnk", "Dokumentation.lnk"}, menu
        catalogue = prefix.drive / "users/Public/Documents/QSymbol/Katalog"
        assert len(list(catalogue.rglob("*.syb"))) == 95, "catalogue"
        script = "C:\\Program Files\\QSymbol\\samples\\clients\\vbscript\\wohnzimmer.vbs"

        def scripted():
            said = prefix.need("cscript", "//nologo", script, "C:\\users\\Public\\Documents\\QSymbol\\Katalog", "C:\\users\\Public")
            assert "Dort liegt: Sofa" in said, said
            for ending in ("png", "dxf"):
                (prefix.drive / f"users/Public/wohnzimmer.{ending}").unlink()

        scripted()
        prefix.need("msiexec", "/i", "C:\\next.msi", "/qn")
        entries = prefix.need("reg", "query", "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall", "/s")
        versions = re.findall(r"DisplayName +REG_SZ +QSymbol|DisplayVersion +REG_SZ +(4\.\S+)", entries)
        assert entries.count("REG_SZ    QSymbol\n") == 1 and release.MSI_VERSION not in versions, f"the old build stays: {versions}"
        scripted()
        prefix.need("msiexec", "/x", "C:\\next.msi", "/qn")
        assert not prefix.registry() - registry, f"left in the registry: {sorted(prefix.registry() - registry)[:5]}"
        left = prefix.files() - files - {"q.msi", "next.msi", "software.reg"}
        assert not left, f"left in files: {sorted(left)[:5]}"
    finally:
        prefix.stop()
        other.stop()


def x86_installer():
    """Its tables: 32-bit folders, components and paths, the same classes. Installing it needs a 32-bit Windows."""
    def table(kind, name):
        ran = subprocess.run(["msiinfo", "export", PACKAGES / f"{NAME}-{kind}.msi", name], capture_output=True, text=True, check=True)
        return ran.stdout.replace("\r", "")
    assert "ProgramFilesFolder" in table("x86", "Directory") and "ProgramFiles64Folder" not in table("x86", "Directory")
    keys = {kind: {line.split("\t")[2] for line in table(kind, "Registry").splitlines()[3:]} for kind in ("x64", "x86")}
    assert {key.replace("win64", "win32") for key in keys["x64"]} == keys["x86"], keys["x64"] ^ keys["x86"]


def debian():
    package = next(PACKAGES.glob("*.deb"))
    root = WORK / "debian-root"
    if not (root / "usr/bin/dpkg").exists():
        shutil.rmtree(root, ignore_errors=True)
        listed = subprocess.run(["apt-get", "indextargets", "--format", "$(REPO_URI) $(RELEASE) $(COMPONENT)", "Created-By: Packages",
                                 "Origin: Debian"], capture_output=True, text=True, check=True).stdout.split("\n")
        mirror = next(line.split()[0] for line in sorted(listed) if " bookworm main" in line or " stable main" in line)
        subprocess.run(["debootstrap", "--variant=minbase", "bookworm", root, mirror], check=True, stdout=subprocess.DEVNULL)
    shutil.copy(package, root / "qsymbol.deb")

    def inside(command):
        ran = subprocess.run(["chroot", root, "sh", "-ec", command], capture_output=True, text=True,
                             env={"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL": "C.UTF-8"})
        assert ran.returncode == 0, ran.stdout + ran.stderr
        return ran.stdout
    before = inside("find / -xdev -path /proc -prune -o -path /var -prune -o -print | sort")
    inside("dpkg -i /qsymbol.deb")
    assert inside("qsymbol --version").strip().endswith(release.VERSION), inside("qsymbol --version")
    inside("mkdir -p /tmp/k && qsymbol convert -q -r --decimal comma --to syb /usr/share/qsymbol/katalog /tmp/k && qsymbol check -r /tmp/k")
    inside("test $(find /tmp/k -name '*.syb' | wc -l) = 95 && rm -r /tmp/k")
    inside("test -s /usr/share/man/man1/qsymbol.1.gz || dpkg -L qsymbol | grep -q man1/qsymbol.1.gz")
    inside("dpkg -r qsymbol")
    after = inside("find / -xdev -path /proc -prune -o -path /var -prune -o -print | sort")
    assert after == before, set(after.split("\n")) ^ set(before.split("\n"))


def made_again():
    """From another folder, at another time."""
    again = WORK / "again"
    shutil.rmtree(again, ignore_errors=True)
    again.mkdir(parents=True)
    subprocess.run([sys.executable, "packaging/stage.py", again / "stage", "x64", "x86"], check=True, cwd=ROOT)
    subprocess.run([sys.executable, "packaging/make_zip.py", again / "stage", again / f"{NAME}-windows.zip"], check=True, cwd=ROOT)
    for kind in ("x64", "x86"):
        subprocess.run([sys.executable, "packaging/make_msi.py", again / "stage", kind, again / f"{NAME}-{kind}.msi"], check=True, cwd=ROOT)
    subprocess.run(["cpack", "-B", again / "debian"], check=True, cwd=ROOT / "build/linux", stdout=subprocess.DEVNULL)
    for path in [*again.glob("QSymbol*"), *again.glob("debian/*.deb")]:
        assert path.read_bytes() == (PACKAGES / path.name).read_bytes(), f"{path.name} differs"


CASES = {case.__name__.replace("_", "-"): case for case in (checksums, zip_unpacked, installer, x86_installer, debian, made_again)}
failed = 0
chosen = sys.argv[1:] or CASES
for name in chosen:
    try:
        CASES[name]()
        print(f"passed {name}", flush=True)
    except Exception as error:
        failed += 1
        print(f"FAILED {name}: {type(error).__name__}: {error}", flush=True)
print(f"{len(chosen) - failed} passed, {failed} failed, 0 skipped")
sys.exit(bool(failed))
