#pragma once

#include "support/bstr.h"
#include "support/dispatch.h"
#include "support/failure.h"
#include "support/ref.h"
#include "support/value.h"

#include <QPlan.h>
#include <gtest/gtest.h>

namespace support {

/// A test with registered classes. After it no object of any library may live.
class AutomationTest : public testing::Test {
protected:
    AutomationTest();
    /// Checks when the objects that a fixture holds are gone as well.
    ~AutomationTest() override;
};

/// A new object of a registered class, held by its default interface.
template <class Class, class Interface>
Ref<Interface> Create() {
    Ref<Interface> object;
    EXPECT_OK(CoCreateInstance(__uuidof(Class), nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface),
                               object.PutVoid()));
    return object;
}

} // namespace support
