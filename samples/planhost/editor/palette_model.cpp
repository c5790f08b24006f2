#include "palette_model.h"

#include "palette_text.h"

#include <algorithm>

void PaletteModel::SetSymbols(std::vector<PaletteSymbol> symbols) {
    symbols_ = std::move(symbols);
    searched_.clear();
    for (const PaletteSymbol& symbol : symbols_)
        searched_.push_back({SearchText(symbol.name), SearchText(symbol.name + L"\n" + symbol.category)});
    if (category_ && std::ranges::count(Categories(), *category_) == 0)
        category_.reset();
    Arrange();
}

void PaletteModel::SetFavourites(std::vector<std::wstring> names) {
    favourites_ = std::move(names);
    Arrange();
}

void PaletteModel::SetRecent(std::vector<std::wstring> names) {
    recent_ = std::move(names);
    Arrange();
}

void PaletteModel::SetFilter(std::wstring typed) {
    filter_ = FilterWords(typed);
    Arrange();
}

void PaletteModel::SetCategory(std::optional<std::wstring> category) {
    category_ = std::move(category);
    Arrange();
}

std::vector<std::wstring> PaletteModel::Categories() const {
    std::vector<std::wstring> categories;
    for (const PaletteSymbol& symbol : symbols_) {
        if (categories.empty() || categories.back() != symbol.category)
            categories.push_back(symbol.category);
    }
    return categories;
}

bool PaletteModel::IsFavourite(std::size_t number) const {
    return std::ranges::count(favourites_, symbols_[number].name) > 0;
}

bool PaletteModel::IsInCategory(std::size_t number) const {
    return !category_ || symbols_[number].category == *category_;
}

void PaletteModel::Arrange() {
    sections_.clear();
    if (IsFiltered()) {
        AddFound();
        return;
    }
    if (!category_) {
        AddNamed(L"Favoriten", favourites_);
        AddNamed(L"Zuletzt benutzt", recent_);
    }
    AddCategories();
}

void PaletteModel::AddNamed(const std::wstring& title, const std::vector<std::wstring>& names) {
    PaletteSection section{title, {}};
    for (const std::wstring& name : names) {
        const auto found = std::ranges::find(symbols_, name, &PaletteSymbol::name);
        if (found != symbols_.end())
            section.symbols.push_back(static_cast<std::size_t>(found - symbols_.begin()));
    }
    if (!section.symbols.empty())
        sections_.push_back(std::move(section));
}

void PaletteModel::AddCategories() {
    const std::wstring* last = nullptr;
    for (std::size_t number = 0; number < symbols_.size(); ++number) {
        if (!IsInCategory(number))
            continue;
        const std::wstring& category = symbols_[number].category;
        if (last == nullptr || *last != category)
            sections_.push_back({category.empty() ? L"Ohne Kategorie" : category, {}});
        sections_.back().symbols.push_back(number);
        last = &category;
    }
}

void PaletteModel::AddFound() {
    PaletteSection found{L"Gefunden", {}};
    std::vector<std::size_t> byCategory;
    for (std::size_t number = 0; number < symbols_.size(); ++number) {
        if (!IsInCategory(number))
            continue;
        if (HasWords(searched_[number].name, filter_))
            found.symbols.push_back(number);
        else if (HasWords(searched_[number].all, filter_))
            byCategory.push_back(number);
    }
    // A name that begins with the first word is what most people mean.
    std::ranges::stable_partition(found.symbols, [&](std::size_t number) {
        return searched_[number].name.starts_with(filter_.front());
    });
    found.symbols.insert(found.symbols.end(), byCategory.begin(), byCategory.end());
    if (!found.symbols.empty())
        sections_.push_back(std::move(found));
}
