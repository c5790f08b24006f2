#include "support/automation_test.h"
#include "support/servers.h"

#include <ocidl.h>

namespace {

using support::AutomationTest;
using support::Bstr;
using support::Ref;

struct PublicClass {
    const wchar_t* progId;
    const CLSID* clsid;
    const IID* iid;
};

void PrintTo(const PublicClass& tested, std::ostream* out) {
    const std::wstring name = tested.progId;
    *out << std::string(name.begin(), name.end());
}

/// Every class that a client may create.
const PublicClass kClasses[] = {
    {L"QSymbol.CSymbol", &CLSID_CSymbol, &IID__CSymbol},
    {L"QSymbol.CSymbolColl", &CLSID_CSymbolColl, &IID__CSymbolColl},
    {L"QSymbol.CSymElement", &CLSID_CSymElement, &IID__CSymElement},
    {L"QSymbol.CSymElementColl", &CLSID_CSymElementColl, &IID__CSymElementColl},
    {L"QSymbol.CSymTool", &CLSID_CSymTool, &IID__CSymTool},
    {L"QPlan.CPicture", &CLSID_CPicture, &IID__CPicture},
    {L"QPlan.CPlan", &CLSID_CPlan, &IID__CPlan},
    {L"QMath.CTrans", &CLSID_CTrans, &IID__CTrans},
    {L"QMath.CPt", &CLSID_CPt, &IID__CPt},
    {L"QMath.CPtList", &CLSID_CPtList, &IID__CPtList},
    {L"QMath.CRect", &CLSID_CRect, &IID__CRect},
    {L"QMath.CPolygon", &CLSID_CPolygon, &IID__CPolygon},
    {L"QMath.CMatrix", &CLSID_CMatrix, &IID__CMatrix},
    {L"QMath.CMathUtil", &CLSID_CMathUtil, &IID__CMathUtil},
    {L"QMath.CStrUtil", &CLSID_CStrUtil, &IID__CStrUtil},
    {L"QMath.CFontSelector", &CLSID_CFontSelector, &IID__CFontSelector},
    {L"QMath.CSettings", &CLSID_CSettings, &IID__CSettings},
};

class ClassObject : public AutomationTest, public testing::WithParamInterface<PublicClass> {
protected:
    Ref<IDispatch> New() const {
        Ref<IDispatch> object;
        EXPECT_OK(CoCreateInstance(*GetParam().clsid, nullptr, CLSCTX_INPROC_SERVER, *GetParam().iid,
                                   object.PutVoid()));
        return object;
    }
    std::wstring ClassName() const {
        const std::wstring progId = GetParam().progId;
        return progId.substr(progId.find(L'.') + 1);
    }
    const support::Server& Server() const {
        const std::wstring progId = GetParam().progId;
        return progId.starts_with(L"QMath")   ? support::QMathServer()
               : progId.starts_with(L"QPlan") ? support::QPlanServer()
                                              : support::QSymbolServer();
    }
};

INSTANTIATE_TEST_SUITE_P(Public, ClassObject, testing::ValuesIn(kClasses), [](const auto& tested) {
    const std::wstring progId = tested.param.progId;
    const std::wstring name = progId.substr(progId.find(L'.') + 1);
    return std::string(name.begin(), name.end());
});

TEST_P(ClassObject, IsFoundByItsProgId) {
    CLSID clsid{};
    ASSERT_OK(CLSIDFromProgID(GetParam().progId, &clsid));
    EXPECT_EQ(clsid, *GetParam().clsid);
}

TEST_P(ClassObject, OffersItsInterfaces) {
    const Ref<IDispatch> object = New();
    ASSERT_TRUE(object);
    EXPECT_TRUE(object.As<IUnknown>());
    EXPECT_TRUE(object.As<IDispatch>());
    EXPECT_TRUE(object.As<ISupportErrorInfo>());
    EXPECT_TRUE(object.As<IProvideClassInfo>());
    EXPECT_TRUE(object.As<IProvideClassInfo2>());
    void* other = object.Get();
    EXPECT_EQ(object->QueryInterface(IID_IStream, &other), E_NOINTERFACE);
    EXPECT_EQ(other, nullptr);
    EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_P(ClassObject, KeepsOneIdentity) {
    const Ref<IDispatch> object = New();
    ASSERT_TRUE(object);
    const Ref<IProvideClassInfo2> other = object.As<IProvideClassInfo2>();
    EXPECT_TRUE(support::SameObject(object.Get(), other.Get()));
    EXPECT_TRUE(other.As<IDispatch>());
}

TEST_P(ClassObject, SupportsErrorInfoForItsInterfaceOnly) {
    const auto support = New().As<ISupportErrorInfo>();
    ASSERT_TRUE(support);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(*GetParam().iid), S_OK);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IUnknown), S_FALSE);
}

