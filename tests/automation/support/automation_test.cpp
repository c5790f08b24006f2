#include "support/automation_test.h"

#include "support/servers.h"

namespace support {

AutomationTest::AutomationTest() {
    TakeErrorInfo();
}

AutomationTest::~AutomationTest() {
    TakeErrorInfo();
    EXPECT_EQ(QSymbolServer().CanUnloadNow(), S_OK) << "an object of QSymbol still lives";
    EXPECT_EQ(QMathServer().CanUnloadNow(), S_OK) << "an object of QMath still lives";
}

} // namespace support
