#include "qsymbol/dialog/access_keys.h"

#include "base/letter_case.h"

#include <string_view>

namespace qsymbol {

namespace {

constexpr char16_t kMark = u'&';

/// Where the mark is; npos for none. The system takes the last one when there are several.
std::size_t MarkOf(std::u16string_view caption) {
    std::size_t mark = std::u16string_view::npos;
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != kMark)
            continue;
        if (caption[i + 1] != kMark)
            mark = i;
        ++i;
    }
    return mark;
}

bool IsLetter(char16_t c) {
    return base::UpperCase(std::u16string_view(&c, 1)) != base::LowerCase(std::u16string_view(&c, 1));
}

/// The place of a letter that may become the key: the first of a word before those inside; npos for none.
std::size_t FreeLetter(std::u16string_view caption, std::u16string_view taken) {
    for (const bool atBeginning : {true, false}) {
        for (std::size_t i = 0; i < caption.size(); ++i) {
            if (IsLetter(caption[i]) && (i == 0 || caption[i - 1] == u' ') == atBeginning &&
                taken.find(base::UpperCase(caption.substr(i, 1))) == std::u16string_view::npos)
                return i;
        }
    }
    return std::u16string_view::npos;
}

} // namespace

void MakeAccessKeysUnique(std::span<std::u16string> captions) {
    std::u16string taken;
    for (std::u16string& caption : captions) {
        std::size_t mark = MarkOf(caption);
        if (mark == std::u16string::npos)
            continue;
        if (taken.find(base::UpperCase(std::u16string_view(caption).substr(mark + 1, 1))) !=
            std::u16string::npos) {
            caption.erase(mark, 1);
            mark = FreeLetter(caption, taken);
            if (mark == std::u16string::npos)
                continue;
            caption.insert(mark, 1, kMark);
        }
        taken += base::UpperCase(std::u16string_view(caption).substr(mark + 1, 1));
    }
}

} // namespace qsymbol
