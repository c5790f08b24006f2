#pragma once

#include <string>

namespace qsymbol {

/// The font of a text element as plain values.
struct FontRecord {
    std::u16string name = u"Arial";
    double size = 6; ///< points, in steps of 1/10000
    bool bold = false;
    bool italic = false;
    bool strikethrough = false;
    bool underline = false;

    friend bool operator==(const FontRecord&, const FontRecord&) = default;
};

} // namespace qsymbol
