#include "support/automation_test.h"
#include "support/host_trans.h"
#include "support/picture_box.h"
#include "support/shapes.h"

namespace {

using support::Canvas;
using support::Dispatch;
using support::Failure;
using support::HostFailure;
using support::HostTrans;
using support::Numbered;
using support::Outcome;
using support::PictureBox;
using support::Ref;
using support::RunTimeError;
using support::Value;

/// Errors of the host's own objects reach the host as they were raised.
class HostErrors : public support::AutomationTest {
protected:
    HRESULT Draw(_CTrans* with) const {
        return symbol->Draw(0, 0, 0, const_cast<PictureBox*>(&box), with, 1, 1, nullptr);
    }
    Failure DrawLate(_CTrans* with) const {
        return Dispatch(symbol)
            .Call(L"Draw", {0, 0, 0.0, Value(const_cast<PictureBox*>(&box)), Value(with), 1.0, 1.0})
            .failure;
    }

    Canvas canvas{60, 60};
    PictureBox box{canvas};
    Ref<_CTrans> trans = support::NewTrans();
    Ref<_CSymbol> symbol =
        support::NewSymbol(0, 0, 50, 50, {{.type = symPoly, .points = {{5, 5}, {40, 5}, {40, 40}}}});
};

const HostFailure kNumbered{
    .number = 1234, .status = S_OK, .source = L"Plan.Form1", .description = L"Kein Stift da"};
const Failure kSeen{Numbered(1234), L"Plan.Form1", L"Kein Stift da"};

TEST_F(HostErrors, OfASurfaceProperty) {
    for (const char* const use : {"get hDC", "get DrawMode", "get Name", "put ForeColor", "put DrawWidth",
                                  "put DrawStyle", "put FillColor", "put FillStyle"}) {
        PictureBox failing(canvas);
        failing.FailOn(use, kNumbered);
        EXPECT_EQ(Outcome(symbol->Draw(0, 0, 0, &failing, trans.Get(), 1, 1, nullptr)), kSeen) << use;
    }
    box.FailOn("put DrawWidth", kNumbered);
    EXPECT_EQ(DrawLate(trans.Get()), kSeen);
}

TEST_F(HostErrors, WithAStatusInsteadOfANumber) {
    box.FailOn("put ForeColor",
               {.number = 0, .status = E_ACCESSDENIED, .source = L"Plan", .description = L"gesperrt"});
    EXPECT_EQ(Outcome(Draw(trans.Get())), (Failure{E_ACCESSDENIED, L"Plan", L"gesperrt"}));
    EXPECT_EQ(DrawLate(trans.Get()), (Failure{E_ACCESSDENIED, L"Plan", L"gesperrt"}));
}

TEST_F(HostErrors, WithoutTexts) {
    box.FailOn("put ForeColor", {.number = 5, .status = S_OK, .source = {}, .description = {}});
    const Failure failure = Outcome(Draw(trans.Get()));
    EXPECT_EQ(failure.status, Numbered(5));
    EXPECT_NE(failure.source, L"");
    EXPECT_NE(failure.description, L"") << "a client cannot tell the user nothing";
}

TEST_F(HostErrors, OfATransformation) {
    HostTrans failing;
    failing.Fail(kNumbered);
    EXPECT_EQ(Outcome(Draw(&failing)), kSeen);
    EXPECT_EQ(DrawLate(&failing), kSeen);
    failing.Fail(
        {.number = 0, .status = E_FAIL, .source = L"Plan.CMeinTrans", .description = L"Maßstab fehlt"});
    EXPECT_EQ(Outcome(Draw(&failing)), (Failure{E_FAIL, L"Plan.CMeinTrans", L"Maßstab fehlt"}));
}

TEST_F(HostErrors, ATransformationOfTheHostsOwnIsUsed) {
    HostTrans own;
    EXPECT_OK(symbol->Draw(-100, -200, 0, &box, &own, 1, 1, nullptr));
    EXPECT_EQ(own.Calls(), 3) << "one call for each point";
    EXPECT_EQ(canvas.Pixel(5, 5), 0U);
    EXPECT_EQ(canvas.Pixel(40, 30), 0U);
}

TEST_F(HostErrors, AMemberThatTheSurfaceDoesNotHave) {
    box.Remove(L"DrawStyle");
    EXPECT_EQ(Outcome(Draw(trans.Get())), RunTimeError(438));
    EXPECT_EQ(DrawLate(trans.Get()), RunTimeError(438));
}

TEST_F(HostErrors, APropertyOfTheWrongType) {
    box.Set(L"hDC", L"kein Gerätekontext");
    EXPECT_EQ(Outcome(Draw(trans.Get())), RunTimeError(13));
}

TEST_F(HostErrors, AnEarlierErrorIsNotTakenForTheNextOne) {
    box.FailOn("put ForeColor", kNumbered);
    EXPECT_EQ(Outcome(Draw(trans.Get())), kSeen);
    HostTrans silent; // fails without any error information
    class Bare final : public IDispatch {
    public:
        STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
        STDMETHODIMP_(ULONG) AddRef() override { return 1; }
        STDMETHODIMP_(ULONG) Release() override { return 1; }
        STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
        STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
        STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* ids) override {
            *ids = 1;
            return S_OK;
        }
        STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
            return E_ACCESSDENIED;
        }
    } bare;
    SetErrorInfo(0, nullptr);
    const Failure failure = Outcome(symbol->Draw(0, 0, 0, &bare, trans.Get(), 1, 1, nullptr));
    EXPECT_EQ(failure.status, E_ACCESSDENIED);
    EXPECT_EQ(failure.source, L"QSymbol");
    EXPECT_NE(failure.description, kSeen.description);
}

} // namespace
