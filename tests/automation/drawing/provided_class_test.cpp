#include "drawing/drawing_fixture.h"
#include "support/foreign_object.h"

#include <ocidl.h>

/// A host's control that tells its class: that counts more than the name of its interface.

namespace {

using namespace drawing;

/// A type information of some kind and name, from a library that is never saved.
Ref<ITypeInfo> TypeNamed(const wchar_t* name, TYPEKIND kind) {
    Ref<ICreateTypeLib2> library;
    Ref<ICreateTypeInfo> type;
    EXPECT_OK(CreateTypeLib2(SYS_WIN64, L"provided_class.tlb", library.Put()));
    EXPECT_OK(library->CreateTypeInfo(std::wstring(name).data(), kind, type.Put()));
    return type.As<ITypeInfo>();
}

/// Everything of a picture box, and its class besides.
class ClassyBox final : public IDispatch, public IProvideClassInfo {
public:
    ClassyBox(IDispatch& box, Ref<ITypeInfo> type) : box_(box), type_(std::move(type)) {}

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        if (id == IID_IUnknown || id == IID_IDispatch)
            *object = static_cast<IDispatch*>(this);
        else if (id == IID_IProvideClassInfo)
            *object = static_cast<IProvideClassInfo*>(this);
        else
            return *object = nullptr, E_NOINTERFACE;
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return box_.GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return box_.GetTypeInfo(index, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override {
        return box_.GetIDsOfNames(id, names, count, locale, ids);
    }
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                        VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override {
        return box_.Invoke(id, iid, locale, flags, arguments, result, exception, badArgument);
    }
    STDMETHODIMP GetClassInfo(ITypeInfo** info) override {
        *info = nullptr;
        if (!type_)
            return E_FAIL;
        return type_.Get()->QueryInterface(IID_ITypeInfo, reinterpret_cast<void**>(info));
    }

private:
    IDispatch& box_;
    Ref<ITypeInfo> type_;
};

struct ClassCase {
    const wchar_t* interfaceName;
    const wchar_t* className; ///< nullptr: the object cannot tell
    bool isPrinter;
};

TEST(ProvidedClass, TellsAPrinterFromABox) {
    for (const ClassCase& sample : {ClassCase{L"_Anything", L"Printer", true},
                                    {L"Printer", L"PictureBox", false},
                                    {L"Printer", nullptr, true},
                                    {L"PictureBox", nullptr, false}}) {
        support::Canvas canvas;
        const auto box = support::PictureBox::Create(canvas, L"PlanBox", sample.interfaceName);
        ClassyBox classy(*box.Get(), sample.className == nullptr
                                         ? Ref<ITypeInfo>()
                                         : TypeNamed(sample.className, TKIND_COCLASS));
        const auto symbol =
            support::NewSymbol(0, 0, 100, 100, {{.type = symPoly, .points = {{0, 0}, {50, 50}}}});
        EXPECT_OK(symbol->Draw(0, 0, 0, &classy, support::NewTrans().Get(), 2, 1, nullptr));
        // A printer has no name to be asked for.
        EXPECT_EQ(box->Count("get Name"), sample.isPrinter ? 0 : 1) << sample.isPrinter;
    }
}

} // namespace
