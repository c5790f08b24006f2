#include "plan/plan_fixture.h"

#include "support/enumerate.h"

namespace plan {

Ref<_CSymbol> NewPlanSymbol(int kind) {
    static const std::vector<support::ElementSpec> kElements[] = {
        {{.type = symPoly,
          .points = {{0, 0}, {400, 0}, {400, 300}, {0, 300}},
          .closed = true,
          .fillColor = 0x60C0F0},
         {.type = symCircle, .points = {{200, 150}}, .mainColor = 0x3030C0, .radius = 90}},
        {{.type = symArc,
          .points = {{0, 0}, {250, 0}, {0, 250}},
          .lineWidth = 30,
          .mainColor = 0x208020,
          .radius = 250},
         {.type = symPoly, .points = {{-300, 40}, {350, 80}}, .mainColor = 0x802020}},
        {{.type = symText,
          .points = {{20, 30}},
          .mainColor = 0x404040,
          .text = L"Herd",
          .font = support::FontSpec{.size = 14},
          .textAngle = 0.3},
         {.type = symPoly, .points = {{0, 0}, {500, 0}}}}};
    static const RECT kBoxes[] = {{200, 150, 400, 300}, {10, -20, 250, 200}, {0, 0, 500, 0}};
    const RECT& box = kBoxes[kind];
    const auto symbol = support::NewSymbol(box.left, box.top, box.right, box.bottom, kElements[kind]);
    EXPECT_OK(
        symbol->put_FilePath(Bstr(std::wstring(L"C:\\") + static_cast<wchar_t>(L'A' + kind) + L".syb")));
    return symbol;
}

PlanTest::PlanTest()
    : catalogue(support::Create<CSymbolColl, _CSymbolColl>()), plan(support::Create<CPlan, _CPlan>()) {
    for (int kind = 0; kind < 3; ++kind) {
        symbols.push_back(NewPlanSymbol(kind));
        Ref<_CSymbol> given = symbols.back();
        EXPECT_OK(catalogue->AppendRef(given.InOut()));
    }
    EXPECT_OK(plan->putref_Symbols(catalogue.Get()));
    // Hits and extents follow the last drawing, that of another test too.
    EXPECT_OK(symbols[0]->Draw(0, 0, 0, nullptr, nullptr, 1, 1, nullptr));
}

LONG PlanTest::Add(const wchar_t* name, LONG x, LONG y, double angle) const {
    Ref<_CPlacement> placement;
    EXPECT_OK(plan->Add(Bstr(name), x, y, angle, placement.Put()));
    return IdOf(placement.Get());
}

LONG PlanTest::HitTest(_CTrans* trans, LONG x, LONG y) const {
    Ref<_CPlacement> hit;
    EXPECT_OK(plan->HitTest(trans, x, y, hit.Put()));
    return IdOf(hit.Get());
}

std::vector<LONG> PlanTest::HitRect(_CTrans* trans, const RECT& rect) const {
    Ref<_CPlacementColl> hits;
    EXPECT_OK(plan->HitRect(trans, NewRect(rect).Get(), hits.Put()));
    LONG count = 0;
    EXPECT_OK(hits->get_Count(&count));
    std::vector<LONG> ids;
    for (LONG i = 1; i <= count; ++i) {
        Ref<_CPlacement> hit;
        EXPECT_OK(hits->get_ItemByPos(i, hit.Put()));
        ids.push_back(IdOf(hit.Get()));
    }
    return ids;
}

Caught PlanTest::CatchPt(_CTrans* trans, float x, float y, SHORT range) const {
    Caught caught{false, x, y, -1, -2};
    VARIANT_BOOL isCaught = VARIANT_TRUE;
    EXPECT_OK(plan->CatchPt(&caught.x, &caught.y, &caught.worldX, &caught.worldY, trans, range, &isCaught));
    caught.isCaught = isCaught != VARIANT_FALSE;
    return caught;
}

std::vector<LONG> PlanTest::Ids() const {
    std::vector<LONG> ids;
    for (const support::Value& item : support::RestOf(support::EnumeratorOf(plan.Get()).Get()))
        ids.push_back(IdOf(item.As<_CPlacement>().Get()));
    return ids;
}

Ref<_CPlacement> PlanTest::ById(LONG id) const {
    Ref<_CPlacement> placement;
    EXPECT_OK(plan->get_ItemById(id, placement.Put()));
    return placement;
}

LONG PlanTest::Count() const {
    LONG count = -1;
    EXPECT_OK(plan->get_Count(&count));
    return count;
}

LONG IdOf(_CPlacement* placement) {
    LONG id = 0;
    if (placement != nullptr) {
        EXPECT_OK(placement->get_Id(&id));
    }
    return id;
}

Ref<_CRect> NewRect(const RECT& rect) {
    const auto made = support::Create<CRect, _CRect>();
    EXPECT_OK(made->put_Left(rect.left));
    EXPECT_OK(made->put_Top(rect.top));
    EXPECT_OK(made->put_Right(rect.right));
    EXPECT_OK(made->put_Bottom(rect.bottom));
    return made;
}

std::optional<RECT> Edges(_CRect* rect) {
    if (rect == nullptr)
        return std::nullopt;
    RECT edges{};
    EXPECT_OK(rect->get_Left(&edges.left));
    EXPECT_OK(rect->get_Top(&edges.top));
    EXPECT_OK(rect->get_Right(&edges.right));
    EXPECT_OK(rect->get_Bottom(&edges.bottom));
    return edges;
}

} // namespace plan
