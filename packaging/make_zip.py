"""make_zip.py FOLDER FILE.zip: the folder's files in the order of their names, under the package's own, all of one time."""

import pathlib
import sys
import time
import zipfile

import release


def pack(folder, target):
    top = target.stem
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as package:
        for path in sorted(folder.rglob("*")):
            if not path.is_file():
                continue
            entry = zipfile.ZipInfo(f"{top}/{path.relative_to(folder).as_posix()}", time.gmtime(release.EPOCH)[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 0  # as made on Windows: no rights to carry
            package.writestr(entry, path.read_bytes(), compresslevel=9)


if __name__ == "__main__":
    pack(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]))
