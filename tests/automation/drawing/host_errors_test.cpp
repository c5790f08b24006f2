#include "drawing/drawing_fixture.h"
#include "drawing/host_trans.h"
#include "support/missing_member.h"

#include <utility>

/// Errors of the host's own objects, and hosts that call back while they are being drawn on.

namespace {

using namespace drawing;
using support::Dispatch;
using support::ElementSpec;
using support::Failure;
using support::FontSpec;

const std::vector<ElementSpec> kElements{
    {.type = symPoly,
     .points = {{10, 10}, {200, 40}, {90, 210}},
     .lineWidth = 3,
     .closed = true,
     .fillColor = kGreen,
     .mainColor = kRed},
    {.type = symCircle, .points = {{120, 120}}, .lineWidth = 2, .mainColor = kBlue, .radius = 60},
    {.type = symText,
     .points = {{30, 180}},
     .mainColor = kRed,
     .text = L"Bad",
     .font = FontSpec{.size = 24}}};

const Failure kFailures[] = {
    {support::Numbered(481), L"Gastgeber.Zeichenfläche", L"Ungültiges Bild"},
    {E_ACCESSDENIED, L"Gastgeber", L"Heute nicht"},
    {MAKE_HRESULT(SEVERITY_ERROR, FACILITY_ITF, 0x1234), L"Anderswo", L"Eigene Nummer"},
    {E_OUTOFMEMORY, L"Gastgeber.Puffer", L"Kein Platz für das Bild"}};

class HostErrors : public DrawingTest {
protected:
    HostErrors() { view = {1, 0, 0}; }

    HRESULT Draw(_CSymbol* target, IDispatch* surface) const {
        return target->Draw(0, 0, 0, surface, trans.Get(), 1, 1, nullptr);
    }
    /// The outcomes of drawing the symbol, one element and all elements, early and late bound, in a fresh
    /// environment each.
    template <class Arrange>
    void ExpectFromAll(const Failure& failure, Arrange&& arrange, const std::string& what) {
        const auto element = support::NewElement(kElements[2]);
        const auto elements = support::NewElements(kElements);
        const auto early = [&](auto&& draw) {
            arrange();
            const HRESULT status = draw();
            EXPECT_EQ(support::Outcome(status), failure) << what;
        };
        early([&] { return Draw(symbol.Get(), box.Get()); });
        early([&] { return element->Draw(box.Get(), trans.Get()); });
        early([&] { return elements->Draw(box.Get(), trans.Get()); });
        arrange();
        EXPECT_EQ(Dispatch(symbol).Call(L"Draw", {0, 0, 0.0, box, trans, 1.0, 1.0}).failure, failure) << what;
        arrange();
        EXPECT_EQ(Dispatch(element).Call(L"Draw", {box, trans}).failure, failure) << what;
        arrange();
        EXPECT_EQ(Dispatch(elements).Call(L"Draw", {box, trans}).failure, failure) << what;
    }
    /// What the three elements look like.
    void DrawExpected() {
        expected.UsePen(PS_INSIDEFRAME, 3, kRed);
        expected.UseBrush(kGreen);
        Closed({{10, 10}, {200, 40}, {90, 210}});
        expected.UsePen(PS_SOLID, 2, kBlue);
        expected.UseNoBrush();
        Circle({120, 120}, 60);
        expected.UseFont(24);
        SetTextColor(Dc(), kRed);
        SetBkMode(Dc(), TRANSPARENT);
        Text({30, 180}, "Bad");
    }

