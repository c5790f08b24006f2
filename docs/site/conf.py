# The documentation as a site: scripts/docs builds it from the Markdown files where they lie, for they are read on their
# own as well. Nothing of it needs a network, the search included.

import pathlib
import re

from pygments.lexers.dotnet import VbNetLexer
from sphinx.highlighting import lexers

ROOT = pathlib.Path(__file__).parents[2]

project = "QSymbol"
version = release = re.search(r"project\(QSymbol VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text()).group(1)
language = "en"

extensions = ["myst_parser"]
root_doc = "docs/README"
# The order is that of the contents, beside the start page.
CONTENTS = {
    "Start": ["README", "docs/installation", "docs/troubleshooting", "docs/cookbook", "samples/clients/README"],
    "Reference": ["docs/classes/README", "docs/automation", "docs/file-formats", "docs/plan-files", "docs/import-format", "docs/dxf"],
    "Tools": ["docs/editor", "samples/README", "docs/command-line", "docs/pictures"],
    "Inside": ["docs/architecture", "src/README", "CONTRIBUTING", "CHANGELOG"],
}
# A new page stands there as soon as it is written.
known = {root_doc, *sum(CONTENTS.values(), [])}
CONTENTS["Tools"] += sorted({f"docs/{page.stem}" for page in ROOT.glob("docs/*.md")} - known)
CLASSES = sorted(f"docs/classes/{page.stem}" for page in ROOT.glob("docs/classes/*.md") if page.stem != "README")
include_patterns = [f"{page}.md" for page in [root_doc, *sum(CONTENTS.values(), []), *CLASSES]]
# Never walked through: there are links to whole disks in it.
exclude_patterns = ["build", "dist", ".git", ".ci", "tests", "bench"]

myst_heading_anchors = 4
# Fragments with an ellipsis in them stand without colours.
suppress_warnings = ["misc.highlighting_failure"]
# A host's Basic, which knows more than VBScript.
lexers["vba"] = VbNetLexer()

html_theme = "furo"
html_title = f"QSymbol {version}"
html_static_path = ["static"]
html_css_files = ["site.css"]
html_copy_source = False
html_show_sourcelink = False
html_last_updated_fmt = None
html_show_copyright = False


def toctree(pages, caption=""):
    return "\n\n```{toctree}\n:hidden:\n" + caption + "\n\n" + "\n".join(f"/{page}" for page in pages) + "\n```\n"


def add_contents(app, page, source):
    """The contents are for the site alone: a page read on its own has its links."""
    if page == root_doc:
        source[0] += "".join(toctree(pages, f":caption: {name}") for name, pages in CONTENTS.items())
    elif page == "docs/classes/README":
        source[0] += toctree(CLASSES)


def setup(app):
    app.connect("source-read", add_contents)
