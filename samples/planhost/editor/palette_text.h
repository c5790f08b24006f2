#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The text as a filter compares it: lower case, letters without their accents, "ß" as "ss".
std::wstring Folded(std::wstring_view text);

/// What a filter looks in: the folded text in both ways of writing umlauts, "kuchenzeile" and "kuechenzeile".
std::wstring SearchText(std::wstring_view text);

/// The folded words of what was typed.
std::vector<std::wstring> FilterWords(std::wstring_view typed);

/// Whether a search text has each of the words somewhere.
bool HasWords(const std::wstring& searchText, const std::vector<std::wstring>& words);
