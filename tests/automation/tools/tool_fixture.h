#pragma once

#include "drawing/drawing_fixture.h"

#include <random>
#include <string>

namespace tools {

using support::Ref;

/// A symbol with every kind of element, lines of every width, fills, and texts of every sort.
Ref<_CSymbol> EverySort();
/// Lines and circles only.
Ref<_CSymbol> LinesOnly();

/// Two equal canvases with a box each: one for a tool, one for plain draws of symbols.
class ToolTest : public drawing::DrawingTest {
protected:
    static constexpr SHORT kInputKeys[] = {36, 35, 33, 34, 38, 40, 48};
    static constexpr SHORT kGroupKeys[] = {107, 109, 106, 111, 104, 103, 100, 97, 98, 99, 102, 105};

    /// A tool for the symbol, from a catalogue.
    static Ref<_CSymInput> InputFor(const Ref<_CSymbol>& symbol);

    /// Draws the symbol at a place on the second canvas, as a host does.
    void DrawPlainly(const Ref<_CSymbol>& symbol, LONG x, LONG y, double angle) const;

    bool BackgroundIsUntouched() const { return !support::IsDrawnOn(drawn); }

    LONG Random(LONG low, LONG high) { return std::uniform_int_distribution<LONG>(low, high)(random); }
    /// Also beyond the edges of the canvas.
    float RandomPixel() { return static_cast<float>(Random(-40, support::Canvas::kSize + 40)); }

    std::mt19937 random{20260713};
    Ref<_CTrans> trans = Trans();
    Ref<support::PictureBox> plainBox = support::PictureBox::Create(expected);
};

} // namespace tools
