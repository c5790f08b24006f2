#pragma once

#include "automation/qplan/CPlan.h"
#include "com/dual_object.h"

#include <cstdint>
#include <vector>

/// Public class CPlacementColl: placed symbols that a plan has found.
class CPlacementColl final : public com::DualObject<CPlacementColl, _CPlacementColl> {
public:
    static com::ComPtr<CPlacementColl> CreateFor(CPlan& plan, std::vector<std::int32_t> ids);

    STDMETHODIMP get_Count(LONG* value) override;
    STDMETHODIMP get_ItemByPos(LONG lPos, _CPlacement** value) override;
    STDMETHODIMP get_NewEnum(IUnknown** value) override;

private:
    com::ComPtr<CPlan> plan_;
    std::vector<std::int32_t> ids_;
};
