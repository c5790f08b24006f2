#include "dxf/odd_texts.h"

#include "dxf/dxf_frame.h"
#include "qsymbol/export/dxf_export.h"

#include <stdexcept>

namespace support {

const std::vector<std::u16string>& OddTexts() {
    using namespace std::string_literals;
    static const std::vector<std::u16string> texts{
        u"Küche 5 m²",
        u"",
        u" ",
        u"     ",
        u"Zeile 1\nZeile 2\r\nZeile 3\r",
        u"a\r\n  0\r\nLINE\r\n  8\r\n0\r\n 10\r\n0.0\r\n 20\r\n0.0\r\n 11\r\n9.0\r\n 21\r\n9.0",
        u"\0vorn, in der \0 Mitte und hinten\0"s,
        u"\t\x1A\x1B^J^ ^",
        u"≤ 90 cm, √2, \U0001F600",
        u"\x7F\u0085\u2028",
        u"  0",
        u"EOF",
        std::u16string(65536, u'x'),
        std::u16string(65536, u'≤'),
        std::u16string(65536, u'\0'),
    };
    return texts;
}

void WriteOddTexts(base::FileSystem& files, const base::CodePage& codePage, const std::u16string& path) {
    BeginDxf(files, path);
    std::int32_t radius = 0;
    for (const std::u16string& text : OddTexts()) {
        qsymbol::Symbol symbol;
        symbol.elements.resize(2);
        qsymbol::ElementRecord& label = symbol.elements[0];
        label.type = qsymbol::ElementType::Text;
        label.points = {{0, 0}};
        label.font.emplace();
        label.text = text;
        qsymbol::ElementRecord& circle = symbol.elements[1];
        circle.type = qsymbol::ElementType::Circle;
        circle.points = {{0, 0}};
        circle.radius = radius += 100000;
        if (qsymbol::AppendToDxfFile(symbol, {}, 0, path, files, codePage) != nullptr)
            throw std::logic_error("a symbol without elements");
    }
    EndDxf(files, path);
}

} // namespace support
