#include "support/automation_test.h"
#include "support/servers.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

/// How long each library keeps the other: QSymbol holds QMath's class objects while one of its own
/// objects lives.

namespace {

using support::QMathServer;
using support::QSymbolServer;
using support::Ref;

Ref<_CRect> BoundsOf(const Ref<_CSymbol>& symbol) {
    Ref<_CRect> bounds;
    EXPECT_OK(symbol->GetBoundingRect(1, 2, 0, bounds.InOut()));
    return bounds;
}

class Unloading : public support::AutomationTest {};

TEST_F(Unloading, TheResultMayOutliveTheSymbol) {
    Ref<_CSymbol> symbol = support::NewSymbol();
    Ref<_CRect> bounds = BoundsOf(symbol);
    symbol.Reset();
    EXPECT_EQ(QSymbolServer().CanUnloadNow(), S_OK);
    EXPECT_EQ(QMathServer().CanUnloadNow(), S_FALSE);
    bounds.Reset();
    EXPECT_EQ(QMathServer().CanUnloadNow(), S_OK);
}

TEST_F(Unloading, TheSymbolMayOutliveItsResult) {
    Ref<_CSymbol> symbol = support::NewSymbol();
    BoundsOf(symbol).Reset();
    EXPECT_EQ(QMathServer().CanUnloadNow(), S_FALSE) << "its class object is in use";
    symbol.Reset();
    EXPECT_EQ(QMathServer().CanUnloadNow(), S_OK);
    EXPECT_EQ(QSymbolServer().CanUnloadNow(), S_OK);
}

/// A class object in front of the registered one, which it passes its work on to.
class CountingFactory final : public IClassFactory {
public:
    int created = 0;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IClassFactory;
        *object = known ? this : nullptr;
        if (known)
            AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
    STDMETHODIMP_(ULONG) Release() override { return --references; }
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        ++created;
        return QMathServer().Factory(CLSID_CRect)->CreateInstance(outer, iid, object);
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

    ULONG references = 0;
};

TEST_F(Unloading, AClassObjectIsAskedForOnceAndGivenUp) {
    CountingFactory factory;
    DWORD registration = 0;
    ASSERT_OK(CoRegisterClassObject(CLSID_CRect, &factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                    &registration));
    Ref<_CSymbol> first = support::NewSymbol();
    Ref<_CSymbol> second = support::NewSymbol();
    EXPECT_TRUE(BoundsOf(first));
    EXPECT_OK(CoRevokeClassObject(registration));
    EXPECT_TRUE(BoundsOf(second));
    first.Reset();
    EXPECT_TRUE(BoundsOf(second));
    EXPECT_EQ(factory.created, 3) << "held, whatever is registered meanwhile";
    second.Reset();
    EXPECT_EQ(factory.references, 0U);
    EXPECT_TRUE(BoundsOf(support::NewSymbol()));
    EXPECT_EQ(factory.created, 3) << "asked for anew";
}

TEST_F(Unloading, APlanKeepsTheLibraryOfItsSymbols) {
    auto plan = support::Create<CPlan, _CPlan>();
    {
        const auto catalogue = support::Create<CSymbolColl, _CSymbolColl>();
        Ref<_CSymbol> symbol = support::NewSymbolAt(L"A.syb");
        EXPECT_OK(catalogue->AppendRef(symbol.InOut()));
        EXPECT_OK(plan->putref_Symbols(catalogue.Get()));
        Ref<_CPlacement> placed;
        EXPECT_OK(plan->Add(support::Bstr(L"A"), 1, 2, 0, placed.Put()));
        EXPECT_OK(plan->putref_Symbols(nullptr));
    }
    EXPECT_EQ(QSymbolServer().CanUnloadNow(), S_FALSE);
    Ref<_CRect> extent;
    VARIANT_BOOL has = VARIANT_FALSE;
    EXPECT_OK(plan->Extent(extent.InOut(), &has));
    EXPECT_EQ(has, VARIANT_TRUE);
    extent.Reset();
    plan.Reset();
    for (const support::Server* server : {&support::QPlanServer(), &QSymbolServer(), &QMathServer()})
        EXPECT_EQ(server->CanUnloadNow(), S_OK);
}

/// QMath stands beside QSymbol in a folder, and neither is registered.
class UnloadingUnregistered : public Unloading {
protected:
    UnloadingUnregistered() {
        EXPECT_OK(support::QPlanServer().Unregister());
        EXPECT_OK(QSymbolServer().Unregister());
        EXPECT_OK(QMathServer().Unregister());
        for (const support::Server* const server :
             {&QMathServer(), &QSymbolServer(), &support::QPlanServer()}) {
            const std::wstring path = server->Path();
            EXPECT_NE(CopyFileW(path.c_str(), (folder / path.substr(path.rfind(L'\\') + 1)).c_str(), TRUE),
                      FALSE);
        }
    }
    ~UnloadingUnregistered() override {
        EXPECT_OK(QMathServer().Register());
        EXPECT_OK(QSymbolServer().Register());
        EXPECT_OK(support::QPlanServer().Register());
    }
    static Ref<_CSymbol> NewSymbol(const support::Server& server) {
        Ref<_CSymbol> symbol;
        EXPECT_OK(
            server.Factory(CLSID_CSymbol)->CreateInstance(nullptr, __uuidof(_CSymbol), symbol.PutVoid()));
        return symbol;
    }
    bool IsLoaded(const wchar_t* name) const { return GetModuleHandleW((folder / name).c_str()) != nullptr; }

