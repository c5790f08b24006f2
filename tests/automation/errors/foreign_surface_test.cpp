#include "support/automation_test.h"
#include "support/shapes.h"

#include <oleauto.h>

#include <functional>

namespace {

using support::Failure;
using support::Numbered;
using support::Outcome;
using support::Ref;
using support::RunTimeError;
using support::Value;

/// A surface of whatever make: every member's answer is the test's. It knows every name but one.
class Surface final : public IDispatch {
public:
    std::function<HRESULT(WORD flags, VARIANT* result, EXCEPINFO* exception)> answer;
    std::wstring unknown;

    Surface() = default;
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;
    virtual ~Surface() { EXPECT_EQ(references_, 0U) << "the surface is still held"; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IDispatch;
        *object = known ? this : nullptr;
        if (known)
            AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override { return --references_; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        ids[0] = names[0] == unknown ? DISPID_UNKNOWN : 1;
        return names[0] == unknown ? DISP_E_UNKNOWNNAME : S_OK;
    }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD flags, DISPPARAMS*, VARIANT* result, EXCEPINFO* exception,
                        UINT*) override {
        return answer(flags, result, exception);
    }

private:
    ULONG references_ = 0;
};

HRESULT Raise(EXCEPINFO* exception, WORD number, const wchar_t* source, const wchar_t* description) {
    *exception = {};
    exception->wCode = number;
    exception->bstrSource = SysAllocString(source);
    exception->bstrDescription = SysAllocString(description);
    return DISP_E_EXCEPTION;
}

HRESULT STDAPICALLTYPE FillInLate(EXCEPINFO* exception) {
    Raise(exception, 77, L"Spät", L"erst jetzt");
    return S_OK;
}

class ForeignSurface : public support::AutomationTest {
protected:
    Failure Draw() const {
        return Outcome(symbol->Draw(0, 0, 0, const_cast<Surface*>(&surface), trans.Get(), 1, 1, nullptr));
    }

    Surface surface;
    Ref<_CTrans> trans = support::NewTrans();
    Ref<_CSymbol> symbol =
        support::NewSymbol(0, 0, 50, 50, {{.type = symPoly, .points = {{5, 5}, {40, 5}, {40, 40}}}});
};

TEST_F(ForeignSurface, AnErrorByNumberKeepsNumberSourceAndDescription) {
    surface.answer = [](WORD, VARIANT*, EXCEPINFO* exception) {
        return Raise(exception, 1234, L"Plan.Form1", L"Kein Stift da");
    };
    EXPECT_EQ(Draw(), (Failure{Numbered(1234), L"Plan.Form1", L"Kein Stift da"}));
}

TEST_F(ForeignSurface, ADeferredErrorIsFilledIn) {
    surface.answer = [](WORD, VARIANT*, EXCEPINFO* exception) {
        *exception = {};
        exception->pfnDeferredFillIn = FillInLate;
        return DISP_E_EXCEPTION;
    };
    EXPECT_EQ(Draw(), (Failure{Numbered(77), L"Spät", L"erst jetzt"}));
}

TEST_F(ForeignSurface, AnErrorWithoutTextsGetsSome) {
    surface.answer = [](WORD, VARIANT*, EXCEPINFO* exception) {
        *exception = {};
        exception->wCode = 5;
        return DISP_E_EXCEPTION;
    };
    const Failure failure = Draw();
    EXPECT_EQ(failure.status, Numbered(5));
    EXPECT_NE(failure.source, L"");
    EXPECT_NE(failure.description, L"");
}

TEST_F(ForeignSurface, ABareStatusIsNotGivenAnOlderErrorsTexts) {
    surface.answer = [](WORD, VARIANT*, EXCEPINFO*) { return E_ACCESSDENIED; };
    EXPECT_EQ(Outcome(support::NewElements({})->RemoveOnPos(1)), RunTimeError(5));
    EXPECT_TRUE(FAILED(support::NewElements({})->RemoveOnPos(1))); // its texts stay with the thread
    const Failure failure = Draw();
    EXPECT_EQ(failure.status, E_ACCESSDENIED);
    EXPECT_EQ(failure.source, L"QSymbol");
    EXPECT_NE(failure.description, L"");
    EXPECT_NE(failure.description, RunTimeError(5).description);
}

TEST_F(ForeignSurface, AMissingMemberIsErrorFourHundredThirtyEight) {
    surface.answer = [](WORD, VARIANT* result, EXCEPINFO*) {
        if (result != nullptr)
            *result = *Value(13).Raw();
        return S_OK;
    };
    surface.unknown = L"DrawMode";
    EXPECT_EQ(Draw(), RunTimeError(438));
    surface.answer = [](WORD, VARIANT*, EXCEPINFO*) { return DISP_E_MEMBERNOTFOUND; };
    surface.unknown.clear();
    EXPECT_EQ(Draw(), RunTimeError(438));
}

TEST_F(ForeignSurface, APropertyOfTheWrongTypeIsErrorThirteen) {
    surface.answer = [](WORD, VARIANT* result, EXCEPINFO*) {
        if (result != nullptr) {
            V_VT(result) = VT_BSTR;
            V_BSTR(result) = SysAllocString(L"kein Gerätekontext");
        }
        return S_OK;
    };
    EXPECT_EQ(Draw(), RunTimeError(13));
}

} // namespace
