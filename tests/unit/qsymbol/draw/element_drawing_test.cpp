#include "qsymbol/draw/element_drawing.h"

#include "support/elements.h"
#include "support/error_number_of.h"
#include "support/recording_surface.h"
#include "support/scaled_transformation.h"

#include <gtest/gtest.h>

namespace {

using qsymbol::ElementRecord;
using support::Text;

TEST(ElementDrawing, AFontSizeBeyond16BitsIsError6) {
    ElementRecord text = Text({0, 0}, u"a");
    support::RecordingSurface surface;
    const auto draw = [&] { qsymbol::DrawElement(text, surface, support::ScaledTransformation(1)); };
    text.font->size = 32767;
    EXPECT_EQ(support::ErrorNumberOf(draw), 0);
    text.font->size = 32768;
    EXPECT_EQ(support::ErrorNumberOf(draw), 6);
}

TEST(ElementDrawing, AFailedTextReleasesItsFont) {
    support::RecordingSurface surface;
    surface.failing = "Text (";
    EXPECT_EQ(support::ErrorNumberOf([&] {
                  qsymbol::DrawElement(Text({0, 0}, u"a"), surface, support::ScaledTransformation(1));
              }),
              438);
    EXPECT_EQ(surface.calls.back(), "ReleaseFont");
}

} // namespace
