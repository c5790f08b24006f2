#include "qsymbol/files/library_error.h"

#include "support/caught.h"
#include "support/string_table.h"

#include <gtest/gtest.h>

namespace {

using qsymbol::GetErrorMessage;
using qsymbol::LibraryError;

TEST(LibraryError, GermanTextsWithoutAResource) {
    const support::StringTable none;
    EXPECT_EQ(GetErrorMessage(3501, none), u"Keine gültige Symboldatei.");
    EXPECT_EQ(GetErrorMessage(3502, none), u"Kopfzeile fehlerhaft.");
    EXPECT_EQ(GetErrorMessage(3503, none), u"Keine gültige Extension für eine Symboldatei.");
    for (const std::int32_t number : {0, 1, 3500, 3504, -1, 2147483647})
        EXPECT_EQ(GetErrorMessage(number, none), u"Unbekannter Fehler") << number;
}

TEST(LibraryError, ResourceTextsComeFirst) {
    support::StringTable strings;
    strings.texts = {{11101, u"?"}, {11102, u"a"}, {11103, u""}, {11104, u"c"}};
    EXPECT_EQ(GetErrorMessage(3501, strings), u"a");
    EXPECT_EQ(GetErrorMessage(3502, strings), u"Kopfzeile fehlerhaft.");
    EXPECT_EQ(GetErrorMessage(3503, strings), u"c");
    EXPECT_EQ(GetErrorMessage(0, strings), u"?");
    EXPECT_EQ(GetErrorMessage(9999, strings), u"?");
}

TEST(LibraryError, RaisedWithSourceAndMessage) {
    support::StringTable strings;
    strings.texts[11103] = u"Zeile 1";
    const support::Caught caught =
        support::CaughtFrom([&] { qsymbol::Raise(LibraryError::FaultyHeader, u"CSymbol.Test", strings); });
    EXPECT_EQ(caught, (support::Caught{3502, u"CSymbol.Test", u"Zeile 1"}));
}

} // namespace
