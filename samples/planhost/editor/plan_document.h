#pragma once

#include "../placed_plan.h"
#include "history.h"
#include "selection.h"

#include <filesystem>
#include <vector>

/// The plan that is being edited, its file, the marked symbols, and the way back. Whatever fails leaves it as it was: what
/// comes into the plan has been drawn on trial.
class PlanDocument {
public:
    /// Starts with a new plan.
    explicit PlanDocument(Ptr<_CSymbolColl> catalogue);

    void StartNew();
    void Open(const std::filesystem::path& file);
    /// Takes what was saved meanwhile for the changed plan of a file; without a file it is a new plan's.
    void Recover(const std::filesystem::path& saved, const std::filesystem::path& file);
    void SaveAs(const std::filesystem::path& file);
    /// Writes the plan as it is into another file, which is none of the plan's.
    void SaveCopy(const std::filesystem::path& file) const { WritePlan(plan_, file); }

    /// Takes the plan's symbols from another catalogue; all of them must be in it.
    void UseCatalogue(Ptr<_CSymbolColl> catalogue);
    _CSymbolColl& Catalogue() const { return *catalogue_.Get(); }
    const Plan& Content() const { return plan_; }
    /// The symbols of the catalogue that the plan shows, in its order.
    const std::vector<Ptr<_CSymbol>>& Symbols() const { return symbols_; }
    /// The same in the library's hands.
    const PlacedPlan& Placed() const { return placed_; }
    /// Empty while the plan has none.
    const std::filesystem::path& File() const { return file_; }
    bool IsModified() const { return history_.State() != saved_; }
    /// Counts the states of all plans.
    unsigned State() const { return history_.State(); }
    /// Counts the plans.
    unsigned PlanNumber() const { return planNumber_; }

    Selection& Marks() { return marks_; }
    const Selection& Marks() const { return marks_; }
    /// The marked symbols in the plan's order.
    std::vector<PlacedSymbol> MarkedSymbols() const;

    /// Puts symbols on top of all others, and marks them if told so.
    void Add(const std::vector<PlacedSymbol>& added, bool marks = false);
    /// changed: the new state of the symbols at these places. continues: belongs to the last change.
    void Replace(const std::vector<std::size_t>& places, const std::vector<PlacedSymbol>& changed,
                 bool continues = false);
    void RemoveMarked();
    /// Puts the marked symbols above or below all others; they keep their order.
    void BringMarkedTo(bool front);

    bool CanUndo() const { return history_.CanUndo(); }
    bool CanRedo() const { return history_.CanRedo(); }
    void Undo();
    void Redo();

private:
    void Begin(Plan plan, const std::filesystem::path& file);
    void Change(const std::vector<PlacedSymbol>& symbols, bool continues = false);
    void Apply(const PlanChange& change);

    Ptr<_CSymbolColl> catalogue_;
    Plan plan_;
    std::vector<Ptr<_CSymbol>> symbols_;
    PlacedPlan placed_;
    std::filesystem::path file_;
    History history_;
    unsigned saved_ = 0;
    unsigned planNumber_ = 0;
    Selection marks_;
};
