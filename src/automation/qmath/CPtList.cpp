#include "automation/qmath/CPtList.h"

#include "automation/qmath/CPt.h"
#include "automation/shared/point_access.h"
#include "base/checked.h"
#include "com/enumerator.h"

#include <algorithm>
#include <utility>

STDMETHODIMP CPtList::get_Count(LONG* value) {
    return Return(value, [&] { return base::Narrow<LONG>(points_.size()); });
}

STDMETHODIMP CPtList::get_NewEnum(IUnknown** value) {
    return Return(value, [&]() -> IUnknown* {
        const auto next = [this](std::uint64_t& cursor, com::ComPtr<IDispatch>& item) {
            const std::uint64_t serial = std::max(cursor + 1, firstSerial_);
            if (serial - firstSerial_ >= points_.size())
                return false;
            item = com::ComPtr<IDispatch>(points_[static_cast<std::size_t>(serial - firstSerial_)].Get());
            cursor = serial;
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
        const com::ComPtr<_CPtList> source(list);
        Points copies;
        for (const qmath::Point& point : GetPoints(list))
            copies.emplace_back(CPt::CreateFrom(point).Get());
        Replace(std::move(copies));
    });
}

STDMETHODIMP CPtList::Clear() {
    return Do([&] { Replace({}); });
}

void CPtList::Replace(Points points) {
    firstSerial_ += points_.size();
    points_.swap(points); // the old ones go last: they may be a host's own, which may call back
}
