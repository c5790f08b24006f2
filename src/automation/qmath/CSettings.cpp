#include "automation/qmath/CSettings.h"

#include "base/error.h"

#include <atomic>
#include <cmath>

namespace {

/// Logical units in a unit that the user sees: one for the process, as the settings are global.
std::atomic<double> g_unitFactor = 100;

} // namespace

STDMETHODIMP CSettings::get_UnitFactor(double* value) {
    return Return(value, [&] { return g_unitFactor.load(); });
}

STDMETHODIMP CSettings::put_UnitFactor(double value) {
    return Do([&] {
        if (!(std::isfinite(value) && value > 0))
            base::Raise(base::RunTimeError::InvalidCall);
        g_unitFactor = value;
    });
}
