#include "qsymbol/export/dxf_text.h"

#include "platform/posix/windows_1252.h"

#include <gtest/gtest.h>

namespace {

std::string Value(std::u16string_view text) {
    return qsymbol::DxfText(text, platform::Windows1252());
}

TEST(DxfText, IsOneLineInTheCodePage) {
    using namespace std::string_literals;
    EXPECT_EQ(Value(u""), "");
    EXPECT_EQ(Value(u"   "), "   ");
    EXPECT_EQ(Value(u"K\u00FCche 5 m\u00B2 \u20AC"), "K\xFC"
                                                     "che 5 m\xB2 \x80");
    EXPECT_EQ(Value(u"a\nb\r\n\tc"), "a^Jb^M^J^Ic");
    EXPECT_EQ(Value(u"\0\x1B\x1E\x1F"s), "^@^[^^^_");
    EXPECT_EQ(Value(u"2^3"), "2^ 3"); // or a reader takes it for a control character
    EXPECT_EQ(Value(u"\x7F\u0081\u0085"), "\\U+007F\\U+0081\\U+0085");
    EXPECT_EQ(Value(u"\u2264 90 \u03A9"), "\\U+2264 90 \\U+03A9");
    EXPECT_EQ(Value(u"\xD83D\xDE00\xD800!"), "\\U+D83D\\U+DE00\\U+D800!");
    // A crafted text stays a text.
    EXPECT_EQ(Value(u"a\r\n  0\r\nLINE").find('\n'), std::string::npos);
}

TEST(DxfText, IsCutWhereReadersStop) {
    EXPECT_EQ(Value(std::u16string(1020, u'x')), std::string(1020, 'x'));
    EXPECT_EQ(Value(std::u16string(65536, u'x')), std::string(1020, 'x'));
    EXPECT_EQ(Value(std::u16string(1014, u'x') + u"\u2264y"),
              std::string(1014, 'x')); // never inside an escape
    EXPECT_EQ(Value(std::u16string(1013, u'x') + u"\u2264y"), std::string(1013, 'x') + "\\U+2264");
}

} // namespace
