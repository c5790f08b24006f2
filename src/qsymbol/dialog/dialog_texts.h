#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// What the selection dialog reads and shows, as plain texts.
namespace qsymbol {

/// What a host asks of the selection dialog.
struct SelectionRequest {
    std::u16string name;   ///< the entry to select first; "": the first one
    std::u16string folder; ///< where pictures go, without a backslash at its end
};

/// Takes "name+folder" apart; a missing field is "".
SelectionRequest ParseSelectionRequest(std::u16string_view text);

/// A logical length as the user reads it: divided by the unit factor, in the pattern "0.00" with the given
/// decimal separator, halves away from zero. Error 6 when the quotient is no finite number.
std::u16string SizeText(std::int32_t length, double unitFactor, std::u16string_view decimal);

/// How far a run over many entries is, as in "12 von 95".
std::u16string ProgressText(std::size_t current, std::size_t count);

/// What came of an export, as in "95 Bilder in C:\\Bilder gespeichert".
std::u16string SavedText(std::size_t count, std::u16string_view folder);

/// The file that the picture of an entry is written to. An empty folder is the root of the current drive.
std::u16string PicturePath(std::u16string_view folder, std::u16string_view name);

} // namespace qsymbol
