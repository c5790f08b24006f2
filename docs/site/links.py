"""links.py FOLDER: follows every link inside a built site: the file must be there, and the place in it. Names those that lead
nowhere, pages that no other leads to, and anything that would be fetched from a network; the exit status is 1 then."""

import html.parser
import pathlib
import re
import sys
import urllib.parse


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.places, self.links, self.fetched = set(), [], []
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        self.places |= {given[key] for key in ("id", "name") if given.get(key)}
        for key in ("href", "src"):
            if given.get(key):
                self.links.append(given[key])
                if tag in ("script", "img", "iframe") or (tag == "link" and "stylesheet" in given.get("rel", "")):
                    self.fetched.append(given[key])
        if tag == "meta" and given.get("http-equiv") == "refresh":
            self.links.append(given["content"].split("url=")[1])


def faults(folder):
    pages = {path: Page(path) for path in sorted(folder.rglob("*.html"))}
    reached = {folder / "index.html"}
    for path, page in pages.items():
        name = path.relative_to(folder)
        for link in page.fetched:
            if re.match(r"(?:\w+:)?//", link):
                yield f"{name}: fetches {link}"
        for link in page.links:
            target = urllib.parse.urlparse(link)
            if target.scheme or target.netloc:
                continue
            file = (path.parent / urllib.parse.unquote(target.path)).resolve() if target.path else path
            place = urllib.parse.unquote(target.fragment)
            if not file.is_file():
                yield f"{name}: no file {link}"
            elif place and file in pages and place not in pages[file].places:
                yield f"{name}: no place {link}"
            if file != path:
                reached.add(file)
    for path in pages.keys() - reached:
        yield f"{path.relative_to(folder)}: nothing leads there"


if __name__ == "__main__":
    found = sorted(set(faults(pathlib.Path(sys.argv[1]).resolve())))
    print("\n".join(found) or "links: all lead somewhere")
    sys.exit(bool(found))
