"""stage.py FOLDER KIND…: lays out what the Windows packages contain, from dist/, build/docs/html and the sources.

KIND is x64 or x86; with both it is the zip's layout. Only what git knows of the sources goes in."""

import os
import pathlib
import shutil
import subprocess
import sys

import interop
import release

LIBRARIES = ("QMath", "QSymbol", "QPlan")
README = """QSymbol {text}

planhost.cmd            opens the sample plan in the editor, without any installation
documentation\\index.html    everything else: start here

x64, x86                libraries, type libraries and manifests; planhost.exe, qsymbol.exe (the command line)
include                 headers for C and C++, QSymbol.Interop.cs for C#
katalog                 the sample catalogue: syb for hosts, syt as text
samples                 a small host in every language, the sources of planhost and of the samples beside it

Scripts and Office need the libraries registered, in their own bitness, as an administrator:
    cd x64
    regsvr32 QMath.dll
    regsvr32 QSymbol.dll
    regsvr32 QPlan.dll
"""
# Seen by 32-bit and by 64-bit Windows alike.
START = """@echo off
set KIND=x64
if "%PROCESSOR_ARCHITECTURE%"=="x86" if not defined PROCESSOR_ARCHITEW6432 set KIND=x86
if not exist "%~dp0%KIND%\\QSymbol.dll" echo Unzip the whole package first: %KIND%\\QSymbol.dll is not there.& pause & exit /b 1
if not exist "%~dp0katalog\\syb" echo Unzip the whole package first: katalog\\syb is not there.& pause & exit /b 1
start "" "%~dp0%KIND%\\planhost.exe" edit "%~dp0katalog\\syb" "%~dp0samples\\planhost\\wohnung.plan"
"""


def sources(*folders):
    listed = subprocess.run(["git", "-C", release.ROOT, "ls-files", "-z", *folders], capture_output=True, text=True, check=True)
    return [name for name in listed.stdout.split("\0") if name]


def text_file(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(text.replace("\n", "\r\n").encode("utf-8"))


def programs(target, kind):
    built = release.ROOT / "dist" / kind
    names = [f"{library}.{ending}" for library in LIBRARIES for ending in ("dll", "tlb")]
    names += ["QSymbol.X.manifest", "QPlan.X.manifest", "planhost.exe", "qsymbol.exe"]
    (target / kind).mkdir(parents=True)
    for name in names:
        shutil.copy(built / name, target / kind / name)


def catalogue(target):
    for name in sources("samples/katalog"):
        path = target / "katalog/syt" / pathlib.Path(name).relative_to("samples/katalog")
        path.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(release.ROOT / name, path)
    subprocess.run([release.ROOT / "dist/linux/qsymbol", "convert", "-q", "-r", "--decimal", "comma", "--to", "syb",
                    target / "katalog/syt", target / "katalog/syb"], check=True)


def lay_out(target, kinds):
    shutil.rmtree(target, ignore_errors=True)
    target.mkdir(parents=True)
    for kind in kinds:
        programs(target, kind)
    (target / "include").mkdir()
    for library in LIBRARIES:
        shutil.copy(release.ROOT / f"dist/include/{library}.h", target / "include")
    text_file(target / "include/QSymbol.Interop.cs", interop.text(release.ROOT))
    catalogue(target)
    for name in sources("samples/clients", "samples/planhost", "samples/scripts", "samples/symbols", "samples/wsc", "samples/README.md"):
        path = target / name
        path.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(release.ROOT / name, path)
    shutil.copytree(release.ROOT / "build/docs/html", target / "documentation")
    shutil.copy(release.ROOT / "CHANGELOG.md", target)
    text_file(target / "README.txt", README.format(text=release.TEXT))
    text_file(target / "planhost.cmd", START)
    for path in [target, *target.rglob("*")]:
        os.utime(path, (release.EPOCH, release.EPOCH))


if __name__ == "__main__":
    lay_out(pathlib.Path(sys.argv[1]), sys.argv[2:])
