#include "qsymbol/draw/surface_pen.h"

#include "support/error_number_of.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

namespace {

using support::Calls;

TEST(SurfacePen, PutsAValueOnlyWhenItDiffersFromTheLast) {
    support::RecordingSurface surface;
    qsymbol::SurfacePen pen(surface);
    pen.ForeColor(0);
    pen.ForeColor(0);
    pen.FillColor(0);
    pen.ForeColor(5);
    pen.ForeColor(0);
    pen.DrawWidth(1);
    pen.DrawStyle(0);
    pen.FillStyle(1);
    pen.DrawWidth(1);
    pen.DrawStyle(5);
    pen.FillStyle(1);
    EXPECT_EQ(surface.calls, (Calls{"ForeColor=0", "FillColor=0", "ForeColor=5", "ForeColor=0", "DrawWidth=1",
                                    "DrawStyle=0", "FillStyle=1", "DrawStyle=5"}));
}

TEST(SurfacePen, APutThatFailedIsMadeAgain) {
    support::RecordingSurface surface;
    qsymbol::SurfacePen pen(surface);
    surface.failing = "DrawWidth";
    EXPECT_EQ(support::ErrorNumberOf([&] { pen.DrawWidth(3); }), 438);
    surface.failing.clear();
    pen.DrawWidth(3);
    EXPECT_EQ(surface.calls, Calls{"DrawWidth=3"});
}

} // namespace
