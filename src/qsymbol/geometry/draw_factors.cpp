#include "qsymbol/geometry/draw_factors.h"

namespace qsymbol {

DrawFactors& LastDrawFactors() {
    static DrawFactors factors;
    return factors;
}

} // namespace qsymbol
