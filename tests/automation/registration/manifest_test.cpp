#include "support/automation_test.h"
#include "support/host_program.h"
#include "support/servers.h"

#include <gmock/gmock.h>

namespace {

using support::Dispatch;
using support::QMathServer;
using support::QPlanServer;
using support::QSymbolServer;

/// Activates the assembly manifest beside the DLLs for the running thread.
class ActiveManifest {
public:
    explicit ActiveManifest(const wchar_t* name = L"QSymbol.X.manifest") {
        const std::wstring path = support::ProgramFolder() + name;
        ACTCTXW description{};
        description.cbSize = sizeof description;
        description.lpSource = path.c_str();
        context_ = CreateActCtxW(&description);
        EXPECT_NE(context_, INVALID_HANDLE_VALUE) << GetLastError();
        EXPECT_TRUE(ActivateActCtx(context_, &cookie_));
    }
    ActiveManifest(const ActiveManifest&) = delete;
    ActiveManifest& operator=(const ActiveManifest&) = delete;
    ~ActiveManifest() {
        DeactivateActCtx(0, cookie_);
        ReleaseActCtx(context_);
    }

private:
    HANDLE context_ = INVALID_HANDLE_VALUE;
    ULONG_PTR cookie_ = 0;
};

class WithoutRegistration : public support::AutomationTest {
protected:
    void SetUp() override {
        ASSERT_OK(QPlanServer().Unregister());
        ASSERT_OK(QSymbolServer().Unregister());
        ASSERT_OK(QMathServer().Unregister());
    }
    void TearDown() override {
        EXPECT_OK(QMathServer().Register());
        EXPECT_OK(QSymbolServer().Register());
        EXPECT_OK(QPlanServer().Register());
    }
};

TEST_F(WithoutRegistration, NothingCanBeCreated) {
    EXPECT_FALSE(Dispatch::Create(L"QSymbol.CSymbol"));
    EXPECT_FALSE(Dispatch::Create(L"QMath.CPt"));
    EXPECT_FALSE(Dispatch::Create(L"QPlan.CPicture"));
}

TEST_F(WithoutRegistration, TheManifestServesAHost) {
    const ActiveManifest manifest;
    for (const wchar_t* progId :
         {L"QMath.CTrans", L"QMath.CPt", L"QMath.CPtList", L"QMath.CRect", L"QMath.CPolygon",
          L"QMath.CMatrix", L"QMath.CMathUtil", L"QMath.CStrUtil", L"QMath.CFontSelector", L"QMath.CSettings",
          L"QSymbol.CSymbol", L"QSymbol.CSymbolColl", L"QSymbol.CSymElement", L"QSymbol.CSymElementColl",
          L"QSymbol.CSymTool"})
        EXPECT_TRUE(Dispatch::Create(progId)) << progId;
    EXPECT_FALSE(Dispatch::Create(L"QSymbol.CSymInput")) << "only a catalogue makes one";
}

TEST_F(WithoutRegistration, TheManifestOfPlansBringsTheOtherOne) {
    const ActiveManifest manifest(L"QPlan.X.manifest");
    for (const wchar_t* progId : {L"QPlan.CPicture", L"QPlan.CPlan", L"QSymbol.CSymbol", L"QMath.CTrans"})
        EXPECT_TRUE(Dispatch::Create(progId)) << progId;
    // The types of its arguments are those of the other libraries.
    EXPECT_EQ(Dispatch::Create(L"QPlan.CPlan").Call(L"Add", {L"A", 0, 0, 0.0}).failure,
              support::RunTimeError(91, L"QPlan"));
    EXPECT_OK(Dispatch::Create(L"QPlan.CPlan")
                  .PutRef(L"Symbols", Dispatch::Create(L"QSymbol.CSymbolColl").Object())
                  .status);
    EXPECT_FALSE(Dispatch::Create(L"QPlan.CPlacement")) << "only a plan makes one";
}

TEST_F(WithoutRegistration, TheLibrariesFindEachOther) {
    const ActiveManifest manifest;
    const Dispatch symbol = Dispatch::Create(L"QSymbol.CSymbol");
    ASSERT_TRUE(symbol);
    support::Value rect = support::Value::Nothing();
    // The rectangle is an object of QMath that QSymbol makes.
    EXPECT_OK(symbol.Call(L"GetBoundingRect", {10, 20, 0.0, support::Value::Variable(rect)}).status);
    const Dispatch bounds(rect.Object());
    ASSERT_TRUE(bounds);
    EXPECT_EQ(bounds.Get(L"Left").value.Long(), 10);
    EXPECT_EQ(bounds.Get(L"Top").value.Long(), 20);
}

/// A folder with a host, and "lib" in it with copies of the DLLs.
std::vector<std::string> LateBinding(const std::vector<std::wstring>& dlls,
                                     const std::wstring& scenario = L"alone") {
    const support::HostProgram host(L"Planer.exe");
    const std::wstring library = host.Folder() / L"lib";
    EXPECT_NE(CreateDirectoryW(library.c_str(), nullptr), FALSE);
    for (const std::wstring& dll : dlls)
        EXPECT_NE(CopyFileW((support::ProgramFolder() + dll).c_str(), (library + L'\\' + dll).c_str(), TRUE),
                  FALSE);
    const std::vector<std::string> lines = host.Run(scenario);
    for (const std::wstring& dll : dlls)
        EXPECT_NE(DeleteFileW((library + L'\\' + dll).c_str()), FALSE);
    EXPECT_NE(RemoveDirectoryW(library.c_str()), FALSE);
    return lines;
}

TEST_F(WithoutRegistration, LateBindingFindsTheTypesOfTheDllBeside) {
    EXPECT_THAT(LateBinding({L"QSymbol.dll", L"QMath.dll"}),
                testing::ElementsAre("WC", "done", "False", "done"));
}

TEST_F(WithoutRegistration, TheTextNamesTheMissingDll) {
    const std::string missing = "QMath.dll ist nicht registriert und liegt nicht neben QSymbol.dll";
    EXPECT_THAT(LateBinding({L"QSymbol.dll"}), testing::ElementsAre("WC", missing, missing));
}

TEST_F(WithoutRegistration, APlanNamesTheMissingDll) {
    const std::string end = " ist nicht registriert und liegt nicht neben QPlan.dll";
    EXPECT_THAT(LateBinding({L"QPlan.dll"}, L"plan"),
                testing::ElementsAre("QMath.dll" + end, "QMath.dll" + end));
    EXPECT_THAT(LateBinding({L"QPlan.dll", L"QMath.dll"}, L"plan"),
                testing::ElementsAre("QSymbol.dll" + end, "False"));
    EXPECT_THAT(LateBinding({L"QPlan.dll", L"QMath.dll", L"QSymbol.dll"}, L"plan"),
                testing::ElementsAre("done", "False"));
}

} // namespace
