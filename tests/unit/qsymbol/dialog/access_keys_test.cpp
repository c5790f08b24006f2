#include "qsymbol/dialog/access_keys.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(AccessKeys, AreUnique) {
    using Captions = std::vector<std::u16string>;
    const std::pair<Captions, Captions> cases[] = {
        {{u"&Bilder", u"&Symbole:", u"&Anhalten", u"Ab&brechen"},
         {u"&Bilder", u"&Symbole:", u"&Anhalten", u"Abb&rechen"}},
        {{u"&Alle als JPEG", u"&alle"}, {u"&Alle als JPEG", u"a&lle"}},
        {{u"&Neu", u"Alles &neu zeichnen"}, {u"&Neu", u"&Alles neu zeichnen"}},
        {{u"&A", u"&a"}, {u"&A", u"a"}},
        {{u"Rot && &Blau", u"&Blau && Rot"}, {u"Rot && &Blau", u"Blau && &Rot"}},
        {{u"R && B", u"&R", u"ohne", u"Ende&"}, {u"R && B", u"&R", u"ohne", u"Ende&"}},
        {{u"&Öl", u"&ö 1"}, {u"&Öl", u"ö 1"}},
        {{}, {}},
    };
    for (const auto& [captions, expected] : cases) {
        Captions changed = captions;
        qsymbol::MakeAccessKeysUnique(changed);
        EXPECT_EQ(changed, expected);
    }
}

} // namespace
