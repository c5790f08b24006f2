#include "catalogue/catalogue_fixture.h"
#include "drawing/drawing_fixture.h"
#include "support/basic_collection.h"
#include "support/foreign_symbol.h"
#include "support/servers.h"

#include <functional>
#include <utility>

/// Hosts that let go of everything, or close their form, while a message box of the library is open.

namespace {

using support::Bstr;
using support::MessageBoxes;
using support::Ref;

const support::Failure kFailure{support::Numbered(1000), L"Plan", L"Geht nicht"};

class OpenBox : public catalogue::CatalogueTest {
protected:
    OpenBox() {
        support::WriteBytes(folder / L"da.syt", "x");
        AddBrokenFile(L"kaputt.syb");
        support::WriteLines(folder / L"fremd.wsc", {"BLT 120 80 0 0 0", "XYZ 1 2", "END"});
        surface->Fail("get", kFailure);
        refusing->RefuseQuestions(kFailure);
    }

    support::Canvas canvas;
    Ref<support::PictureBox> surface = support::PictureBox::Create(canvas);
    Ref<support::ForeignSymbol> refusing = support::ForeignSymbol::Create(L"Stur");
};

/// What the host calls; it gives its only reference away to be dropped while the box is open.
struct Road {
    const char* name;
    int answer;
    std::function<std::function<void()>(Ref<IDispatch>& only)> arrange;
};

template <class T>
T* Keep(Ref<IDispatch>& only, const Ref<T>& object) {
    only = Ref<IDispatch>(object.Get());
    return object.Get();
}

class OpenBoxRoads : public OpenBox {
protected:
    std::vector<Road> Roads() {
        const auto element = [](auto&& ask) {
            return [ask](Ref<IDispatch>& only) -> std::function<void()> {
                auto* const one = Keep(only, support::NewElement({.points = {{1, 2}}}));
                return [=] { ask(one); };
            };
        };
        const auto elements = [](auto&& ask) {
            return [ask](Ref<IDispatch>& only) -> std::function<void()> {
                auto* const all = Keep(only, support::NewElements({{.points = {{1, 2}}}}));
                return [=] { ask(all); };
            };
        };
        const auto file = [this](const wchar_t* name, HRESULT (STDMETHODCALLTYPE _CSymbol::*member)()) {
            return [=, this](Ref<IDispatch>& only) -> std::function<void()> {
                auto* const symbol = Keep(only, support::NewSymbolAt(folder / name));
                return [=] { (symbol->*member)(); };
            };
        };
        const auto loading = [](auto&& load) {
            return [load](Ref<IDispatch>& only) -> std::function<void()> {
                auto* const coll = Keep(only, support::Create<CSymbolColl, _CSymbolColl>());
                return [=] { load(coll); };
            };
        };
        const auto path = std::make_shared<Bstr>(folder.Path());
        return {{"CSymElement.ObjIdentByPt", IDOK, element([](_CSymElement* one) {
                     VARIANT_BOOL hit = 7;
                     EXPECT_OK(one->ObjIdentByPt(nullptr, 0, 0, &hit));
                     EXPECT_EQ(hit, VARIANT_FALSE);
                 })},
                {"CSymElement.PtIdent", IDOK, element([](_CSymElement* one) {
                     Ref<_CPt> pt;
                     EXPECT_OK(one->PtIdent(nullptr, 0, 0, pt.Put()));
                 })},
                {"CSymElementColl.ObjIdentByPt", IDOK, elements([](_CSymElementColl* all) {
                     Ref<_CSymElement> hit;
                     EXPECT_OK(all->ObjIdentByPt(nullptr, 0, 0, hit.Put()));
                 })},
                {"CSymElementColl.PtIdent", IDOK, elements([](_CSymElementColl* all) {
                     Ref<_CSymElement> hit;
                     Ref<_CPt> pt;
                     VARIANT_BOOL found = 7;
                     EXPECT_OK(all->PtIdent(nullptr, 0, 0, hit.InOut(), pt.InOut(), &found));
                 })},
                {"CSymbol.ReadFromFile", IDOK, file(L"fremd.wsc", &_CSymbol::ReadFromFile)},
                {"CSymbol.Write2File", IDYES, file(L"da.syt", &_CSymbol::Write2File)},
                {"CSymbol.Draw2PBox", IDOK,
                 [this](Ref<IDispatch>& only) -> std::function<void()> {
                     auto* const symbol = Keep(only, support::NewSymbol());
                     return [=, this] { EXPECT_OK(symbol->Draw2PBox(surface.Get())); };
                 }},
                {"CSymTool.KeyUp", IDOK,
                 [this](Ref<IDispatch>& only) -> std::function<void()> {
                     auto* const tool = Keep(only, support::Create<CSymTool, _CSymTool>());
                     return [=, this] { EXPECT_OK(tool->KeyUp(104, 0, surface.Get(), nullptr)); };
                 }},
                {"CSymbolColl.ReadKatalog", IDIGNORE,
                 loading([path](_CSymbolColl* coll) { EXPECT_OK(coll->ReadKatalog(*path)); })},
                {"CSymbolColl.ReadListe", IDIGNORE, loading([path](_CSymbolColl* coll) {
                     VARIANT_BOOL done = 7;
                     const auto list = support::BasicCollection::Create({L"KAPUTT"});
                     EXPECT_OK(coll->ReadListe(*path, list.Get(), &done));
                     EXPECT_EQ(done, VARIANT_TRUE);
                 })},
                {"CSymbolColl.GetSymInput", IDOK, [this](Ref<IDispatch>& only) -> std::function<void()> {
                     const auto coll = support::Create<CSymbolColl, _CSymbolColl>();
                     Ref<_CSymbol> foreign(refusing.Get());
                     EXPECT_OK(coll->AppendRef(foreign.InOut()));
                     auto* const raw = Keep(only, coll);
                     return [=] {
                         Ref<_CSymInput> input;
                         EXPECT_OK(raw->GetSymInput(Bstr(L"Stur"), input.Put()));
                         EXPECT_FALSE(input);
                     };
                 }}};
    }
};

TEST_F(OpenBoxRoads, TheHostMayLetGoOfTheCalledObject) {
    symbols.Reset();
    for (const Road& road : Roads()) {
        SCOPED_TRACE(road.name);
        Ref<IDispatch> only;
        const std::function<void()> call = road.arrange(only);
        MessageBoxes boxes{road.answer};
        boxes.whileOpen = [&] {
            only.Reset();
            EXPECT_EQ(support::QSymbolServer().CanUnloadNow(), S_FALSE) << "the called object is gone";
        };
        call();
        EXPECT_EQ(boxes.Seen().size(), 1U);
        EXPECT_EQ(support::QSymbolServer().CanUnloadNow(), S_OK) << "somebody forgot to let go";
    }
}

/// The box goes with its owner; the call ends.
TEST_F(OpenBoxRoads, TheFormMayClose) {
    symbols.Reset();
    for (const Road& road : Roads()) {
        SCOPED_TRACE(road.name);
        const HWND form = CreateWindowExW(0, L"STATIC", L"Planer", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 80,
                                          500, 400, nullptr, nullptr, nullptr, nullptr);
        SetActiveWindow(form);
        Ref<IDispatch> only;
        const std::function<void()> call = road.arrange(only);
        MessageBoxes boxes{road.answer};
        boxes.whileOpen = [&] {
            only.Reset();
            DestroyWindow(form);
        };
        call();
        EXPECT_EQ(boxes.Seen().size(), 1U);
        EXPECT_EQ(support::QSymbolServer().CanUnloadNow(), S_OK) << "somebody forgot to let go";
    }
}

} // namespace
