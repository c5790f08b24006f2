#include "editor/palette_text.h"

#include <gtest/gtest.h>

namespace {

TEST(PaletteText, FoldsAccents) {
    EXPECT_EQ(Folded(L"Küchenzeile ÄÖÜß"), L"kuchenzeile aouss");
    EXPECT_EQ(Folded(L"Crème brûlée, Ærø, Łódź, Œuvre, ÿ×÷Þ"), L"creme brulee, aero, lodz, oeuvre, y×÷th");
    EXPECT_EQ(Folded(L"u\u0308ber"), L"uber");
    EXPECT_EQ(Folded(L"\u0132\u0178\u017E\u017F\u0180"), L"ijyzs\u0180");
}

TEST(PaletteText, FindsWords) {
    const struct {
        const wchar_t* text;
        const wchar_t* typed;
        bool found;
    } cases[] = {
        {L"Küchenzeile", L"kuche", true},     {L"Küchenzeile", L"KÜCHE", true},
        {L"Küchenzeile", L"kueche", true},    {L"Küchenzeile", L"zeile kü", true},
        {L"Küchenzeile", L"  ", true},        {L"Küchenzeile", L"kuche herd", false},
        {L"Bett 140", L"140  bett", true},    {L"Bett 140", L"bett140", false},
        {L"Müller Öl", L"oel mueller", true}, {L"Tür links", L"turlinks", false},
        {L"Maßstab", L"massstab", true},      {L"Maßstab", L"maß", true},
    };
    for (const auto& [text, typed, found] : cases)
        EXPECT_EQ(HasWords(SearchText(text), FilterWords(typed)), found) << typed;
}

} // namespace
