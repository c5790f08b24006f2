#include "qsymbol/draw/symbol_drawing.h"

#include "support/elements.h"
#include "support/error_number_of.h"
#include "support/recording_surface.h"
#include "support/scaled_transformation.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

/// What no client can bring about is not among the golden cases.
TEST(SymbolDrawing, AnAngleThatIsNoNumberIsError6) {
    support::RecordingSurface surface;
    qsymbol::Symbol symbol;
    symbol.elements = {support::Text({0, 0}, u"a")};
    for (const double angle : {std::numeric_limits<double>::infinity(), 1e9})
        EXPECT_EQ(support::ErrorNumberOf([&] {
                      qsymbol::DrawSymbol(symbol, {.at = {}, .angle = angle}, surface,
                                          support::ScaledTransformation(10), qsymbol::kUnscaled);
                  }),
                  6);
}

TEST(SymbolDrawing, ASizeInHundredthsIsRoundedOnceAtTheEnd) {
    support::RecordingSurface surface;
    surface.name = u"GraphicBox";
    qsymbol::Symbol symbol;
    symbol.elements = {support::Text({0, 0}, u"a")};
    symbol.elements[0].lineClosed = true;
    symbol.elements[0].font->size = 1200;
    qsymbol::DrawSymbol(symbol, {}, surface, support::ScaledTransformation(10), {.printer = 1, .screen = 2});
    // 42.33 pixels, doubled.
    EXPECT_EQ(std::count(surface.calls.begin(), surface.calls.end(), "Font 85 0 ---- Arial"), 1);
}

} // namespace
