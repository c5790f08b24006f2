"""clr_test.py CLR: the clients in C# on a CLR for Windows, started by scripts/clients in a prefix in which the libraries are
registered. Early bound, late bound; then, with nothing registered, by the manifest alone; then what they say when the
libraries or the catalogue are missing."""

import pathlib
import shutil
import sys

import clients_test
from clients_test import BUILT, CLIENTS, DRIVE, WORK, client_faults, compiled, faults_of, first_failure, windows, wine

WANTED = {"buero": ((800, 500), 3, ["hit: Schreibtisch", "error 5 in QPlan: Ung"]),
          "terrasse": ((800, 600), 3, ["hit: Sonnenschirm", "error 5 in QPlan: Ung"])}
# The files beside a program that runs without registration.
BESIDE = ["QMath.dll", "QSymbol.dll", "QPlan.dll", "QSymbol.X.manifest", "QPlan.X.manifest"]


def programs(clr):
    """The clients as CLR programs, and a starter that the system's loader gives the manifest to."""
    clients_test.csharp_faults()
    version = next(clr.glob("shared/Microsoft.NETCore.App/*")).name
    settings = '{"runtimeOptions": {"framework": {"name": "Microsoft.NETCore.App", "version": "%s"}}}' % version
    folder = DRIVE / "Buero"
    folder.mkdir()
    for name in ("Buero", "Spaet"):
        shutil.copy(WORK / f"{name}.exe", folder / f"{name}.dll")
        (folder / f"{name}.runtimeconfig.json").write_text(settings)
    compiled("x86_64-w64-mingw32-gcc-posix", "-Wall", "-Wextra", "-Werror", "-municode", "-static",
             pathlib.Path(__file__).with_name("clr_host.c"), "-o", folder / "Buero.exe")
    shutil.copytree(folder, DRIVE / "Beside")
    for name in BESIDE:
        shutil.copy(BUILT / "bin" / name, DRIVE / "Beside")
    shutil.copy(CLIENTS / "csharp/Buero.manifest", DRIVE / "Beside/Buero.exe.manifest")
    hostfxr = windows(next(clr.glob("host/fxr/*/hostfxr.dll")))
    return lambda at, name, catalogue: [f"C:\\{at}\\Buero.exe", hostfxr, windows(clr / "dotnet.exe"), f"C:\\{at}\\{name}.dll", catalogue,
                                        "C:\\Plan"]


def main(clr):
    clients_test.lay_out()
    start = programs(clr)
    early = lambda: client_faults("buero", start("Buero", "Buero", "C:\\Katalog"), WANTED["buero"])  # noqa: E731
    results = {"early bound": faults_of(early)}
    results["late bound"] = faults_of(lambda: client_faults("terrasse", start("Buero", "Spaet", "C:\\Katalog"), WANTED["terrasse"]))
    for name in ("Buero", "Spaet"):
        results[f"{name} without a catalogue"] = faults_of(lambda: first_failure(start("Buero", name, "C:\\Leer"), "qsymbol convert"))
    clients_test.unregister()
    for name in ("Buero", "Spaet"):
        results[f"{name} without registration"] = faults_of(lambda: first_failure(start("Buero", name, "C:\\Katalog"), "regsvr32 QMath"))
    clients_test.register_other_bitness()
    for name in ("Buero", "Spaet"):
        results[f"{name}, registered for the other bitness"] = faults_of(
            lambda: first_failure(start("Buero", name, "C:\\Katalog"), "64 bits: regsvr32 QMath"))
    for path in (DRIVE / "Plan").glob("buero.*"):
        path.unlink()
    results["by manifest"] = faults_of(lambda: client_faults("buero", start("Beside", "Buero", "C:\\Katalog"), WANTED["buero"]))
    return clients_test.report(results)


if __name__ == "__main__":
    sys.exit(bool(main(pathlib.Path(sys.argv[1]).resolve())))