    support::TempFolder folder;
};

TEST_F(UnloadingUnregistered, TheResultMayOutliveTheSymbol) {
    {
        const support::Server server(folder / L"QSymbol.dll");
        ASSERT_TRUE(server.Loaded());
        for (int time = 0; time < 2; ++time) {
            Ref<_CSymbol> symbol = NewSymbol(server);
            EXPECT_EQ(IsLoaded(L"QMath.dll"), false) << "nobody has needed it";
            Ref<_CRect> bounds = BoundsOf(symbol);
            EXPECT_EQ(server.CanUnloadNow(), S_FALSE);
            symbol.Reset();
            EXPECT_EQ(server.CanUnloadNow(), S_FALSE) << "who would unload the other one?";
            EXPECT_TRUE(IsLoaded(L"QMath.dll"));
            bounds.Reset();
            EXPECT_EQ(server.CanUnloadNow(), S_OK);
            EXPECT_FALSE(IsLoaded(L"QMath.dll"));
        }
    }
    EXPECT_FALSE(IsLoaded(L"QSymbol.dll"));
}

TEST_F(UnloadingUnregistered, APlanFindsTypesAndClassesOfTheDllsBeside) {
    const support::Server symbols(folder / L"QSymbol.dll");
    const support::Server plans(folder / L"QPlan.dll");
    ASSERT_TRUE(plans.Loaded());
    {
        Ref<_CPlan> plan;
        ASSERT_OK(plans.Factory(CLSID_CPlan)->CreateInstance(nullptr, __uuidof(_CPlan), plan.PutVoid()));
        Ref<_CSymbolColl> catalogue;
        ASSERT_OK(symbols.Factory(CLSID_CSymbolColl)
                      ->CreateInstance(nullptr, __uuidof(_CSymbolColl), catalogue.PutVoid()));
        Ref<_CSymbol> symbol = NewSymbol(symbols);
        EXPECT_OK(symbol->put_FilePath(support::Bstr(L"A.syb")));
        EXPECT_OK(catalogue->AppendRef(symbol.InOut()));
        const support::Dispatch late(plan);
        EXPECT_OK(late.PutRef(L"Symbols", catalogue).status);
        EXPECT_OK(late.Call(L"Add", {L"A", 7, 8, 0.0}).status);
        support::Value rect = support::Value::Nothing();
        EXPECT_TRUE(late.Call(L"Extent", {support::Value::Variable(rect)}).value.Bool());
        EXPECT_EQ(support::Dispatch(rect.Object()).Get(L"Left").value.Long(), 7);
        EXPECT_TRUE(IsLoaded(L"QMath.dll"));
        EXPECT_EQ(plans.CanUnloadNow(), S_FALSE);
    }
    EXPECT_EQ(plans.CanUnloadNow(), S_OK);
    EXPECT_EQ(symbols.CanUnloadNow(), S_OK);
}

TEST_F(UnloadingUnregistered, TheSymbolMayOutliveItsResult) {
    const support::Server server(folder / L"QSymbol.dll");
    ASSERT_TRUE(server.Loaded());
    Ref<_CSymbol> symbol = NewSymbol(server);
    BoundsOf(symbol).Reset();
    EXPECT_EQ(server.CanUnloadNow(), S_FALSE);
    EXPECT_TRUE(IsLoaded(L"QMath.dll"));
    symbol.Reset();
    EXPECT_EQ(server.CanUnloadNow(), S_OK);
    EXPECT_FALSE(IsLoaded(L"QMath.dll"));
}

} // namespace
