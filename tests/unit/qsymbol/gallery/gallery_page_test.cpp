#include "qsymbol/gallery/gallery_page.h"

#include "qsymbol/gallery/page_template.h"
#include "support/elements.h"

#include <gtest/gtest.h>

namespace {

using qsymbol::GalleryPage;

/// A page is too long for a failure to show it.
bool Holds(const std::string& html, std::string_view part) {
    return html.find(part) != std::string::npos;
}

qsymbol::Symbol Door() {
    qsymbol::Symbol symbol;
    symbol.width = 88500;
    symbol.height = 20001;
    symbol.refX = -50;
    symbol.elements = {support::Poly({{0, 0}, {1000, 0}}), support::Circle({0, 0}, 10),
                       support::Element(static_cast<qsymbol::ElementType>(7), {})};
    return symbol;
}

TEST(GalleryPage, ShowsEachSymbolInItsCategory) {
    GalleryPage page(u"Katalog");
    page.Add(u"Tür", u"Türen & Tore", u"Tür.syt", Door());
    page.Add(u"Bett", u"", u"Bett.syb", {});
    page.Add(u"Tor", u"Türen & Tore", u"Tor.syt", Door());
    const std::string html = page.Compose();
    EXPECT_TRUE(Holds(html, "<title>Katalog – Symbole</title>"));
    EXPECT_TRUE(Holds(html, ">3 Symbole</p>"));
    EXPECT_TRUE(Holds(html, "data-category=\"Türen &amp; Tore\">Türen &amp; Tore <span>2</span></button>"));
    EXPECT_TRUE(Holds(html, "<h2 id=\"category-2\">Ohne Kategorie <span>1</span></h2>"));
    EXPECT_TRUE(Holds(html, "<li data-w=\"885\" data-h=\"200.01\" data-x=\"10.3 0.4\" data-r=\"-0.5 0\" "
                            "data-e=\"1 1 0 0 1\" data-f=\"Tür.syt\">"));
    EXPECT_TRUE(Holds(html, "<span class=\"name\">Tür</span><span class=\"size\">885 × 200,01 mm</span>"));
    EXPECT_TRUE(Holds(html, "<svg viewBox=\"-0.2 -0.5 10.3 1\""));
    EXPECT_TRUE(Holds(html, "<span class=\"empty\">leer</span>"));
    EXPECT_LT(html.find(">Tür<"), html.find(">Tor<"));
    EXPECT_LT(html.find(">Tor<"), html.find(">Bett<"));
}

TEST(GalleryPage, NeedsNothingFromOutside) {
    GalleryPage page(u"<b>@SCRIPT@");
    page.Add(u"</span><script>alert(1)</script>", u"\"", u"'>", Door());
    const std::string html = page.Compose();
    EXPECT_TRUE(Holds(html, "<h1>&lt;b&gt;@SCRIPT@</h1>"));
    EXPECT_FALSE(Holds(html, "<script>alert"));
    EXPECT_FALSE(Holds(html, "://www.w3.org/1999")); // no namespaces, no addresses but the one of SVG
    EXPECT_TRUE(Holds(html, "default-src 'none'"));
    EXPECT_TRUE(Holds(html, "aria-label=\"Kategorien\" hidden>"));
}

TEST(PageTemplate, FillsEachNameOnce) {
    EXPECT_EQ(qsymbol::FilledTemplate("a@X@b@Y@c@X@", {{"X", "@Y@"}, {"Y", ""}}), "a@Y@bc@Y@");
    EXPECT_EQ(qsymbol::FilledTemplate("@media @X", {{"X", "1"}}), "@media @X");
    EXPECT_EQ(qsymbol::FilledTemplate("@media (a)@X@@", {{"X", "1"}}), "@media (a)1@");
}

} // namespace
