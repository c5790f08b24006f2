#pragma once

#include <span>
#include <string>

namespace qsymbol {

/// Gives each caption an access key of its own. "&" marks it, "&&" is a plain ampersand. The first caption with a key
/// keeps it; a later one moves its mark to the beginning of a word or else to any letter that is still free, and loses
/// it when there is none. Captions without a mark stay as they are.
void MakeAccessKeysUnique(std::span<std::u16string> captions);

} // namespace qsymbol
