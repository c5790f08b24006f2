#include "qsymbol/drawing/drawing_names.h"

#include "base/letter_case.h"
#include "qsymbol/drawing/drawing_text.h"

namespace qsymbol {

std::u16string DrawingNames::Take(std::u16string_view wanted) {
    const std::u16string legal = LegalDxfName(wanted);
    std::u16string name = legal;
    for (int number = 2; !taken_.insert(base::UpperCase(name)).second; ++number) {
        const std::string digits = std::to_string(number);
        name = legal + u'_' + std::u16string(digits.begin(), digits.end());
    }
    return name;
}

} // namespace qsymbol
