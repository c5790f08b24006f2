#include "host/scenarios.h"
#include "support/automation_test.h"
#include "support/text.h"

#include <cstdio>

namespace {

using support::Answer;
using support::Dispatch;
using support::Value;

using GetClassObject = HRESULT STDAPICALLTYPE(REFCLSID, REFIID, void**);

Dispatch Unregistered(const wchar_t* dll, REFCLSID clsid) {
    support::Ref<IClassFactory> factory;
    support::Ref<IDispatch> object;
    const HMODULE library = LoadLibraryW(dll);
    const auto entry = reinterpret_cast<GetClassObject*>(
        reinterpret_cast<void*>(GetProcAddress(library, "DllGetClassObject")));
    EXPECT_OK(entry(clsid, IID_IClassFactory, factory.PutVoid()));
    EXPECT_OK(factory->CreateInstance(nullptr, IID_IDispatch, object.PutVoid()));
    return Dispatch(object);
}

void Tell(const Answer& answer) {
    const std::wstring text = FAILED(answer.status)            ? answer.failure.description
                              : answer.value.Type() == VT_BSTR ? answer.value.Text()
                              : answer.value.Type() == VT_BOOL ? (answer.value.Bool() ? L"True" : L"False")
                                                               : L"done";
    std::printf("%s\n", support::Narrow(text).c_str());
}

} // namespace

void TellLateBinding() {
    const Dispatch symbol = Unregistered(L"lib\\QSymbol.dll", CLSID_CSymbol);
    EXPECT_OK(symbol.Put(L"FilePath", L"C:\\Katalog\\WC.syb").status);
    Tell(symbol.Get(L"Name"));
    Value rect = Value::Nothing();
    Tell(symbol.Call(L"GetBoundingRect", {1, 2, 0.0, Value::Variable(rect)}));
    Tell(symbol.Call(L"ObjIdentByPt", {0, 0, 0.0, Value::Nothing(), 0, 0}));
    if (rect.Object() != nullptr)
        Tell(Dispatch(rect.Object()).Call(L"Left"));
}

void TellLateBoundPlan() {
    const Dispatch plan = Unregistered(L"lib\\QPlan.dll", CLSID_CPlan);
    Tell(plan.Get(L"Symbols"));
    Value rect = Value::Nothing();
    Tell(plan.Call(L"Extent", {Value::Variable(rect)}));
}
