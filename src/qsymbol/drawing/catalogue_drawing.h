#pragma once

#include "qsymbol/drawing/dxf_drawing.h"

#include <string>
#include <string_view>
#include <vector>

namespace qsymbol {

/// The drawing of a catalogue: a block for each symbol and one insert of each in rows, its name below it, on
/// the layer of its category; the categories one below the other, in the order in which they came.
class CatalogueDrawing {
public:
    explicit CatalogueDrawing(DrawingUnit unit);

    /// The category is the symbol's folder, "" for none. Errors of DxfDrawing::AddBlock; the catalogue is as
    /// before then.
    void Add(std::u16string_view name, std::u16string_view category, const Symbol& symbol);

    /// Places what was added and gives the file's bytes. Once, at the end.
    std::string Compose();

private:
    struct Entry {
        DxfDrawing::Block block = 0;
        std::u16string name;
        qmath::Point reference;
    };
    struct Category {
        std::u16string name;
        std::vector<Entry> entries;
    };
    /// Measures of the sheet, in logical units.
    struct Sheet {
        double gap = 0;
        double lettering = 0; ///< height of the names
        double rowWidth = 0;
    };

    Sheet Measure() const;
    /// Places a category below `top`; where the next one begins.
    double Place(const Category& category, double top, const Sheet& sheet);
    double CellWidth(const Entry& entry, const Sheet& sheet) const;
    void Label(std::u16string_view text, double x, double y, double height, bool centred);

    DxfDrawing drawing_;
    DxfDrawing::Layer labels_;
    std::vector<Category> categories_;
};

} // namespace qsymbol
