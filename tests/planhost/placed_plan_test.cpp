#include "placed_plan.h"
#include "test_catalogue.h"
#include "text.h"

#include <gmock/gmock.h>

#include <vector>

using testing::ElementsAre;
using testing::Optional;

namespace {

constexpr RECT kEverything{-10'000, -10'000, 10'000, 10'000};

PlacedSymbol At(const wchar_t* name, LONG x, double angle = 0) {
    return {name, {x, 100'000}, angle};
}

_CSymbolColl& Catalogue() {
    static const Ptr<_CSymbolColl> catalogue = TestCatalogue();
    return *catalogue.Get();
}

/// A list of symbols, and the same in the library's hands.
struct Both {
    std::vector<PlacedSymbol> symbols;
    PlacedPlan placed{symbols, Catalogue()};
    Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));

    explicit Both(std::vector<PlacedSymbol> first) : symbols(std::move(first)) {
        Check(transformation->SetScale(1000));
    }

    void Exchange(std::size_t first, std::size_t count, const std::vector<PlacedSymbol>& after) {
        const std::span all(symbols);
        placed.Exchange(first, all.subspan(first, count), after, all.subspan(first + count));
        const auto begin = symbols.begin() + static_cast<std::ptrdiff_t>(first);
        symbols.insert(symbols.erase(begin, begin + static_cast<std::ptrdiff_t>(count)), after.begin(),
                       after.end());
    }
    void ExpectSame() const {
        std::size_t next = 0;
        placed.ForEach([&](std::size_t place, _CSymbol& symbol, POINT at, double radians) {
            Bstr name;
            Check(symbol.get_Name(name.Put()));
            ASSERT_EQ(place, next++);
            const PlacedSymbol& expected = symbols.at(place);
            EXPECT_EQ(name.Text(), expected.name);
            EXPECT_EQ(at.x, expected.at.x);
            EXPECT_EQ(at.y, expected.at.y);
            EXPECT_EQ(radians, Radians(expected));
        });
        EXPECT_EQ(next, symbols.size());
        EXPECT_EQ(placed.SymbolsAt({kEverything, false}, *transformation.Get()).size(), symbols.size());
    }
};

} // namespace

TEST(PlacedPlan, FollowsEveryChangeOfTheList) {
    Both both({At(L"Sofa", 100'000), At(L"Herd", 150'000), At(L"Sessel", 400'000)});
    both.ExpectSame();
    both.Exchange(3, 0, {At(L"Herd", 700'000)}); // on top
    both.ExpectSame();
    both.Exchange(1, 0, {At(L"Sessel", 120'000), At(L"Sofa", 5)}); // between others
    both.ExpectSame();
    both.Exchange(0, 2, {}); // removed
    both.ExpectSame();
    both.Exchange(1, 2, {At(L"Herd", 60'000, 90), At(L"Sessel", 400'000, 12.5)}); // moved and turned
    both.ExpectSame();
    both.Exchange(0, 2, {At(L"Herd", 70'000), At(L"Sofa", 100'000)}); // others in their place
    both.ExpectSame();
    both.Exchange(0, 4, {});
    both.ExpectSame();
    both.Exchange(0, 0, {At(L"Sofa", 0)});
    both.ExpectSame();
}

TEST(PlacedPlan, FindsCoveredSymbolsToo) {
    Both both({At(L"Sofa", 100'000), At(L"Sofa", 900'000), At(L"Sofa", 100'000)});
    const auto at = [&](LONG x, LONG y) {
        return both.placed.SymbolsAt({{x, y, x, y}, true}, *both.transformation.Get());
    };
    EXPECT_THAT(at(100, 100), ElementsAre(2u, 0u));
    EXPECT_THAT(at(900, 100), ElementsAre(1u));
    EXPECT_THAT(at(500, 500), ElementsAre());
    EXPECT_THAT(both.placed.TopmostAt({100, 100}, *both.transformation.Get()), Optional(2u));
    both.Exchange(0, 2, {At(L"Sofa", 900'000), At(L"Sofa", 100'000)});
    EXPECT_THAT(at(100, 100), ElementsAre(2u, 1u));
    EXPECT_EQ(both.placed.TopmostAt({500, 500}, *both.transformation.Get()), std::nullopt);
}

TEST(PlacedPlan, CatchesTheNearestPointOfAll) {
    const PlacedPlan alone({At(L"Herd", 104'000)}, Catalogue());
    Both both({At(L"Herd", 104'000), At(L"Herd", 100'000)});
    _CTrans& transformation = *both.transformation.Get();
    const std::optional<POINT> point = alone.Catch({104, 100}, 100, transformation);
    ASSERT_TRUE(point.has_value());
    // The upper one has a point near it as well.
    const POINT pixel{point->x / 1000, point->y / 1000};
    const std::optional<POINT> nearest = both.placed.Catch(pixel, 12, transformation);
    ASSERT_TRUE(nearest.has_value());
    EXPECT_EQ(nearest->x, point->x);
    EXPECT_EQ(nearest->y, point->y);
    EXPECT_FALSE(both.placed.Catch({-500, 100}, 12, transformation).has_value());
}

TEST(PlacedPlan, ANameThatNobodyHasFails) {
    EXPECT_THROW(PlacedPlan({At(L"Einhorn", 0)}, Catalogue()), Failure);
}
