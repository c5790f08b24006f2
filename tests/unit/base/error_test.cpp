#include "base/error.h"

#include <gtest/gtest.h>

#include <cstring>

using base::Error;

/// What came from outside goes on as it came, and is an error by number where its status says so.
TEST(Error, KeepsAStatusFromOutside) {
    const Error foreign = Error::FromStatus(0x80004005U, u"Host", u"Fehler des Hosts");
    EXPECT_EQ(foreign.Status(), 0x80004005U);
    EXPECT_EQ(foreign.Number(), static_cast<std::int32_t>(0x80004005U));
    EXPECT_EQ(foreign.Source(), u"Host");
    EXPECT_EQ(foreign.Description(), u"Fehler des Hosts");
    EXPECT_NE(std::strstr(foreign.what(), std::to_string(0x80004005U).c_str()), nullptr);
    EXPECT_EQ(Error::FromStatus(base::NumberedStatus(91), {}, {}).Number(), 91);
}

TEST(Error, ANumberWithoutATextIsTheApplicationsOwn) {
    EXPECT_EQ(base::Description(static_cast<base::RunTimeError>(1000)),
              u"Anwendungs- oder objektdefinierter Fehler");
}
