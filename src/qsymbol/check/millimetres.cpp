#include "qsymbol/check/millimetres.h"

namespace qsymbol {

std::string Millimetres(std::int64_t units) {
    constexpr std::int64_t kUnits = 100;
    const bool negative = units < 0;
    const std::int64_t size = negative ? -units : units;
    std::string text = std::to_string(size / kUnits);
    if (negative)
        text.insert(text.begin(), '-');
    if (const std::int64_t rest = size % kUnits; rest != 0) {
        text += '.';
        text += static_cast<char>('0' + rest / 10);
        if (rest % 10 != 0)
            text += static_cast<char>('0' + rest % 10);
    }
    return text;
}

} // namespace qsymbol
