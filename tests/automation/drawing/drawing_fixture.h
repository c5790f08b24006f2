#pragma once

#include "support/automation_test.h"
#include "support/picture_box.h"
#include "support/pixels.h"
#include "support/shapes.h"

#include <vector>

namespace drawing {

using support::Ref;

inline constexpr COLORREF kRed = RGB(200, 20, 30);
inline constexpr COLORREF kGreen = RGB(10, 160, 60);
inline constexpr COLORREF kBlue = RGB(20, 40, 220);

/// Where a symbol is put.
struct Place {
    POINT reference{};
    POINT at{};
    double angle = 0;
    double factor = 1;
};

/// A transformation written down.
struct View {
    double scale = 1;
    LONG offsetX = 0;
    LONG offsetY = 0;
};

/// The arithmetic of the rules, done again: the world point of a symbol point, the pixel of a world point,
/// the pixels of a world length.
POINT World(const Place& place, POINT point);
POINT Pixel(const View& view, POINT world);
int Pixels(const View& view, double length);

/// Two equal canvases, one for the library and one for the plain GDI calls of the test, and a box on
/// the first.
class DrawingTest : public support::AutomationTest {
protected:
    explicit DrawingTest(const std::wstring& name = L"PlanBox", const std::wstring& type = L"PictureBox") {
        StartAgain(name, type);
    }

    /// Whatever a test draws, the GDI has as many objects afterwards as before: exactly as many when it is played again,
    /// and the first time give or take what the system makes once and keeps.
    static constexpr long kSystemsOwn = 24;
    void SetUp() override;
    void TearDown() override;

    /// Both canvases as in the beginning and a new box.
    void StartAgain(const std::wstring& name = L"PlanBox", const std::wstring& type = L"PictureBox");

    /// The library has drawn something, and exactly what the test has.
    void ExpectSame() const;
    void ExpectNothingDrawn() const { EXPECT_FALSE(support::IsDrawnOn(drawn)); }

    Ref<_CTrans> Trans() const { return support::NewTrans(view.scale, view.offsetX, view.offsetY); }

    HDC Dc() const { return expected.Dc(); }
    /// Plain calls on pixels for the expected picture.
    void Line(const std::vector<POINT>& pixels) const;
    void Closed(const std::vector<POINT>& pixels) const;
    void Circle(POINT centre, int radius) const;
    void Text(POINT anchor, const char* text) const;

    long objectsBefore = 0;
    View view{10, -100, -200};
    support::Canvas drawn;
    support::Canvas expected;
    Ref<support::PictureBox> box;
};

} // namespace drawing
