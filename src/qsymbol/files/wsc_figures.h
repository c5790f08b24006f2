#pragma once

#include "qsymbol/files/field_cursor.h"
#include "qsymbol/files/memory_budget.h"
#include "qsymbol/files/wsc_box.h"
#include "qsymbol/files/wsc_format.h"
#include "qsymbol/files/wsc_numbers.h"
#include "qsymbol/model/symbol.h"

#include <cstddef>
#include <cstdint>

namespace qsymbol {

/// Turns the figure lines of an import file into the elements of a symbol whose table is already sized.
///
/// Every reading takes the fields behind the keyword. Errors 13 and 6 for numbers, 9 for what lies outside a
/// list, 7 past the memory bound.
class WscFigures {
public:
    WscFigures(Symbol& symbol, WscNumbers& numbers, MemoryBudget& budget)
        : symbol_(symbol), numbers_(numbers), budget_(budget) {}

    /// A straight line of two points (STR).
    void OpenLine(FieldCursor fields);
    /// A chain with its first three points (STF).
    void OpenChain(FieldCursor fields);
    /// A filled area without points yet (FLA).
    void OpenArea(FieldCursor fields);
    /// An ellipse (ELL), filled or not (EFL): a circle when its box is square.
    void OpenEllipse(FieldCursor fields, bool filled);
    /// An arc (EBO) with its centre only. False for an elliptic one, which cannot be read.
    bool OpenArc(FieldCursor fields);
    /// A sector (PIE) without points yet.
    void OpenPie(FieldCursor fields);

    /// The next one to three points of a chain or an area (SFF, FLF), as the number of the line's fields
    /// says.
    void AddPoints(FieldCursor fields, std::size_t fieldCount);
    /// The start and the end of an arc (EBF).
    void SetArcEnds(FieldCursor fields);
    /// The two rays of a sector, which make its outline (PIF). Error 9 when the last figure is none.
    void SetPieOutline(FieldCursor fields);

private:
    enum class Colour { Line, LineAndFill };

    ElementRecord& OpenElement(ElementType type);
    void OpenPolyline(FieldCursor& fields, std::size_t points);
    /// The element that the last figure line opened. Error 9 ahead of any.
    ElementRecord& Current();

    void ReadKeys(FieldCursor& fields, int count, Colour colour);
    void ReadKey(std::string_view field, Colour colour);
    WscPlace ReadPlace(FieldCursor& fields);
    void ReadBox(FieldCursor& fields);
    void MakeCircle(ElementRecord& element);

    /// Changes the number of points, keeping those there are; room grows in powers of two.
    void Resize(std::vector<qmath::Point>& points, std::size_t size);

    Symbol& symbol_;
    WscNumbers& numbers_;
    MemoryBudget& budget_;
    std::size_t opened_ = 0;  ///< elements so far
    std::size_t counter_ = 0; ///< where the next continuation line's points go, counted from 1
    WscBox box_;
    bool pie_ = false; ///< the current element is a sector and box_ is its own
};

} // namespace qsymbol
