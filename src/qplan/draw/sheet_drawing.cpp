#include "qplan/draw/sheet_drawing.h"

#include "base/checked.h"
#include "qplan/draw/wall_outline.h"
#include "qsymbol/draw/kept_font.h"
#include "qsymbol/draw/surface_constants.h"

#include <algorithm>

namespace qplan {

namespace {

constexpr std::int32_t Colour(std::int32_t red, std::int32_t green, std::int32_t blue) {
    return red | green << 8 | blue << 16;
}
constexpr std::int32_t kWallColour = Colour(74, 74, 78);
constexpr std::int32_t kTextColour = Colour(40, 40, 44);
// Millimetres on the sheet.
constexpr std::int32_t kLabelHeight = 230;
constexpr std::int32_t kTitleHeight = 340;
constexpr std::int32_t kTitleMargin = 700;

qmath::Point ToPixel(const qsymbol::Transformation& transformation, qmath::Vector millimetres) {
    qmath::Point point{base::RoundToLong(millimetres.x * kUnitsPerMillimetre),
                       base::RoundToLong(millimetres.y * kUnitsPerMillimetre)};
    transformation.WorldToScreen(point);
    return point;
}

std::array<qmath::Vector, 4> OutlineOf(const Floor& floor) {
    const double left = floor.area.left;
    const double top = floor.area.top;
    const double right = floor.area.right;
    const double bottom = floor.area.bottom;
    return {{{left, top}, {right, top}, {right, bottom}, {left, bottom}}};
}

void Fill(const std::array<qmath::Vector, 4>& corners, qsymbol::Surface& surface,
          const qsymbol::Transformation& transformation) {
    std::array<qmath::Point, 4> pixels;
    std::ranges::transform(corners, pixels.begin(),
                           [&](qmath::Vector corner) { return ToPixel(transformation, corner); });
    surface.Polygon(pixels);
}

void Write(std::u16string_view text, qmath::Vector at, std::int32_t height, std::int32_t align,
           qsymbol::Surface& surface, const qsymbol::Transformation& transformation) {
    base::FontRequest font;
    font.height = std::max(1, transformation.LengthToScreen(height * kUnitsPerMillimetre));
    font.bold = true;
    font.name = u"Arial";
    qsymbol::KeptFont kept(surface);
    kept.Select(font);
    surface.SetTextAlign(align | qsymbol::kTextAlignBaseline);
    surface.WriteText(ToPixel(transformation, at), text);
}

} // namespace

void DrawFloors(const Sheet& sheet, qsymbol::Surface& surface,
                const qsymbol::Transformation& transformation) {
    if (sheet.floors.empty())
        return;
    surface.PutDrawStyle(qsymbol::kDrawStyleInvisible);
    surface.PutFillStyle(qsymbol::kFillStyleSolid);
    for (const Floor& floor : sheet.floors) {
        surface.PutFillColor(floor.colour);
        Fill(OutlineOf(floor), surface, transformation);
    }
}

void DrawWalls(const Sheet& sheet, qsymbol::Surface& surface, const qsymbol::Transformation& transformation) {
    if (sheet.walls.empty())
        return;
    surface.PutForeColor(kWallColour);
    surface.PutDrawWidth(1);
    surface.PutDrawStyle(qsymbol::kDrawStyleSolid);
    surface.PutFillColor(kWallColour);
    surface.PutFillStyle(qsymbol::kFillStyleSolid);
    for (const Wall& wall : sheet.walls)
        Fill(OutlineOf(wall), surface, transformation);
}

void DrawLettering(const Sheet& sheet, qsymbol::Surface& surface,
                   const qsymbol::Transformation& transformation) {
    surface.PutForeColor(kTextColour);
    surface.SetBkMode(qsymbol::kBkModeTransparent);
    if (!sheet.title.empty())
        Write(sheet.title, {kTitleMargin, kTitleMargin - kTitleHeight / 2.0}, kTitleHeight, 0, surface,
              transformation);
    for (const Room& room : sheet.rooms) {
        // Capitals are about two thirds of the height: this puts them round the middle.
        const double baseline =
            room.middle.y + kLabelHeight / 3; // NOLINT(bugprone-integer-division): whole ones
        Write(room.name, {static_cast<double>(room.middle.x), baseline}, kLabelHeight,
              qsymbol::kTextAlignCenter, surface, transformation);
    }
}

} // namespace qplan
