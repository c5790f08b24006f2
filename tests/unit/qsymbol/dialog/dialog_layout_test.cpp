#include "qsymbol/dialog/dialog_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace {

using qmath::Rect;
using qsymbol::CentredOver;
using qsymbol::DialogMeasures;
using qsymbol::DialogPlaces;
using qsymbol::DialogSize;

constexpr DialogMeasures kUsual{.averageWidth = 6,
                                .lineHeight = 13,
                                .listLabel = 45,
                                .frame = 50,
                                .widthLabel = 32,
                                .heightLabel = 30,
                                .exportButton = 95,
                                .progressText = 80,
                                .ok = 18,
                                .cancel = 54};

DialogMeasures Scaled(int factor) {
    DialogMeasures scaled = kUsual;
    for (const auto member : {&DialogMeasures::averageWidth, &DialogMeasures::lineHeight,
                              &DialogMeasures::listLabel, &DialogMeasures::frame, &DialogMeasures::widthLabel,
                              &DialogMeasures::heightLabel, &DialogMeasures::exportButton,
                              &DialogMeasures::progressText, &DialogMeasures::ok, &DialogMeasures::cancel})
        scaled.*member *= factor;
    return scaled;
}

std::vector<std::pair<std::string, Rect>> Controls(const DialogPlaces& p) {
    return {{"list label", p.listLabel},
            {"list", p.list},
            {"preview", p.preview},
            {"width label", p.widthLabel},
            {"width", p.width},
            {"height label", p.heightLabel},
            {"height", p.height},
            {"export", p.exportButton},
            {"progress", p.progress},
            {"progress text", p.progressText},
            {"ok", p.ok},
            {"cancel", p.cancel}};
}

bool Overlap(const Rect& a, const Rect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool Inside(const Rect& inner, const Rect& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

void ExpectInOrder(const DialogMeasures& measures, DialogSize client) {
    const DialogPlaces places = PlaceControls(measures, client);
    const DialogSize minimum = MinimumSize(measures);
    const Rect whole{0, 0, std::max(client.width, minimum.width), std::max(client.height, minimum.height)};
    const auto controls = Controls(places);
    EXPECT_TRUE(Inside(places.frame, whole));
    EXPECT_TRUE(Inside(places.progressText, places.saved)) << "the line that stays has room of both";
    EXPECT_FALSE(Overlap(places.saved, places.exportButton) || Overlap(places.saved, places.ok));
    for (const auto& [name, rect] : controls) {
        EXPECT_LT(rect.left, rect.right) << name;
        EXPECT_LT(rect.top, rect.bottom) << name;
        EXPECT_TRUE(Inside(rect, whole)) << name;
        EXPECT_TRUE(Inside(rect, places.frame) || !Overlap(rect, places.frame)) << name;
        for (const auto& [other, otherRect] : controls) {
            EXPECT_TRUE(name == other || !Overlap(rect, otherRect)) << name << " and " << other;
        }
    }
    EXPECT_GE(places.exportButton.right - places.exportButton.left, measures.exportButton);
    EXPECT_GE(places.cancel.right - places.cancel.left, measures.cancel);
    EXPECT_GE(places.frame.right - places.frame.left, measures.frame);
}

TEST(DialogLayout, IsInOrderAtEverySize) {
    for (const int factor : {1, 2, 3})
        for (const int width : {0, 460, 700, 1501, 4000})
            for (const int height : {0, 231, 500, 999, 3000})
                ExpectInOrder(Scaled(factor), {width, height});
}

TEST(DialogLayout, IsInOrderWithLongCaptions) {
    for (const auto member : {&DialogMeasures::listLabel, &DialogMeasures::frame, &DialogMeasures::widthLabel,
                              &DialogMeasures::heightLabel, &DialogMeasures::exportButton,
                              &DialogMeasures::progressText, &DialogMeasures::ok, &DialogMeasures::cancel}) {
        DialogMeasures measures = kUsual;
        measures.*member = 640;
        ExpectInOrder(measures, {0, 0});
        ExpectInOrder(measures, OpeningSize(measures));
    }
}

TEST(DialogLayout, SmallerThanTheMinimumIsTheMinimum) {
    EXPECT_EQ(Controls(PlaceControls(kUsual, {10, 10})),
              Controls(PlaceControls(kUsual, MinimumSize(kUsual))));
}

TEST(DialogLayout, OpensNoSmallerThanTheMinimum) {
    DialogMeasures wide = kUsual;
    wide.exportButton = 2000;
    for (const DialogMeasures& measures : {kUsual, wide}) {
        EXPECT_GE(OpeningSize(measures).width, MinimumSize(measures).width);
        EXPECT_GE(OpeningSize(measures).height, MinimumSize(measures).height);
    }
}

TEST(DialogLayout, ListAndPreviewShareTheSpareSpace) {
    const DialogSize opening = OpeningSize(kUsual);
    const DialogPlaces before = PlaceControls(kUsual, opening);
    const DialogPlaces after = PlaceControls(kUsual, {opening.width + 300, opening.height + 100});
    EXPECT_EQ(after.list.right - before.list.right, 100);
    EXPECT_EQ(after.preview.left - before.preview.left, 100);
    EXPECT_EQ(after.preview.right - before.preview.right, 300);
    EXPECT_EQ(after.list.bottom - before.list.bottom, 100);
    EXPECT_EQ(after.preview.bottom - before.preview.bottom, 100);
    EXPECT_EQ(after.exportButton.left, before.exportButton.left);
    EXPECT_EQ(after.cancel.left - before.cancel.left, 300);
    EXPECT_EQ(after.cancel.right - after.cancel.left, before.cancel.right - before.cancel.left);
}

TEST(DialogLayout, GrowsWithTheFont) {
    const DialogSize one = MinimumSize(kUsual);
    const DialogSize two = MinimumSize(Scaled(2));
    EXPECT_NEAR(two.width, 2 * one.width, 10);
    EXPECT_NEAR(two.height, 2 * one.height, 10);
}

TEST(DialogLayout, EdgesLineUp) {
    const DialogPlaces places = PlaceControls(kUsual, {800, 600});
    EXPECT_EQ(places.list.left, places.exportButton.left);
    EXPECT_EQ(places.list.bottom, places.frame.bottom);
    EXPECT_EQ(places.frame.right, places.cancel.right);
    EXPECT_EQ(places.ok.top, places.exportButton.top);
    EXPECT_EQ(places.widthLabel.left, places.preview.left);
}

TEST(CentredOver, TheMiddleOfTheOwner) {
    EXPECT_EQ(CentredOver({100, 200, 500, 400}, {200, 100}, {0, 0, 1000, 800}), (qmath::Point{200, 250}));
}

TEST(CentredOver, InsideTheWorkArea) {
    EXPECT_EQ(CentredOver({900, 700, 1000, 800}, {400, 300}, {0, 0, 1000, 800}), (qmath::Point{600, 500}));
    EXPECT_EQ(CentredOver({-50, -50, 50, 50}, {400, 300}, {10, 20, 1000, 800}), (qmath::Point{10, 20}));
}

TEST(CentredOver, ATooLargeWindowShowsItsTopLeftCorner) {
    EXPECT_EQ(CentredOver({0, 0, 100, 100}, {5000, 4000}, {10, 20, 1000, 800}), (qmath::Point{10, 20}));
}

} // namespace

TEST(DialogLayout, ThePreviewsMarginGrowsWithTheFont) {
    EXPECT_EQ(qsymbol::PreviewMargin(kUsual), 6);
    EXPECT_EQ(qsymbol::PreviewMargin(Scaled(2)), 12);
}
