#pragma once

#include "com/dual_object.h"

#include <QMath.h>

/// Public class CSettings: settings that the components of one process share; every object shows the same.
class CSettings final : public com::DualObject<CSettings, _CSettings> {
public:
    STDMETHODIMP get_UnitFactor(double* value) override;
    STDMETHODIMP put_UnitFactor(double value) override;
};
