#pragma once

#include "../catalogue.h"
#include "../plan_file.h"
#include "selection.h"

#include <filesystem>
#include <vector>

/// The plan that is being edited, its file, the marked symbols, and the way back. Whatever fails leaves it as
/// it was.
class PlanDocument {
public:
    /// Starts with a new plan.
    explicit PlanDocument(Ptr<_CSymbolColl> catalogue);

    void StartNew();
    void Open(const std::filesystem::path& file);
    void SaveAs(const std::filesystem::path& file);

    /// Takes the plan's symbols from another catalogue; all of them must be in it.
    void UseCatalogue(Ptr<_CSymbolColl> catalogue);
    _CSymbolColl& Catalogue() const { return *catalogue_.Get(); }
    const Plan& Content() const { return plan_; }
    /// The symbols of the catalogue that the plan shows, in its order.
    const std::vector<Ptr<_CSymbol>>& Symbols() const { return symbols_; }
    /// Empty while the plan has none.
    const std::filesystem::path& File() const { return file_; }
    bool IsModified() const { return plan_.symbols != saved_; }

    Selection& Marks() { return marks_; }
    const Selection& Marks() const { return marks_; }

    /// Puts symbols on top of all others.
    void Add(const std::vector<PlacedSymbol>& added);
    /// changed: the new state of the symbols at these places.
    void Replace(const std::vector<std::size_t>& places, const std::vector<PlacedSymbol>& changed);
    void RemoveMarked();

    bool CanUndo() const { return !history_.empty(); }
    void Undo();

private:
    void Begin(Plan plan, const std::filesystem::path& file);
    void Change(std::vector<PlacedSymbol> symbols);
    void Show(Plan plan);

    Ptr<_CSymbolColl> catalogue_;
    Plan plan_;
    std::vector<Ptr<_CSymbol>> symbols_;
    std::filesystem::path file_;
    std::vector<PlacedSymbol> saved_;
    std::vector<std::vector<PlacedSymbol>> history_;
    Selection marks_;
};
