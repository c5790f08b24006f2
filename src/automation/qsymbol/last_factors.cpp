#include "automation/qsymbol/last_factors.h"

namespace last_factors {

namespace {

thread_local qsymbol::DrawFactors t_last; // without a destructor: threads end without calling one

} // namespace

void Keep(const qsymbol::DrawFactors& factors) {
    t_last = factors;
}

double Screen() {
    return t_last.screen;
}

} // namespace last_factors
