#include "plan_document.h"

#include "../plan_symbols.h"
#include "../text.h"

#include <cstdlib>

namespace {

Plan NewPlan() {
    Plan plan;
    plan.title = L"Neuer Plan";
    plan.width = 12'000;
    plan.height = 9'000;
    plan.lines.push_back("PLAN;Neuer Plan;12000;9000");
    return plan;
}

void RequireOnSheet(const std::vector<PlacedSymbol>& symbols) {
    constexpr long kLongest = kLongestMillimetres * kUnitsPerMillimetre;
    for (const PlacedSymbol& placed : symbols) {
        if (std::labs(placed.at.x) > kLongest || std::labs(placed.at.y) > kLongest)
            throw Failure{L"\"" + placed.name + L"\" käme zu weit vom Blatt weg."};
    }
}

} // namespace

PlanDocument::PlanDocument(Ptr<_CSymbolColl> catalogue) : catalogue_(std::move(catalogue)) {
    StartNew();
}

void PlanDocument::StartNew() {
    Begin(NewPlan(), {});
}

void PlanDocument::Open(const std::filesystem::path& file) {
    Begin(ReadPlan(file), std::filesystem::absolute(file));
}

void PlanDocument::SaveAs(const std::filesystem::path& file) {
    WritePlan(plan_, file);
    file_ = file;
    saved_ = plan_.symbols;
}

void PlanDocument::UseCatalogue(Ptr<_CSymbolColl> catalogue) {
    symbols_ = FindSymbols(plan_, *catalogue.Get());
    catalogue_ = std::move(catalogue);
}

void PlanDocument::Add(const std::vector<PlacedSymbol>& added) {
    std::vector<PlacedSymbol> symbols = plan_.symbols;
    symbols.insert(symbols.end(), added.begin(), added.end());
    Change(std::move(symbols));
}

void PlanDocument::Replace(const std::vector<std::size_t>& places, const std::vector<PlacedSymbol>& changed) {
    std::vector<PlacedSymbol> symbols = plan_.symbols;
    for (std::size_t i = 0; i < places.size(); ++i)
        symbols[places[i]] = changed[i];
    Change(std::move(symbols));
}

void PlanDocument::RemoveMarked() {
    std::vector<PlacedSymbol> symbols = plan_.symbols;
    const std::vector<std::size_t>& places = marks_.Places();
    for (auto place = places.rbegin(); place != places.rend(); ++place)
        symbols.erase(symbols.begin() + static_cast<std::ptrdiff_t>(*place));
    Change(std::move(symbols));
    marks_.Clear();
}

void PlanDocument::Undo() {
    Plan plan = plan_;
    plan.symbols = history_.back();
    Show(std::move(plan));
    history_.pop_back();
    marks_.Clear();
}

void PlanDocument::Begin(Plan plan, const std::filesystem::path& file) {
    Show(std::move(plan));
    file_ = file;
    saved_ = plan_.symbols;
    history_.clear();
    marks_.Clear();
}

void PlanDocument::Change(std::vector<PlacedSymbol> symbols) {
    RequireOnSheet(symbols);
    if (symbols == plan_.symbols)
        return;
    Plan plan = plan_;
    plan.symbols.swap(symbols);
    Show(std::move(plan));
    history_.push_back(std::move(symbols)); // as they were
}

void PlanDocument::Show(Plan plan) {
    symbols_ = FindSymbols(plan, *catalogue_.Get());
    plan_ = std::move(plan);
}
