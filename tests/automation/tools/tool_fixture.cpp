#include "tools/tool_fixture.h"

namespace tools {

namespace {

using drawing::kBlue;
using drawing::kGreen;
using drawing::kRed;
using support::ElementSpec;
using support::FontSpec;

} // namespace

Ref<_CSymbol> EverySort() {
    const FontSpec plain{.size = 24};
    const FontSpec rich{
        .name = L"Times New Roman", .size = 24, .bold = true, .italic = true, .underline = true};
    const FontSpec struck{.size = 6, .strikethrough = true};
    return support::NewSymbol(
        100, 100, 600, 400,
        {{.type = symPoly, .points = {{0, 0}, {600, 0}, {600, 400}}, .lineWidth = 40, .mainColor = kRed},
         {.type = symPoly, .points = {{0, 0}, {300, 200}, {0, 400}}, .closed = true, .fillColor = kGreen},
         {.type = symPoly,
          .points = {{100, 50}, {500, 60}, {450, 350}},
          .lineWidth = 30,
          .closed = true,
          .fillColor = kBlue,
          .mainColor = kRed},
         {.type = symPoly, .points = {{50, 50}, {90, 390}, {400, 10}}, .closed = true, .mainColor = kGreen},
         {.type = symCircle, .points = {{300, 200}}, .fillColor = kRed, .mainColor = kBlue, .radius = 150},
         {.type = symCircle, .points = {{350, 150}}, .lineWidth = 50, .mainColor = kGreen, .radius = 90},
         {.type = symArc,
          .points = {{200, 200}, {380, 200}, {200, 20}},
          .lineWidth = 20,
          .mainColor = kRed,
          .radius = 180},
         {.type = symText, .points = {{50, 100}}, .mainColor = kBlue, .text = L"Bad", .font = plain},
         {.type = symText,
          .points = {{300, 300}},
          .mainColor = kRed,
          .text = L"Übergröße",
          .font = rich,
          .textAngle = 0.5,
          .textAlign = TA_CENTER,
          .textBkMode = 2},
         {.type = symText, .points = {{0, 380}}, .text = L"2,10 m", .font = struck, .textBkMode = 2}});
}

Ref<_CSymbol> LinesOnly() {
    return support::NewSymbol(
        0, 0, 400, 200,
        {{.type = symPoly, .points = {{0, 0}, {400, 0}, {400, 200}}, .lineWidth = 30, .mainColor = kRed},
         {.type = symPoly, .points = {{20, 20}, {300, 150}, {50, 180}}, .closed = true, .fillColor = kGreen},
         {.type = symCircle, .points = {{200, 100}}, .mainColor = kBlue, .radius = 120}});
}

Ref<_CSymInput> ToolTest::InputFor(const Ref<_CSymbol>& symbol) {
    EXPECT_OK(symbol->put_FilePath(support::Bstr(L"C:\\Katalog\\Bett.syb")));
    const Ref<_CSymbolColl> catalogue = support::Create<CSymbolColl, _CSymbolColl>();
    Ref<_CSymbol> handed = symbol;
    EXPECT_OK(catalogue->AppendRef(handed.InOut()));
    Ref<_CSymInput> input;
    EXPECT_OK(catalogue->GetSymInput(support::Bstr(L"Bett"), input.Put()));
    return input;
}

void ToolTest::DrawPlainly(const Ref<_CSymbol>& symbol, LONG x, LONG y, double angle) const {
    LONG noMark = -1;
    EXPECT_OK(symbol->Draw(x, y, angle, plainBox.Get(), trans.Get(), 1, 1, &noMark));
}

} // namespace tools
