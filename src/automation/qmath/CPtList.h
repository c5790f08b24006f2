#pragma once

#include "com/dual_object.h"

#include <QMath.h>

#include <cstdint>
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
    using Points = std::vector<com::ComPtr<_CPt>>;

    void Replace(Points points);

    Points points_;
    /// Serial number of the first point. All points that the list ever had count on from 1, so an enumerator
    /// that remembers the last one it gave follows when others take their places.
    std::uint64_t firstSerial_ = 1;
};
