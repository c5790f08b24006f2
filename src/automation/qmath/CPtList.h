#pragma once

#include "com/dual_object.h"

#include <QMath.h>

#include <vector>

/// Public class CPtList: an ordered list of point objects, counted from 1.
class CPtList final : public com::DualObject<CPtList, _CPtList> {
public:
    STDMETHODIMP get_Count(LONG* value) override;
    STDMETHODIMP get_NewEnum(IUnknown** value) override;
    STDMETHODIMP get_Item(LONG index, _CPt** value) override;
    STDMETHODIMP AddPoint(_CPt* pt) override;
    STDMETHODIMP CopyPoints(_CPtList* list) override;
    STDMETHODIMP Clear() override;

private:
    std::vector<com::ComPtr<_CPt>> points_;
};
