#include "automation/qplan/CPlacementColl.h"

#include "automation/qplan/CPlacement.h"
#include "com/enumerator.h"

com::ComPtr<CPlacementColl> CPlacementColl::CreateFor(CPlan& plan, std::vector<std::int32_t> ids) {
    com::ComPtr<CPlacementColl> found = Create();
    found->plan_ = com::ComPtr<CPlan>(&plan);
    found->ids_ = std::move(ids);
    return found;
}

STDMETHODIMP CPlacementColl::get_Count(LONG* value) {
    return Return(value, [&] { return static_cast<LONG>(ids_.size()); });
}

STDMETHODIMP CPlacementColl::get_ItemByPos(LONG lPos, _CPlacement** value) {
    return Return(value, [&]() -> _CPlacement* {
        if (lPos < 1 || static_cast<std::size_t>(lPos) > ids_.size())
            return nullptr;
        return CPlacement::CreateFor(*plan_.Get(), ids_[static_cast<std::size_t>(lPos) - 1]).Detach();
    });
}

STDMETHODIMP CPlacementColl::get_NewEnum(IUnknown** value) {
    return Return(value, [&] {
        const auto next = [this](std::uint64_t& cursor, com::ComPtr<IDispatch>& item) {
            if (cursor >= ids_.size())
                return false;
            item = com::ComPtr<IDispatch>(
                CPlacement::CreateFor(*plan_.Get(), ids_[static_cast<std::size_t>(cursor++)]).Get());
            return true;
        };
        return com::NewEnumerator(com::ComPtr<IUnknown>(static_cast<_CPlacementColl*>(this)), next).Detach();
    });
}
