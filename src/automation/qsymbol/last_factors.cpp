#include "automation/qsymbol/last_factors.h"

namespace last_factors {

namespace {

qsymbol::DrawFactors g_last;

} // namespace

void Keep(const qsymbol::DrawFactors& factors) {
    g_last = factors;
}

double Screen() {
    return g_last.screen;
}

} // namespace last_factors
