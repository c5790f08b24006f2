#include "automation/qmath/CPtList.h"

#include "automation/qmath/CPt.h"
#include "automation/shared/point_access.h"
#include "base/checked.h"
#include "com/enumerator.h"

STDMETHODIMP CPtList::get_Count(LONG* value) {
    return Return(value, [&] { return base::Narrow<LONG>(points_.size()); });
}

STDMETHODIMP CPtList::get_NewEnum(IUnknown** value) {
    return Return(value, [&]() -> IUnknown* {
        const auto next = [this](std::uint64_t& cursor, com::ComPtr<IDispatch>& item) {
            if (cursor >= points_.size())
                return false;
            item = com::ComPtr<IDispatch>(points_[static_cast<std::size_t>(cursor++)].Get());
            return true;
        };
        return com::NewEnumerator(com::ComPtr<IUnknown>(static_cast<_CPtList*>(this)), next).Detach();
    });
}

STDMETHODIMP CPtList::get_Item(LONG index, _CPt** value) {
    return Return(value, [&] {
        if (index < 1 || static_cast<std::size_t>(index) > points_.size())
            base::Raise(base::RunTimeError::SubscriptOutOfRange);
        return com::ComPtr<_CPt>(points_[static_cast<std::size_t>(index) - 1]).Detach();
    });
}

STDMETHODIMP CPtList::AddPoint(_CPt* pt) {
    return Do([&] { points_.emplace_back(&com::Required(pt)); });
}

STDMETHODIMP CPtList::CopyPoints(_CPtList* list) {
    return Do([&] {
        std::vector<com::ComPtr<_CPt>> copies;
        for (const qmath::Point& point : GetPoints(list)) {
            copies.emplace_back(CPt::Create().Get());
            SetPoint(copies.back().Get(), point);
        }
        points_ = std::move(copies);
    });
}

STDMETHODIMP CPtList::Clear() {
    return Do([&] { points_.clear(); });
}
