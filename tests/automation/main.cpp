#include "support/automation_test.h"
#include "support/failure.h"
#include "support/servers.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <objbase.h>

#include <cstdio>
#include <cstring>

namespace {

/// How this run is to reach the classes, by what is left of the command line.
struct Way {
    bool multithreaded = false; ///< "--mta": from another apartment, through proxies
    bool manifest = false;      ///< "--unregistered": by the manifest of the program alone
};

Way WayOf(int argc, char** argv) {
    Way way;
    for (int i = 1; i < argc; ++i) {
        way.multithreaded = way.multithreaded || std::strcmp(argv[i], "--mta") == 0;
        way.manifest = way.manifest || std::strcmp(argv[i], "--unregistered") == 0;
    }
    return way;
}

/// Registers the DLLs beside the program for the whole run and checks at its end that nothing of them lives.
class RegisteredServers final : public testing::Environment {
public:
    explicit RegisteredServers(const Way& way) : way_(way) {}

    void SetUp() override {
        ASSERT_TRUE(support::QMathServer().Loaded());
        ASSERT_TRUE(support::QSymbolServer().Loaded());
        ASSERT_TRUE(support::QPlanServer().Loaded());
        if (way_.manifest) {
            ASSERT_EQ(support::QPlanServer().Unregister(), S_OK);
            ASSERT_EQ(support::QSymbolServer().Unregister(), S_OK);
            ASSERT_EQ(support::QMathServer().Unregister(), S_OK);
        } else {
            ASSERT_EQ(support::QMathServer().Register(), S_OK);
            ASSERT_EQ(support::QSymbolServer().Register(), S_OK);
            ASSERT_EQ(support::QPlanServer().Register(), S_OK);
        }
        if (way_.multithreaded)
            anObject_ = support::Create<CSymbol, _CSymbol>();
    }
    void TearDown() override {
        anObject_.Reset();
        if (way_.multithreaded)
            return; // the system keeps class objects in the apartment that it provides
        EXPECT_EQ(support::QPlanServer().CanUnloadNow(), S_OK);
        EXPECT_EQ(support::QSymbolServer().CanUnloadNow(), S_OK);
        EXPECT_EQ(support::QMathServer().CanUnloadNow(), S_OK);
    }

private:
    Way way_;
    support::Ref<_CSymbol> anObject_; ///< has the system provide its apartment now and for the whole run
};

/// A crash ends the run at once; without this a debugger window could hold it for ever.
LONG WINAPI EndOnCrash(EXCEPTION_POINTERS* exception) {
    std::printf("Crashed with exception 0x%08lX\n", exception->ExceptionRecord->ExceptionCode);
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 3);
    return EXCEPTION_EXECUTE_HANDLER;
}

} // namespace

int main(int argc, char** argv) {
    SetUnhandledExceptionFilter(EndOnCrash);
    testing::InitGoogleMock(&argc, argv);
    const Way way = WayOf(argc, argv);
    if (way.multithreaded)
        support::ExpectProxies();
    if (FAILED(CoInitializeEx(nullptr, way.multithreaded ? COINIT_MULTITHREADED : COINIT_APARTMENTTHREADED)))
        return 2;
    testing::AddGlobalTestEnvironment(new RegisteredServers(way)); // GoogleTest owns it
    const int result = RUN_ALL_TESTS();
    CoUninitialize();
    return result;
}
