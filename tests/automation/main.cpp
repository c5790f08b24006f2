#include "support/servers.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <objbase.h>

#include <cstdio>

namespace {

/// Registers both DLLs beside the program for the whole run and checks at its end that nothing of them lives.
class RegisteredServers final : public testing::Environment {
public:
    void SetUp() override {
        ASSERT_TRUE(support::QMathServer().Loaded());
        ASSERT_TRUE(support::QSymbolServer().Loaded());
        ASSERT_EQ(support::QMathServer().Register(), S_OK);
        ASSERT_EQ(support::QSymbolServer().Register(), S_OK);
    }
    void TearDown() override {
        EXPECT_EQ(support::QSymbolServer().CanUnloadNow(), S_OK);
        EXPECT_EQ(support::QMathServer().CanUnloadNow(), S_OK);
    }
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
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)))
        return 2;
    testing::AddGlobalTestEnvironment(new RegisteredServers); // GoogleTest owns it
    const int result = RUN_ALL_TESTS();
    CoUninitialize();
    return result;
}