    Ref<HostTrans> trans = HostTrans::Create();
    Ref<_CSymbol> symbol = support::NewSymbol(0, 0, 240, 240, kElements);
};

TEST_F(HostErrors, OfASurfaceReachTheCallerUnchanged) {
    for (const Failure& failure : kFailures) {
        for (const char* access : {"get hDC", "put ForeColor"})
            ExpectFromAll(
                failure,
                [&] {
                    StartAgain();
                    box->Fail(access, failure);
                },
                access);
        for (const char* access : {"get DrawMode", "get Name", "put DrawWidth", "put DrawStyle",
                                   "put FillColor", "put FillStyle"}) {
            StartAgain();
            box->Fail(access, failure);
            const HRESULT status = Draw(symbol.Get(), box.Get());
            EXPECT_EQ(support::Outcome(status), failure) << access;
            EXPECT_EQ(Dispatch(symbol).Call(L"Draw", {0, 0, 0.0, box, trans, 1.0, 1.0}).failure, failure)
                << access;
        }
    }
}

TEST_F(HostErrors, OfATransformationReachTheCallerUnchanged) {
    for (const Failure& failure : kFailures) {
        for (const char* operation : {"WorldToScreen", "FontSizeToScreen"})
            ExpectFromAll(
                failure,
                [&] {
                    StartAgain();
                    trans->Fail(operation, failure);
                },
                operation);
        trans->Fail("WorldToScreen", failure);
        VARIANT_BOOL hit = VARIANT_FALSE;
        LONG x = 7;
        LONG y = 8;
        float cursorX = 1;
        float cursorY = 2;
        HRESULT status = symbol->ObjIdentByPt(0, 0, 0, trans.Get(), 5, 5, &hit);
        EXPECT_EQ(support::Outcome(status), failure);
        status = symbol->CatchPt(&cursorX, &cursorY, &x, &y, 0, 0, 0, trans.Get(), 5, &hit);
        EXPECT_EQ(support::Outcome(status), failure);
        EXPECT_EQ(x, 7);
        EXPECT_EQ(cursorX, 1);
        EXPECT_EQ(Dispatch(symbol).Call(L"ObjIdentByPt", {0, 0, 0.0, trans, 5, 5}).failure, failure);
        status = support::NewElement(kElements[0])->DrawTracker(box.Get(), trans.Get());
        EXPECT_EQ(support::Outcome(status), failure);
    }
}

TEST_F(HostErrors, TextsThatNobodyAnswersForAreNotTaken) {
    trans->AnswerForNothing();
    for (const Failure& failure : kFailures) {
        trans->Fail("WorldToScreen", failure);
        VARIANT_BOOL hit = VARIANT_FALSE;
        const Failure seen = support::Outcome(symbol->ObjIdentByPt(0, 0, 0, trans.Get(), 5, 5, &hit));
        EXPECT_EQ(seen.status, failure.status);
        EXPECT_EQ(seen.source, L"QSymbol");
        EXPECT_NE(seen.description, failure.description);
        EXPECT_NE(seen.description, L"");
    }
}

TEST_F(HostErrors, AnOlderErrorsTextsAreNotTaken) {
    support::Throw(kFailures[0]); // nobody has read it
    trans->FailWordless("WorldToScreen", E_ACCESSDENIED);
    VARIANT_BOOL hit = VARIANT_FALSE;
    const Failure seen = support::Outcome(symbol->ObjIdentByPt(0, 0, 0, trans.Get(), 5, 5, &hit));
    EXPECT_EQ(seen.status, E_ACCESSDENIED);
    EXPECT_EQ(seen.source, L"QSymbol");
    EXPECT_NE(seen.description, kFailures[0].description);
}

TEST_F(HostErrors, EndTheDrawingWhereTheyHappen) {
    trans->Fail("FontSizeToScreen", kFailures[0]);
    drawn.UseFont(50);
    const HGDIOBJ font = GetCurrentObject(drawn.Dc(), OBJ_FONT);
    const HRESULT status = Draw(symbol.Get(), box.Get());
    EXPECT_EQ(support::Outcome(status), kFailures[0]);
    expected.UsePen(PS_INSIDEFRAME, 3, kRed);
    expected.UseBrush(kGreen);
    Closed({{10, 10}, {200, 40}, {90, 210}});
    expected.UsePen(PS_SOLID, 2, kBlue);
    expected.UseNoBrush();
    Circle({120, 120}, 60);
    ExpectSame(); // what comes before the text
    EXPECT_EQ(GetCurrentObject(drawn.Dc(), OBJ_FONT), font);
}

TEST_F(HostErrors, ASurfaceWithoutTheProperties) {
    const Failure missing = support::MissingMember(L"CSymbol.hDC");
    HRESULT status = Draw(symbol.Get(), symbol.Get());
    EXPECT_EQ(support::Outcome(status), missing);
    status = support::NewElement(kElements[0])->Draw(symbol.Get(), trans.Get());
    EXPECT_EQ(support::Outcome(status), missing);
}

/// The host does something at each put and each conversion; the picture is that of the beginning.
class CallingBack : public HostErrors {
protected:
    /// Draws while the action runs again and again; returns how often it ran.
    template <class Action, class Drawing>
    int During(Action&& action, Drawing&& drawing) {
        int calls = 0;
        bool busy = false;
        const auto unlessBusy = [&] {
            if (std::exchange(busy, true))
                return;
            ++calls;
            action();
            busy = false;
        };
        box->OnAccess([&](const std::string& access) {
            if (access.starts_with("put"))
                unlessBusy();
        });
        trans->OnCall(unlessBusy);
        EXPECT_OK(drawing());
        box->OnAccess({});
        trans->OnCall({});
        return calls;
    }
    template <class Action>
    void ExpectRightPicture(Action&& action) {
        EXPECT_GT(During(action, [&] { return Draw(symbol.Get(), box.Get()); }), 10);
        DrawExpected();
        ExpectSame();
    }
};

TEST_F(CallingBack, WithCreateNewOnTheSymbolBeingDrawn) {
    const auto other = support::NewElements({kElements[1]});
    ExpectRightPicture([&] { EXPECT_OK(symbol->CreateNew(5, 6, 7, 8, other.Get())); });
    EXPECT_EQ(support::ElementsOf(symbol.Get()).size(), 1U);
}

TEST_F(CallingBack, WithReadFromFileOnTheSymbolBeingDrawn) {
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"zurueckgerufen.syb";
    DeleteFileW(path.c_str());
    const auto stored = support::NewSymbol(1, 2, 3, 4, {kElements[2], kElements[1]});
    EXPECT_OK(stored->put_FilePath(support::Bstr(path)));
    EXPECT_OK(stored->Write2File());
    EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
    ExpectRightPicture([&] { EXPECT_OK(symbol->ReadFromFile()); });
    EXPECT_EQ(support::ElementsOf(symbol.Get()).size(), 2U);
    EXPECT_TRUE(DeleteFileW(path.c_str()));
}

TEST_F(CallingBack, WithAnotherDrawingOnAnotherSurface) {
    const auto other = support::NewSymbol(
        0, 0, 10, 10,
        {{.type = symPoly, .points = {{1, 1}, {9, 1}, {9, 9}, {5, 5}, {1, 9}, {0, 0}}, .mainColor = kGreen},
         kElements[2]});
    support::Canvas aside;
    const auto second = support::PictureBox::Create(aside, L"GraphicBox");
    ExpectRightPicture([&] {
        EXPECT_OK(other->Draw(50, 50, 1, second.Get(), support::NewTrans().Get(), 2, 3, nullptr));
        EXPECT_OK(symbol->Draw(9, 9, 2, second.Get(), support::NewTrans().Get(), 2, 3, nullptr));
    });
    EXPECT_TRUE(support::IsDrawnOn(aside));
}

TEST_F(CallingBack, WithInitOfTheElementBeingDrawn) {
    const auto element = support::NewElement(kElements[1]);
    EXPECT_GT(
        During([&] { EXPECT_OK(element->Init()); }, [&] { return element->Draw(box.Get(), trans.Get()); }),
        5);
    expected.UsePen(PS_SOLID, 2, kBlue);
    expected.UseNoBrush();
    Circle({120, 120}, 60);
    ExpectSame();
    LONG type = -1;
    EXPECT_OK(element->get_ElementType(reinterpret_cast<SymElementTypeConstants*>(&type)));
    EXPECT_EQ(type, symUndefined);
}

TEST_F(CallingBack, WithClearOfTheCollectionBeingDrawn) {
    const auto elements = support::NewElements({kElements[1], kElements[2]});
    EXPECT_GT(
        During([&] { EXPECT_OK(elements->Clear()); }, [&] { return elements->Draw(box.Get(), trans.Get()); }),
        5);
    expected.UsePen(PS_SOLID, 2, kBlue);
    expected.UseNoBrush();
    Circle({120, 120}, 60);
    expected.UseFont(24);
    SetTextColor(Dc(), kRed);
    SetBkMode(Dc(), TRANSPARENT);
    Text({30, 180}, "Bad");
    ExpectSame();
    LONG count = -1;
    EXPECT_OK(elements->get_Count(&count));
    EXPECT_EQ(count, 0);
}

} // namespace
