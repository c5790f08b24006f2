#include "qsymbol/drawing/catalogue_drawing.h"

#include "qsymbol/picture/font_metrics.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace qsymbol {

namespace {

constexpr std::u16string_view kLabelLayer = u"BESCHRIFTUNG";
constexpr std::u16string_view kNoCategory = u"SYMBOLE";
constexpr double kAspect = 1.5; ///< a sheet is wider than high
constexpr double kHeadlineFactor = 2;
// Text alignment, as the GDI numbers it.
constexpr std::int32_t kBaseLineLeft = 24;
constexpr std::int32_t kBaseLineCentre = 30;

/// Symbols may be as large as coordinates can say; what then lies off the sheet is put on its edge.
std::int32_t OnSheet(double value) {
    constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(std::round(value), kLowest, kHighest));
}

base::FontRequest Lettering(double height) {
    base::FontRequest font;
    font.height = std::max(1, OnSheet(height));
    font.name = u"Arial";
    return font;
}

} // namespace

CatalogueDrawing::CatalogueDrawing(DrawingUnit unit)
    : drawing_(unit), labels_(drawing_.AddLayer(kLabelLayer)) {}

void CatalogueDrawing::Add(std::u16string_view name, std::u16string_view category, const Symbol& symbol) {
    const DxfDrawing::Block block = drawing_.AddBlock(name, symbol);
    const std::u16string_view wanted = category.empty() ? kNoCategory : category;
    auto place = std::find_if(categories_.begin(), categories_.end(),
                              [&](const Category& known) { return known.name == wanted; });
    if (place == categories_.end())
        place = categories_.insert(place, {.name = std::u16string(wanted), .entries = {}});
    place->entries.push_back({.block = block, .name = std::u16string(name), .reference = Reference(symbol)});
}

std::string CatalogueDrawing::Compose() {
    const Sheet sheet = Measure();
    double top = 0;
    for (const Category& category : categories_)
        top = Place(category, top, sheet);
    return drawing_.Compose();
}

CatalogueDrawing::Sheet CatalogueDrawing::Measure() const {
    constexpr double kSmallestGap = 100;
    double sides = 0;
    double widest = 0;
    double count = 0;
    for (const Category& category : categories_)
        for (const Entry& entry : category.entries) {
            const qmath::Box& bounds = drawing_.BoundsOf(entry.block);
            sides += std::max(bounds.Width(), bounds.Height());
            ++count;
        }
    Sheet sheet;
    sheet.gap = std::max(kSmallestGap, count == 0 ? 0 : sides / count / 3);
    sheet.lettering = sheet.gap / 3;
    double area = 0;
    for (const Category& category : categories_)
        for (const Entry& entry : category.entries) {
            const double width = CellWidth(entry, sheet);
            widest = std::max(widest, width);
            area += width * (drawing_.BoundsOf(entry.block).Height() + 2 * sheet.gap);
        }
    sheet.rowWidth = std::max(widest, std::sqrt(area * kAspect));
    return sheet;
}

double CatalogueDrawing::CellWidth(const Entry& entry, const Sheet& sheet) const {
    return std::max(drawing_.BoundsOf(entry.block).Width(),
                    TextWidth(entry.name, Lettering(sheet.lettering))) +
           sheet.gap;
}

double CatalogueDrawing::Place(const Category& category, double top, const Sheet& sheet) {
    const DxfDrawing::Layer layer = drawing_.AddLayer(category.name);
    const double headline = kHeadlineFactor * sheet.lettering;
    top += headline;
    Label(category.name, 0, top, headline, false);
    top += sheet.gap;
    for (auto first = category.entries.begin(); first != category.entries.end();) {
        // A row: as many as fit, standing on one line.
        auto last = first;
        double height = 0;
        for (double width = 0; last != category.entries.end(); ++last) {
            width += CellWidth(*last, sheet);
            if (last != first && width > sheet.rowWidth)
                break;
            height = std::max(height, drawing_.BoundsOf(last->block).Height());
        }
        const double ground = top + height;
        for (double left = 0; first != last; ++first) {
            const qmath::Box& bounds = drawing_.BoundsOf(first->block);
            const double cell = CellWidth(*first, sheet);
            const double centre = left + (cell - sheet.gap) / 2;
            const double x = bounds.IsEmpty() ? 0 : (bounds.left + bounds.right) / 2 - first->reference.x;
            const double y = bounds.IsEmpty() ? 0 : bounds.bottom - first->reference.y;
            drawing_.Insert(first->block, layer,
                            {.at = {OnSheet(centre - x), OnSheet(ground - y)}, .angle = 0});
            Label(first->name, centre, ground + 2 * sheet.lettering, sheet.lettering, true);
            left += cell;
        }
        top = ground + 2 * sheet.lettering + sheet.gap;
    }
    return top + sheet.gap;
}

void CatalogueDrawing::Label(std::u16string_view text, double x, double y, double height, bool centred) {
    VectorSurface& surface = drawing_.Draw(labels_, DxfColours::OfLayer); // readable on light and dark
    surface.SetTextAlign(centred ? kBaseLineCentre : kBaseLineLeft);
    surface.SelectFont(Lettering(height));
    surface.WriteText({OnSheet(x), OnSheet(y)}, text);
    surface.ReleaseFont();
}

} // namespace qsymbol
