#pragma once

#include <string>
#include <string_view>

namespace qsymbol {

/// What a host asks of the selection dialog.
struct SelectionRequest {
    std::u16string name;   ///< the entry to select first; "": the first one
    std::u16string folder; ///< where pictures go, without a backslash at its end
};

/// Takes "name+folder" apart; a missing field is "".
SelectionRequest ParseSelectionRequest(std::u16string_view text);

} // namespace qsymbol
