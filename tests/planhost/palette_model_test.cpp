#include "editor/palette_model.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Palette : public testing::Test {
protected:
    Palette() {
        model.SetSymbols({{L"Wanne", L"Bad"},
                          {L"WC", L"Bad"},
                          {L"Herd", L"Küche"},
                          {L"Küchenzeile", L"Küche"},
                          {L"Spüle", L"Küche"},
                          {L"Alte Küchenuhr", L"Möbel"},
                          {L"Sofa", L"Möbel"}});
    }
    /// "title: name, name" of each section.
    std::vector<std::wstring> Shown() const {
        std::vector<std::wstring> lines;
        for (const PaletteSection& section : model.Sections()) {
            lines.push_back(section.title + L":");
            for (const std::size_t number : section.symbols)
                lines.back() += L" " + model.Symbol(number).name;
        }
        return lines;
    }

    PaletteModel model;
};

TEST_F(Palette, ShowsFavouritesAndRecentOnTop) {
    model.SetFavourites({L"Sofa", L"verschwunden", L"WC"});
    model.SetRecent({L"Herd"});
    EXPECT_THAT(Shown(), ElementsAre(L"Favoriten: Sofa WC", L"Zuletzt benutzt: Herd", L"Bad: Wanne WC",
                                     L"Küche: Herd Küchenzeile Spüle", L"Möbel: Alte Küchenuhr Sofa"));
    EXPECT_TRUE(model.IsFavourite(1));
    EXPECT_FALSE(model.IsFavourite(0));
    model.SetRecent({L"verschwunden"});
    EXPECT_EQ(Shown().size(), 4U) << "no heading without symbols";
}

TEST_F(Palette, FindsBeginningsThenNamesThenCategories) {
    model.SetFavourites({L"Sofa"});
    model.SetFilter(L"kuche");
    EXPECT_THAT(Shown(), ElementsAre(L"Gefunden: Küchenzeile Alte Küchenuhr Herd Spüle"));
    model.SetFilter(L"küche sp");
    EXPECT_THAT(Shown(), ElementsAre(L"Gefunden: Spüle"));
    model.SetFilter(L"xyz");
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_TRUE(model.IsFiltered());
    model.SetFilter(L" ");
    EXPECT_EQ(Shown().size(), 4U);
}

TEST_F(Palette, KeepsToACategory) {
    model.SetFavourites({L"Sofa"});
    model.SetCategory(L"Küche");
    EXPECT_THAT(Shown(), ElementsAre(L"Küche: Herd Küchenzeile Spüle"));
    model.SetFilter(L"kuchen");
    EXPECT_THAT(Shown(), ElementsAre(L"Gefunden: Küchenzeile"));
    EXPECT_THAT(model.Categories(), ElementsAre(L"Bad", L"Küche", L"Möbel"));
    model.SetFilter(L"");
    model.SetSymbols({{L"Baum", L""}});
    EXPECT_THAT(Shown(), ElementsAre(L"Ohne Kategorie: Baum"))
        << "a category that is gone is no longer kept to";
}

} // namespace
