#include "drawing/drawing_fixture.h"

#include "support/handle_count.h"

#include <cmath>
#include <cstring>
#include <set>
#include <string>

namespace drawing {

namespace {

/// To the nearest, halves to the even one: the rounding mode that a program starts with.
LONG Round(double value) {
    return static_cast<LONG>(std::nearbyint(value));
}

} // namespace

POINT World(const Place& place, POINT point) {
    const double x = place.factor * (point.x - static_cast<double>(place.reference.x));
    const double y = place.factor * (point.y - static_cast<double>(place.reference.y));
    const double sine = std::sin(-place.angle);
    const double cosine = std::cos(-place.angle);
    return {Round(x * cosine - y * sine + place.at.x), Round(x * sine + y * cosine + place.at.y)};
}

POINT Pixel(const View& view, POINT world) {
    return {Round((world.x - static_cast<double>(view.offsetX)) / view.scale),
            Round((world.y - static_cast<double>(view.offsetY)) / view.scale)};
}

int Pixels(const View& view, double length) {
    return static_cast<int>(Round(length / view.scale));
}

void DrawingTest::SetUp() {
    objectsBefore = support::HandleCount::Gdi();
}

void DrawingTest::TearDown() {
    StartAgain();
    static std::set<std::string> played;
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    const bool first = played.insert(std::string(test.test_suite_name()) + '.' + test.name()).second;
    EXPECT_LE(support::HandleCount::Gdi(), objectsBefore + (first ? kSystemsOwn : 0))
        << "objects of the GDI are left";
}

void DrawingTest::StartAgain(const std::wstring& name, const std::wstring& type) {
    box.Reset();
    drawn.Reset();
    expected.Reset();
    box = support::PictureBox::Create(drawn, name, type);
}

void DrawingTest::ExpectSame() const {
    EXPECT_TRUE(support::IsDrawnOn(expected)) << "the test itself has drawn nothing";
    EXPECT_TRUE(support::SamePicture(drawn, expected));
}

void DrawingTest::Line(const std::vector<POINT>& pixels) const {
    Polyline(Dc(), pixels.data(), static_cast<int>(pixels.size()));
}

void DrawingTest::Closed(const std::vector<POINT>& pixels) const {
    Polygon(Dc(), pixels.data(), static_cast<int>(pixels.size()));
}

void DrawingTest::Circle(POINT centre, int radius) const {
    Ellipse(Dc(), centre.x - radius, centre.y - radius, centre.x + radius, centre.y + radius);
}

void DrawingTest::Text(POINT anchor, const char* text) const {
    TextOutA(Dc(), anchor.x, anchor.y, text, static_cast<int>(std::strlen(text)));
}

} // namespace drawing
