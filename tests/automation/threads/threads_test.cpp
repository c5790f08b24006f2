#include "support/automation_test.h"
#include "support/host_program.h"

#include <gmock/gmock.h>

// What is made once in a process is made by whichever thread comes first, so each case has a process of
// its own.

namespace {

using support::HostProgram;
using testing::ElementsAre;

class Threads : public support::AutomationTest {};

TEST_F(Threads, EightOfThemWorkWithoutMeeting) {
    EXPECT_THAT(HostProgram(L"Planer.exe").Run(L"threads"),
                ElementsAre("strays: 0", "threads leave nothing"));
}

TEST_F(Threads, TheFirstCallsMayComeAtOnce) {
    const HostProgram host(L"Planer.exe");
    SetEnvironmentVariableW(L"QSYMBOL_STRESS_SECONDS", L"0");
    for (int i = 0; i < 3; ++i)
        EXPECT_THAT(host.Run(L"threads"), ElementsAre("strays: 0"));
    SetEnvironmentVariableW(L"QSYMBOL_STRESS_SECONDS", nullptr);
}

} // namespace
