#include "palette_text.h"

#include <algorithm>
#include <cwctype>

namespace {

/// The plain letters of U+00C0 to U+017F in their order; "*" where one is not enough.
constexpr std::wstring_view kPlain =
    L"aaaaaa*ceeeeiiiidnooooo\u00D7ouuuuy**"
    L"aaaaaa*ceeeeiiiidnooooo\u00F7ouuuuy*y"
    L"aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiii**jjkkk"
    L"llllllllllnnnnnnnnnoooooo**rrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
constexpr wchar_t kFirstPlain = 0xC0;
static_assert(kPlain.size() == 0x180 - 0xC0);

const wchar_t* TwoLetters(wchar_t letter) {
    switch (letter) {
    case L'Æ':
    case L'æ': return L"ae";
    case L'Þ':
    case L'þ': return L"th";
    case L'Œ':
    case L'œ': return L"oe";
    case 0x132: // IJ as one letter
    case 0x133: return L"ij";
    default: return L"ss";
    }
}

bool IsCombiningAccent(wchar_t letter) {
    return letter >= 0x300 && letter <= 0x36F;
}

void AppendFolded(std::wstring& text, wchar_t letter) {
    if (IsCombiningAccent(letter))
        return;
    if (letter < kFirstPlain || letter >= kFirstPlain + kPlain.size()) {
        text += static_cast<wchar_t>(std::towlower(letter));
        return;
    }
    const wchar_t plain = kPlain[letter - kFirstPlain];
    if (plain == L'*')
        text += TwoLetters(letter);
    else
        text += plain;
}

bool IsUmlaut(wchar_t letter) {
    return std::wstring_view(L"ÄÖÜäöü").find(letter) != std::wstring_view::npos;
}

} // namespace

std::wstring Folded(std::wstring_view text) {
    std::wstring folded;
    for (const wchar_t letter : text)
        AppendFolded(folded, letter);
    return folded;
}

std::wstring SearchText(std::wstring_view text) {
    if (std::ranges::none_of(text, IsUmlaut))
        return Folded(text);
    std::wstring both = Folded(text) + L'\n';
    for (const wchar_t letter : text) {
        AppendFolded(both, letter);
        if (IsUmlaut(letter))
            both += L'e';
    }
    return both;
}

std::vector<std::wstring> FilterWords(std::wstring_view typed) {
    std::vector<std::wstring> words(1);
    for (const wchar_t letter : Folded(typed)) {
        if (!std::iswspace(letter))
            words.back() += letter;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.back().empty())
        words.pop_back();
    return words;
}

bool HasWords(const std::wstring& searchText, const std::vector<std::wstring>& words) {
    return std::ranges::all_of(
        words, [&](const std::wstring& word) { return searchText.find(word) != std::wstring::npos; });
}
