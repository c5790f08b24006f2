#include "qsymbol/tools/saved_pen.h"

#include "qsymbol/draw/surface_constants.h"

namespace qsymbol {

SavedPen::SavedPen(Surface& surface)
    : surface_(surface), drawMode_(surface.DrawMode()), drawWidth_(surface.DrawWidth()),
      drawStyle_(surface.DrawStyle()), foreColor_(surface.ForeColor()), fillStyle_(surface.FillStyle()) {}

SavedPen::~SavedPen() {
    PutBack(&Surface::PutDrawMode, drawMode_);
    PutBack(&Surface::PutDrawWidth, drawWidth_);
    PutBack(&Surface::PutDrawStyle, drawStyle_);
    PutBack(&Surface::PutForeColor, foreColor_);
    PutBack(&Surface::PutFillStyle, fillStyle_);
}

void SavedPen::UseInvertingPen() {
    surface_.PutDrawMode(kDrawModeNotXor);
    surface_.PutDrawWidth(1);
    surface_.PutDrawStyle(kDrawStyleSolid);
    surface_.PutForeColor(kBlack);
    surface_.PutFillStyle(kFillStyleTransparent);
}

void SavedPen::UseCopyPen() {
    surface_.PutDrawMode(kDrawModeCopy);
}

void SavedPen::PutBack(void (Surface::*put)(std::int32_t), std::int32_t value) noexcept {
    try {
        (surface_.*put)(value);
    } catch (...) { // NOLINT(bugprone-empty-catch): a host that refuses its own value back keeps the new one
        return;
    }
}

} // namespace qsymbol
