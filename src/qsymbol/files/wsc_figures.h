#pragma once

#include "qsymbol/files/memory_budget.h"
#include "qsymbol/files/wsc_box.h"
#include "qsymbol/files/wsc_fields.h"
#include "qsymbol/files/wsc_format.h"
#include "qsymbol/files/wsc_numbers.h"
#include "qsymbol/model/symbol.h"

#include <cstddef>
#include <cstdint>

namespace qsymbol {

/// Turns the figure lines of an import file into the elements of a symbol whose table already has one for each of them.
///
/// Every reading takes the fields behind the keyword. Errors 13 and 6 for numbers, 9 for what lies outside a
/// list, 7 past the memory bound.
class WscFigures {
public:
    WscFigures(Symbol& symbol, WscNumbers& numbers, MemoryBudget& budget)
        : symbol_(symbol), numbers_(numbers), budget_(budget) {}

    /// A straight line of two points (STR).
    void OpenLine(WscFields fields);
    /// A chain with its first three points (STF), and how many lines of points follow it.
    void OpenChain(WscFields fields, std::size_t continuations);
    /// A filled area without points yet (FLA), likewise.
    void OpenArea(WscFields fields, std::size_t continuations);
    /// An ellipse (ELL), filled or not (EFL): a circle when its box is square.
    void OpenEllipse(WscFields fields, bool filled);
    /// An arc (EBO) with its centre only. False for an elliptic one, which cannot be read.
    bool OpenArc(WscFields fields);
    /// A sector (PIE) without points yet.
    void OpenPie(WscFields fields);

    /// The next one to three points of a chain or an area (SFF, FLF); none on a line with another number of
    /// fields than these have.
    void AddPoints(WscFields fields);
    /// The start and the end of an arc (EBF).
    void SetArcEnds(WscFields fields);
    /// The two rays of a sector, which make its outline (PIF). Error 9 when the last figure is none.
    void SetPieOutline(WscFields fields);

private:
    enum class Colour { Line, LineAndFill };

    ElementRecord& OpenElement(ElementType type);
    /// With room for so many more.
    void OpenPolyline(WscFields& fields, std::size_t points, std::size_t more);
    /// The element that the last figure line opened. Error 9 ahead of any.
    ElementRecord& Current();

    void ReadKeys(WscFields& fields, int count, Colour colour);
    void ReadKey(std::string_view field, Colour colour);
    void ReadBox(WscFields& fields);
    void MakeCircle(ElementRecord& element);

    /// Changes the number of points, keeping those there are.
    void Resize(std::vector<qmath::Point>& points, std::size_t size);
    /// Makes room for so many points in all.
    void Reserve(std::vector<qmath::Point>& points, std::size_t size);

    Symbol& symbol_;
    WscNumbers& numbers_;
    MemoryBudget& budget_;
    std::size_t opened_ = 0;           ///< elements so far
    ElementRecord* current_ = nullptr; ///< the last of them
    std::size_t counter_ = 0;          ///< where the next continuation line's points go, counted from 1
    WscBox box_;
    bool pie_ = false; ///< the current element is a sector and box_ is its own
};

} // namespace qsymbol
