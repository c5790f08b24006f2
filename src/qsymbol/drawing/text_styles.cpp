#include "qsymbol/drawing/text_styles.h"

#include "base/letter_case.h"
#include "qsymbol/drawing/drawing_text.h"
#include "qsymbol/picture/font_metrics.h"

namespace qsymbol {

namespace {

std::string FileOf(const FontMetrics& metrics, const base::FontRequest& font, const std::string& family) {
    if (base::LowerCase(font.name) != metrics.family)
        return family + ".ttf"; // not one of the known families
    std::string file(metrics.file);
    if (font.bold || font.italic)
        file += font.bold && font.italic ? metrics.boldItalicFile : font.bold ? metrics.boldFile : "i";
    return file + ".ttf";
}

} // namespace

const std::string& TextStyles::StyleFor(const base::FontRequest& font) {
    const auto [entry, isNew] =
        known_.try_emplace({base::UpperCase(font.name), font.bold, font.italic}, styles_.size());
    if (isNew) {
        const FontMetrics& metrics = MetricsOf(font.name);
        const std::u16string family = LegalDxfName(font.name);
        std::u16string name = family;
        name += font.bold ? u" fett" : u"";
        name += font.italic ? u" kursiv" : u"";
        Style style{.name = DrawingText(names_.Take(name)),
                    .family = DrawingText(family),
                    .file = {},
                    .bold = font.bold,
                    .italic = font.italic,
                    .fixedPitch = metrics.fixedPitch,
                    .serif = metrics.serif};
        style.file = FileOf(metrics, font, style.family);
        styles_.push_back(std::move(style));
    }
    return styles_[entry->second].name;
}

std::int64_t FontFlags(const TextStyles::Style& style) {
    constexpr std::int64_t kBold = 0x2000000;
    constexpr std::int64_t kItalic = 0x1000000;
    constexpr std::int64_t kVariablePitch = 2;
    constexpr std::int64_t kFixedPitch = 1;
    constexpr std::int64_t kSerif = 0x10;
    constexpr std::int64_t kSansSerif = 0x20;
    constexpr std::int64_t kModern = 0x30;
    std::int64_t flags = style.fixedPitch ? kFixedPitch | kModern
                         : style.serif    ? kVariablePitch | kSerif
                                          : kVariablePitch | kSansSerif;
    flags |= style.bold ? kBold : 0;
    flags |= style.italic ? kItalic : 0;
    return flags;
}

} // namespace qsymbol
