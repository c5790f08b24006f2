#include "support/automation_test.h"

#include "support/servers.h"

#include <objbase.h>

namespace support {

AutomationTest::AutomationTest() {
    TakeErrorInfo();
}

namespace {

/// True in a multi-threaded apartment: its objects live in one that the system provides, with class objects
/// that the system keeps there.
bool IsMultithreaded() {
    APTTYPE type = APTTYPE_CURRENT;
    APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
    return SUCCEEDED(CoGetApartmentType(&type, &qualifier)) && type == APTTYPE_MTA;
}

} // namespace

AutomationTest::~AutomationTest() {
    TakeErrorInfo();
    if (IsMultithreaded())
        return;
    EXPECT_EQ(QPlanServer().CanUnloadNow(), S_OK) << "an object of QPlan still lives";
    EXPECT_EQ(QSymbolServer().CanUnloadNow(), S_OK) << "an object of QSymbol still lives";
    EXPECT_EQ(QMathServer().CanUnloadNow(), S_OK) << "an object of QMath still lives";
}

} // namespace support
