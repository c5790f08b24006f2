"""render.py PLAN.dxf PICTURE.png [WIDTH]: what ezdxf's drawing add-on makes of a DXF file, light lines on dark."""

import sys

import ezdxf
import matplotlib

matplotlib.use("Agg")
from ezdxf.addons.drawing import Frontend, RenderContext
from ezdxf.addons.drawing.matplotlib import MatplotlibBackend
from matplotlib import pyplot


def main(source, picture, width=2000):
    document = ezdxf.readfile(source)
    auditor = document.audit()
    if auditor.errors:
        sys.exit(f"{len(auditor.errors)} errors: {auditor.errors}")
    figure = pyplot.figure()
    axes = figure.add_axes([0, 0, 1, 1])
    backend = MatplotlibBackend(axes, adjust_figure=False)
    Frontend(RenderContext(document), backend).draw_layout(document.modelspace())
    low, high = document.header["$EXTMIN"], document.header["$EXTMAX"]
    axes.set_xlim(low[0], high[0])
    axes.set_ylim(low[1], high[1])
    axes.set_aspect("equal")
    height = int(width) * (high[1] - low[1]) / (high[0] - low[0])
    figure.set_size_inches(int(width) / 100, height / 100)
    figure.savefig(picture, dpi=100)


if __name__ == "__main__":
    main(*sys.argv[1:])
