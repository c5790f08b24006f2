#include "support/automation_test.h"
#include "support/missing_member.h"
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
class Surface final : public IDispatch, public ISupportErrorInfo {
public:
    std::function<HRESULT(WORD flags, VARIANT* result, EXCEPINFO* exception)> answer;
    std::function<HRESULT(UINT arguments, EXCEPINFO* exception)> line;
    std::wstring unknown;
    HRESULT unknownStatus = DISP_E_UNKNOWNNAME;
    bool answersForErrors = false;

    Surface() = default;
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;
    virtual ~Surface() { EXPECT_EQ(references_, 0U) << "the surface is still held"; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        *object = nullptr;
        if (iid == IID_IUnknown || iid == IID_IDispatch)
            *object = static_cast<IDispatch*>(this);
        else if (iid == IID_ISupportErrorInfo && answersForErrors)
            *object = static_cast<ISupportErrorInfo*>(this);
        else
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override { return --references_; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        ids[0] = names[0] == unknown ? DISPID_UNKNOWN : wcscmp(names[0], L"Line") == 0 ? kLine : 1;
        return names[0] == unknown ? unknownStatus : S_OK;
    }
    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override {
        return iid == IID_IDispatch ? S_OK : S_FALSE;
    }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO* exception, UINT*) override {
        if (id == kLine && line)
            return line(arguments->cArgs, exception);
        return answer(flags, result, exception);
    }

private:
    static constexpr DISPID kLine = 2;

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

HRESULT STDAPICALLTYPE FillInRefusal(EXCEPINFO* exception) {
    Raise(exception, 450, L"Plan", L"Falsche Anzahl");
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

TEST_F(ForeignSurface, TheTextsOfABareStatusAreThoseThatItAnswersFor) {
    const Failure told{E_OUTOFMEMORY, L"Plan", L"Kein Platz"};
    surface.answer = [&](WORD, VARIANT*, EXCEPINFO*) { return support::Throw(told); };
    EXPECT_EQ(Draw(), (Failure{E_OUTOFMEMORY, L"QSymbol", RunTimeError(7).description}));
    surface.answersForErrors = true;
    EXPECT_EQ(Draw(), told);
}

TEST_F(ForeignSurface, AnExceptionNeverBecomesASuccess) {
    surface.answer = [](WORD, VARIANT*, EXCEPINFO* exception) {
        Raise(exception, 0, L"Plan", L"Ohne Nummer");
        exception->scode = S_FALSE;
        return DISP_E_EXCEPTION;
    };
    EXPECT_EQ(Draw(), (Failure{DISP_E_EXCEPTION, L"Plan", L"Ohne Nummer"}));
}

HRESULT Thirteen(VARIANT* result) {
    if (result != nullptr)
        *result = *Value(13).Raw();
    return S_OK;
}

TEST_F(ForeignSurface, AMissingMemberIsErrorFourHundredThirtyEight) {
    surface.answer = [](WORD, VARIANT* result, EXCEPINFO*) { return Thirteen(result); };
    surface.unknown = L"DrawMode";
    EXPECT_EQ(Draw(), support::MissingMember(L"Object.DrawMode"));
    surface.unknownStatus = RPC_E_DISCONNECTED;
    EXPECT_EQ(Draw().status, RPC_E_DISCONNECTED) << "not a missing member";
    surface.answer = [](WORD, VARIANT*, EXCEPINFO*) { return DISP_E_MEMBERNOTFOUND; };
    surface.unknown.clear();
    EXPECT_EQ(Draw(), support::MissingMember(L"Object.hDC"));
}

/// Some know values as functions, some as properties, and each may insist on it.
TEST_F(ForeignSurface, FunctionsServeAsProperties) {
    for (const int accepted : {DISPATCH_METHOD, DISPATCH_PROPERTYGET}) {
        int reads = 0;
        surface.answer = [&](WORD flags, VARIANT* result, EXCEPINFO*) -> HRESULT {
            if ((flags & DISPATCH_PROPERTYPUT) != 0)
                return S_OK;
            if (accepted == DISPATCH_METHOD ? (flags & accepted) == 0 : flags != accepted)
                return DISP_E_MEMBERNOTFOUND;
            ++reads;
            V_VT(result) = VT_I4;
            V_I4(result) = 1;
            return S_OK;
        };
        EXPECT_EQ(Draw(), Failure{}) << accepted;
        EXPECT_GT(reads, 0);
    }
}

/// However an object says that it wants other arguments, its own form of the line is tried.
TEST_F(ForeignSurface, RefusedArgumentsAreToldInManyForms) {
    const std::function<HRESULT(EXCEPINFO*)> kRefusals[] = {
        [](EXCEPINFO*) { return DISP_E_BADPARAMCOUNT; },
        [](EXCEPINFO*) { return DISP_E_PARAMNOTOPTIONAL; },
        [](EXCEPINFO* exception) { return Raise(exception, 450, L"Plan", L"Falsche Anzahl"); },
        [](EXCEPINFO* exception) { return Raise(exception, 449, L"Plan", L"Fehlt"); },
        [](EXCEPINFO* exception) {
            *exception = {};
            exception->scode = Numbered(450);
            return DISP_E_EXCEPTION;
        },
        [](EXCEPINFO* exception) {
            *exception = {};
            exception->pfnDeferredFillIn = FillInRefusal;
            return DISP_E_EXCEPTION;
        }};
    for (const auto& refusal : kRefusals) {
        const auto catalogue = support::Create<CSymbolColl, _CSymbolColl>();
        Ref<_CSymbol> placed = support::NewSymbolAt(L"Herd.syb");
        EXPECT_OK(catalogue->AppendRef(placed.InOut()));
        Ref<_CSymInput> input;
        EXPECT_OK(catalogue->GetSymInput(support::Bstr(L"Herd"), input.Put()));
        EXPECT_OK(input->SetOldLogPos(1, 2));
        std::vector<UINT> lines;
        surface.answer = [](WORD, VARIANT* result, EXCEPINFO*) { return Thirteen(result); };
        surface.line = [&](UINT arguments, EXCEPINFO* exception) {
            lines.push_back(arguments);
            return arguments == 4 ? refusal(exception) : S_OK;
        };
        EXPECT_OK(input->MouseMove(9, 9, &surface, trans.Get()));
        EXPECT_EQ(lines, (std::vector<UINT>{4, 6}));
    }
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
