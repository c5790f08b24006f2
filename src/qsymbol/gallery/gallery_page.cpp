#include "qsymbol/gallery/gallery_page.h"

#include "qsymbol/gallery/page_template.h"
#include "qsymbol/gallery/page_texts.h"
#include "qsymbol/picture/short_number.h"
#include "qsymbol/svg/svg_document.h"
#include "qsymbol/svg/xml_text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace qsymbol {

namespace {

constexpr double kUnitsPerMillimetre = 100;

std::string ShortMillimetres(double units) {
    std::string text;
    AppendShort(text, units / kUnitsPerMillimetre, 2);
    return text;
}

/// As people write it, with a comma.
std::string Shown(double units) {
    std::string text = ShortMillimetres(units);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

/// How many elements there are of each kind, undefined ones last.
std::string Kinds(const Symbol& symbol) {
    std::array<std::size_t, 5> counts{};
    for (const ElementRecord& element : symbol.elements) {
        const auto type = static_cast<std::size_t>(element.type);
        ++counts[type >= 1 && type <= 4 ? type - 1 : 4];
    }
    std::string text;
    for (const std::size_t count : counts) {
        if (!text.empty())
            text += ' ';
        text += std::to_string(count);
    }
    return text;
}

std::string Picture(const Symbol& symbol, SvgSurface& surface) {
    if (surface.Bounds().IsEmpty())
        return R"(<span class="empty">leer</span>)";
    std::string out = "<svg viewBox=\"" + ViewBox(ViewOf(surface, symbol.width, symbol.height));
    out += R"(" aria-hidden="true" focusable="false"><g )";
    out += kSvgGroupAttributes;
    out += ">\n";
    out += surface.Elements();
    return out + "</g></svg>";
}

std::string Counted(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " Symbol" : " Symbole");
}

} // namespace

void GalleryPage::Add(std::u16string_view name, std::u16string_view category, std::u16string_view file,
                      const Symbol& symbol) {
    SvgSurface surface;
    DrawToSvg(symbol, surface);
    std::string card =
        "<li data-w=\"" + ShortMillimetres(symbol.width) + "\" data-h=\"" + ShortMillimetres(symbol.height);
    card += "\" data-x=\"" + ShortMillimetres(surface.Bounds().Width()) + ' ' +
            ShortMillimetres(surface.Bounds().Height());
    card += "\" data-r=\"" + ShortMillimetres(symbol.refX) + ' ' + ShortMillimetres(symbol.refY);
    card += "\" data-e=\"" + Kinds(symbol) + "\" data-f=\"";
    AppendXmlText(card, file);
    card += R"("><button type="button" aria-haspopup="dialog"><span class="paper">)";
    card += Picture(symbol, surface);
    card += R"(</span><span class="label"><span class="name">)";
    AppendXmlText(card, name);
    card += "</span><span class=\"size\">" + Shown(symbol.width) + " × " + Shown(symbol.height);
    card += " mm</span></span></button></li>\n";

    auto place = std::find_if(categories_.begin(), categories_.end(),
                              [&](const Category& known) { return known.name == category; });
    if (place == categories_.end())
        place = categories_.insert(place, {.name = std::u16string(category), .cards = {}});
    place->cards.push_back(std::move(card));
    ++count_;
}

std::string GalleryPage::Compose() const {
    return FilledTemplate(kGalleryHtml, {{"TITLE", XmlText(title_)},
                                         {"STYLE", std::string(kGalleryCss)},
                                         {"SCRIPT", std::string(kGalleryJs)},
                                         {"FILTER", std::string(kOpaqueTextFilter)},
                                         {"COUNT", Counted(count_)},
                                         {"NAVIGATION", categories_.size() < 2 ? "hidden" : ""},
                                         {"CHIPS", Chips()},
                                         {"SECTIONS", Sections()}});
}

std::string GalleryPage::Chips() const {
    if (categories_.size() < 2)
        return {};
    std::string out = R"(<button type="button" aria-pressed="true" data-all>Alle <span>)";
    out += std::to_string(count_) + "</span></button>\n";
    for (const Category& category : categories_) {
        const std::string name = XmlText(category.name);
        out += R"(<button type="button" aria-pressed="false" data-category=")" + name + "\">" +
               (name.empty() ? "Ohne Kategorie" : name) + " <span>" + std::to_string(category.cards.size()) +
               "</span></button>\n";
    }
    return out;
}

std::string GalleryPage::Sections() const {
    std::string out;
    std::size_t number = 0;
    for (const Category& category : categories_) {
        const std::string id = "category-" + std::to_string(++number);
        const std::string name = XmlText(category.name);
        out += R"(<section data-category=")";
        out += name;
        out += R"(" aria-labelledby=")";
        out += id;
        out += R"("><h2 id=")";
        out += id;
        out += categories_.size() == 1 ? R"(" class="hidden">)" : R"(">)"; // the page's title says it
        out += name.empty() ? "Ohne Kategorie" : name;
        out += " <span>";
        out += std::to_string(category.cards.size());
        out += "</span></h2>\n<ul>\n";
        for (const std::string& card : category.cards)
            out += card;
        out += "</ul></section>\n";
    }
    return out;
}

} // namespace qsymbol
