#include "support/automation_test.h"

#include "support/apartment.h"
#include "support/servers.h"

namespace support {

AutomationTest::AutomationTest() {
    TakeErrorInfo();
}

AutomationTest::~AutomationTest() {
    TakeErrorInfo();
    if (IsMultithreaded())
        return;
    EXPECT_EQ(QPlanServer().CanUnloadNow(), S_OK) << "an object of QPlan still lives";
    EXPECT_EQ(QSymbolServer().CanUnloadNow(), S_OK) << "an object of QSymbol still lives";
    EXPECT_EQ(QMathServer().CanUnloadNow(), S_OK) << "an object of QMath still lives";
}

} // namespace support
