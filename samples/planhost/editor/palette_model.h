#pragma once

#include <optional>
#include <string>
#include <vector>

/// A symbol as the palette lists it.
struct PaletteSymbol {
    std::wstring name{};
    std::wstring category{}; ///< the subfolder of the catalogue
    std::wstring size{};     ///< as it is shown
};

/// A part of the list under a heading.
struct PaletteSection {
    std::wstring title;
    std::vector<std::size_t> symbols; ///< numbers of symbols, in the order in which they are shown
};

/// What the palette shows of a catalogue: with nothing typed the favourites, the recent symbols and one section for each
/// category, else one section with what was found.
class PaletteModel {
public:
    /// symbols: sorted by category and name.
    void SetSymbols(std::vector<PaletteSymbol> symbols);
    /// Names in the order in which they are to be shown; those that the catalogue lacks are passed over.
    void SetFavourites(std::vector<std::wstring> names);
    void SetRecent(std::vector<std::wstring> names);
    /// Words in any order, each of which a found symbol has in its name or its category. Names come before categories.
    void SetFilter(std::wstring typed);
    /// Only this category; nothing for all.
    void SetCategory(std::optional<std::wstring> category);

    const std::vector<PaletteSection>& Sections() const { return sections_; }
    const PaletteSymbol& Symbol(std::size_t number) const { return symbols_[number]; }
    std::size_t Count() const { return symbols_.size(); }
    std::vector<std::wstring> Categories() const;
    bool IsFavourite(std::size_t number) const;
    bool IsFiltered() const { return !filter_.empty(); }

private:
    struct Searched {
        std::wstring name;
        std::wstring all; ///< with the category
    };

    void Arrange();
    void AddNamed(const std::wstring& title, const std::vector<std::wstring>& names);
    void AddCategories();
    void AddFound();
    bool IsInCategory(std::size_t number) const;

    std::vector<PaletteSymbol> symbols_;
    std::vector<Searched> searched_;
    std::vector<std::wstring> favourites_;
    std::vector<std::wstring> recent_;
    std::vector<std::wstring> filter_;
    std::optional<std::wstring> category_;
    std::vector<PaletteSection> sections_;
};
