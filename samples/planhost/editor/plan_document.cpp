#include "plan_document.h"

#include "../plan_symbols.h"
#include "../text.h"
#include "trial_drawing.h"

#include <algorithm>
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

/// The lines in the file are taken in the order in which the symbols lie on each other now; the file keeps its other lines.
void GiveLines(std::vector<PlacedSymbol>& symbols) {
    std::vector<int> lines;
    for (const PlacedSymbol& symbol : symbols) {
        if (symbol.line != 0)
            lines.push_back(symbol.line);
    }
    std::ranges::sort(lines);
    for (std::size_t i = 0; i < symbols.size(); ++i)
        symbols[i].line = i < lines.size() ? lines[i] : 0; // new ones come last in the file
}

} // namespace

PlanDocument::PlanDocument(Ptr<_CSymbolColl> catalogue)
    : catalogue_(std::move(catalogue)), placed_({}, *catalogue_.Get()) {
    StartNew();
}

void PlanDocument::StartNew() {
    Begin(NewPlan(), {});
}

void PlanDocument::Open(const std::filesystem::path& file) {
    Begin(ReadPlan(file), std::filesystem::absolute(file));
}

void PlanDocument::Recover(const std::filesystem::path& saved, const std::filesystem::path& file) {
    Begin(ReadPlan(saved), file);
    saved_ = 0; // no state has this number
}

void PlanDocument::SaveAs(const std::filesystem::path& file) {
    WritePlan(plan_, file);
    file_ = file;
    saved_ = history_.State();
}

void PlanDocument::UseCatalogue(Ptr<_CSymbolColl> catalogue) {
    std::vector<Ptr<_CSymbol>> symbols = FindSymbols(plan_, *catalogue.Get());
    RequireDrawable(plan_.symbols, symbols);
    placed_.UseCatalogue(*catalogue.Get());
    symbols_.swap(symbols);
    catalogue_ = std::move(catalogue);
}

std::vector<PlacedSymbol> PlanDocument::MarkedSymbols() const {
    std::vector<PlacedSymbol> marked;
    for (const std::size_t place : marks_.Places())
        marked.push_back(plan_.symbols[place]);
    return marked;
}

void PlanDocument::Add(const std::vector<PlacedSymbol>& added, bool marks) {
    std::vector<PlacedSymbol> symbols = plan_.symbols;
    symbols.insert(symbols.end(), added.begin(), added.end());
    Change(symbols);
    if (marks)
        marks_.SetRange(symbols.size() - added.size(), added.size());
}

void PlanDocument::Replace(const std::vector<std::size_t>& places, const std::vector<PlacedSymbol>& changed,
                           bool continues) {
    std::vector<PlacedSymbol> symbols = plan_.symbols;
    for (std::size_t i = 0; i < places.size(); ++i)
        symbols[places[i]] = changed[i];
    Change(symbols, continues);
}

void PlanDocument::RemoveMarked() {
    std::vector<PlacedSymbol> symbols = plan_.symbols;
    const std::vector<std::size_t>& places = marks_.Places();
    for (auto place = places.rbegin(); place != places.rend(); ++place)
        symbols.erase(symbols.begin() + static_cast<std::ptrdiff_t>(*place));
    Change(symbols);
    marks_.Clear();
}

void PlanDocument::BringMarkedTo(bool front) {
    std::vector<PlacedSymbol> marked, others;
    for (std::size_t i = 0; i < plan_.symbols.size(); ++i)
        (marks_.Contains(i) ? marked : others).push_back(plan_.symbols[i]);
    const std::size_t first = front ? others.size() : 0;
    const std::size_t count = marked.size();
    others.insert(others.begin() + static_cast<std::ptrdiff_t>(first), marked.begin(), marked.end());
    GiveLines(others);
    Change(others);
    marks_.SetRange(first, count);
}

void PlanDocument::Undo() {
    Apply(history_.ToUndo().Reversed());
    history_.WentBack();
    marks_.Clear();
}

void PlanDocument::Redo() {
    Apply(history_.ToRedo());
    history_.WentForth();
    marks_.Clear();
}

void PlanDocument::Begin(Plan plan, const std::filesystem::path& file) {
    std::vector<Ptr<_CSymbol>> symbols = FindSymbols(plan, *catalogue_.Get());
    RequireDrawable(plan.symbols, symbols);
    placed_ = PlacedPlan(plan.symbols, *catalogue_.Get());
    symbols_.swap(symbols);
    plan_ = std::move(plan);
    file_ = file;
    history_.Begin();
    saved_ = history_.State();
    ++planNumber_;
    marks_.Clear();
}

void PlanDocument::Change(const std::vector<PlacedSymbol>& symbols, bool continues) {
    PlanChange change = Difference(plan_.symbols, symbols);
    if (change.IsNothing())
        return;
    RequireOnSheet(change.after);
    Apply(change);
    history_.Add(std::move(change), continues);
}

void PlanDocument::Apply(const PlanChange& change) {
    std::vector<Ptr<_CSymbol>> found = FindSymbols(change.after, *catalogue_.Get());
    RequireDrawable(change.after, found);
    try {
        placed_.Exchange(change.first, change.before, change.after,
                         std::span(plan_.symbols).subspan(change.first + change.before.size()));
    } catch (const Failure&) {
        placed_ = PlacedPlan(plan_.symbols, *catalogue_.Get());
        throw;
    }
    const auto exchange = [&]<class Item>(std::vector<Item>& all, auto first, auto last) {
        const auto begin = all.begin() + static_cast<std::ptrdiff_t>(change.first);
        all.insert(all.erase(begin, begin + static_cast<std::ptrdiff_t>(change.before.size())), first, last);
    };
    exchange(plan_.symbols, change.after.begin(), change.after.end());
    exchange(symbols_, std::make_move_iterator(found.begin()), std::make_move_iterator(found.end()));
}
