"""What every package says of itself: version, build number, and the one time that all its files carry."""

import os
import pathlib
import re
import subprocess
import time
import uuid

ROOT = pathlib.Path(__file__).resolve().parents[1]


def git(*arguments):
    return subprocess.run(["git", "-C", ROOT, *arguments], capture_output=True, text=True, check=True).stdout.strip()


VERSION = re.search(r"project\(QSymbol VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text()).group(1)
BUILD = int(os.environ.get("QSYMBOL_BUILD_NUMBER") or git("rev-list", "--count", "HEAD"))
# Zip files know no time before 1980, and an even number of seconds only.
EPOCH = max(int(os.environ.get("SOURCE_DATE_EPOCH") or git("log", "-1", "--format=%ct")), 315532800) // 2 * 2
STAMP = time.strftime("%Y-%m-%d %H:%M:%S", time.gmtime(EPOCH))
# The installer compares three numbers; with the build as the third one, every build replaces the ones before.
MSI_VERSION = ".".join(VERSION.split(".")[:2] + [str(BUILD)])
TEXT = f"{VERSION}, build {BUILD}"

FAMILY = uuid.UUID("6f3d7a52-7a0b-4c55-9d3e-6f1a3c1c0d57")


def guid(*names):
    """The same id for the same thing in every build."""
    return str(uuid.uuid5(FAMILY, "/".join(names))).upper()

if __name__ == "__main__":
    print(f"QSymbol {TEXT}, commit {git('rev-parse', 'HEAD')}")
