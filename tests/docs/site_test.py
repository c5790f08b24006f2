"""site_test.py: the documentation as a site. scripts/docs builds it and follows its links; links that lead nowhere are found;
its search works from the files alone."""

import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
SITE = ROOT / "build/docs/html"
GOOD = {"index.html": '<a href="a/one.html#here">1</a><img src="a/p.png">', "a/one.html": '<p id="here"></p><a href="../index.html">0</a>',
        "a/p.png": ""}
# name: (file, its text, what must be said)
BROKEN = {
    "no page": ("a/one.html", '<p id="here"></p><a href="two.html">', "a/one.html: no file two.html"),
    "no picture": ("a/one.html", '<p id="here"></p><img src="q.png">', "a/one.html: no file q.png"),
    "no place": ("a/one.html", '<p id="there"></p>', "index.html: no place a/one.html#here"),
    "lonely page": ("b.html", "", "b.html: nothing leads there"),
    "network": ("a/one.html", '<p id="here"></p><script src="https://example.org/x.js">', "a/one.html: fetches https://example.org/x.js"),
}


def links(files):
    with tempfile.TemporaryDirectory() as folder:
        for name, text in files.items():
            path = pathlib.Path(folder) / name
            path.parent.mkdir(exist_ok=True)
            path.write_text(text)
        run = subprocess.run([sys.executable, ROOT / "docs/site/links.py", folder], capture_output=True, text=True)
        return run.returncode, run.stdout.strip()


def built():
    run = subprocess.run([ROOT / "scripts/docs"], capture_output=True, text=True)
    return run.returncode == 0 or run.stdout + run.stderr


def pictured():
    """Each class has a page with a picture; those made by the script of the pictures are small, and none is left over."""
    faults, drawn = [], set(re.findall(r'Save "(\w+)"', (ROOT / "docs/images/classes.vbs").read_text()))
    for page in ROOT.glob("docs/classes/C*.md"):
        shown = [page.parent / name for name in re.findall(r"!\[[^\]]+\]\(([^)]+\.(?:png|svg))\)", page.read_text("utf-8"))]
        if not shown or not all(path.is_file() for path in shown):
            faults.append(f"{page.name} shows nothing")
    kept = {path.stem: path.stat().st_size for path in ROOT.glob("docs/images/classes/*.png")}
    faults += [f"{name}.png: made or kept, not both" for name in drawn ^ kept.keys()]
    faults += [f"{name}.png: {size} bytes" for name, size in kept.items() if not 500 < size < 30000]
    return not faults or faults


def searched():
    page = f"file://{SITE}/search.html?q=Etagenbreite"
    with tempfile.TemporaryDirectory() as profile:
        run = subprocess.run(["chromium", "--headless", "--no-sandbox", "--disable-gpu", f"--user-data-dir={profile}",
                              "--virtual-time-budget=20000", "--dump-dom", page], capture_output=True, text=True, timeout=120)
    found = re.findall(r'href="([^"]*CSymbol\.html[^"]*)"', run.stdout.split('id="search-results"')[-1])
    return bool(found) or run.stdout[-1000:]


CASES = {"builds, and all links lead somewhere": built, "search without a server": searched,
         "a picture a class": pictured,
         "good links": lambda: links(GOOD) == (0, "links: all lead somewhere")}
for name, (file, text, wanted) in BROKEN.items():
    CASES[name] = lambda files=GOOD | {file: text}, wanted=wanted: links(files) == (1, wanted) or links(files)

failed = 0
for name, case in CASES.items():
    result = case()
    if result is not True:
        failed += 1
        print(f"FAILED {name}: {result}")
print(f"{len(CASES) - failed} passed, {failed} failed, 0 skipped")