TEST_P(ClassObject, TellsItsClass) {
    const auto provider = New().As<IProvideClassInfo2>();
    ASSERT_TRUE(provider);
    Ref<ITypeInfo> info;
    ASSERT_OK(provider->GetClassInfo(info.Put()));
    Bstr name;
    ASSERT_OK(info->GetDocumentation(MEMBERID_NIL, name.Put(), nullptr, nullptr, nullptr));
    EXPECT_EQ(name.Text(), ClassName());
    TYPEATTR* attributes = nullptr;
    ASSERT_OK(info->GetTypeAttr(&attributes));
    EXPECT_EQ(attributes->guid, *GetParam().clsid);
    EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
    info->ReleaseTypeAttr(attributes);
    GUID events = *GetParam().clsid;
    EXPECT_OK(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events));
    EXPECT_EQ(events, GUID_NULL) << "the classes have no events";
    EXPECT_EQ(provider->GetGUID(0, &events), E_INVALIDARG);
}

TEST_P(ClassObject, DescribesItsInterface) {
    const Ref<IDispatch> object = New();
    ASSERT_TRUE(object);
    UINT count = 0;
    EXPECT_OK(object->GetTypeInfoCount(&count));
    EXPECT_EQ(count, 1U);
    Ref<ITypeInfo> info;
    ASSERT_OK(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Put()));
    Bstr name;
    ASSERT_OK(info->GetDocumentation(MEMBERID_NIL, name.Put(), nullptr, nullptr, nullptr));
    EXPECT_EQ(name.Text(), L"_" + ClassName());
    EXPECT_EQ(object->GetTypeInfo(1, LOCALE_USER_DEFAULT, info.Put()), DISP_E_BADINDEX);
}

TEST_P(ClassObject, CannotBePartOfAnotherObject) {
    const Ref<IClassFactory> factory = Server().Factory(*GetParam().clsid);
    ASSERT_TRUE(factory);
    const Ref<IDispatch> outer = New();
    void* inner = outer.Get();
    EXPECT_EQ(factory->CreateInstance(outer.Get(), IID_IUnknown, &inner), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(inner, nullptr);
}

TEST_P(ClassObject, KeepsTheServerLoaded) {
    EXPECT_EQ(Server().CanUnloadNow(), S_OK);
    Ref<IDispatch> object = New();
    EXPECT_EQ(Server().CanUnloadNow(), S_FALSE);
    object.Reset();
    EXPECT_EQ(Server().CanUnloadNow(), S_OK);

    Ref<IClassFactory> factory = Server().Factory(*GetParam().clsid);
    ASSERT_TRUE(factory);
    EXPECT_EQ(Server().CanUnloadNow(), S_FALSE) << "a factory is an object as well";
    EXPECT_OK(factory->LockServer(TRUE));
    factory.Reset();
    EXPECT_EQ(Server().CanUnloadNow(), S_FALSE);
    factory = Server().Factory(*GetParam().clsid);
    EXPECT_OK(factory->LockServer(FALSE));
    factory.Reset();
    EXPECT_EQ(Server().CanUnloadNow(), S_OK);
}

class UnknownClass : public AutomationTest {};

TEST_F(UnknownClass, IsNotAvailable) {
    for (const support::Server* server :
         {&support::QMathServer(), &support::QSymbolServer(), &support::QPlanServer()}) {
        void* object = &object;
        EXPECT_EQ(server->GetClassObject(IID_IStream, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
        EXPECT_EQ(object, nullptr);
        EXPECT_EQ(server->GetClassObject(IID_IStream, IID_IClassFactory, nullptr), E_POINTER);
    }
}

TEST_F(UnknownClass, TheSymbolInputComesFromACatalogueOnly) {
    void* object = &object;
    EXPECT_EQ(support::QSymbolServer().GetClassObject(CLSID_CSymInput, IID_IClassFactory, &object),
              CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
    Ref<IUnknown> input;
    EXPECT_EQ(CoCreateInstance(CLSID_CSymInput, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, input.PutVoid()),
              REGDB_E_CLASSNOTREG);
    CLSID clsid{};
    EXPECT_TRUE(FAILED(CLSIDFromProgID(L"QSymbol.CSymInput", &clsid)));
}

TEST_F(UnknownClass, AFactoryRefusesAnUnknownInterface) {
    const Ref<IClassFactory> factory = support::QMathServer().Factory(CLSID_CPt);
    ASSERT_TRUE(factory);
    void* object = &object;
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IStream, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
}

} // namespace
