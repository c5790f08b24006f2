#include "qsymbol/dialog/selection_request.h"

#include "qmath/str_util.h"

namespace qsymbol {

SelectionRequest ParseSelectionRequest(std::u16string_view text) {
    constexpr std::u16string_view kSeparator = u"+";
    return {.name = std::u16string(qmath::GetToken(text, kSeparator, 1)),
            .folder = std::u16string(qmath::GetToken(text, kSeparator, 2))};
}

} // namespace qsymbol
