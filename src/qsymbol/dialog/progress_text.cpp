#include "qsymbol/dialog/progress_text.h"

#include <string>

namespace qsymbol {

std::u16string ProgressText(std::size_t current, std::size_t count) {
    const std::string from = std::to_string(current);
    const std::string to = std::to_string(count);
    return std::u16string(from.begin(), from.end()) + u" von " + std::u16string(to.begin(), to.end());
}

} // namespace qsymbol
