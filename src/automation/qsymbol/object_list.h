#pragma once

#include "com/enumerator.h"
#include "com/error_info.h"
#include "qsymbol/model/keyed_list.h"

/// What the public collections share: counted objects in a keyed ordered list.
namespace object_list {

/// The object at a place of the list as a reference that the caller owns; nullptr for none.
template <class Object>
Object* Share(const com::ComPtr<Object>* place) {
    return place == nullptr ? nullptr : com::ComPtr<Object>(*place).Detach();
}

/// A For Each enumerator over a list that lives in `owner`.
template <class Object>
IUnknown* NewEnum(IUnknown* owner, const qsymbol::KeyedList<com::ComPtr<Object>>& list) {
    const auto next = [&list](std::uint64_t& cursor, com::ComPtr<IDispatch>& item) {
        const auto* const entry = list.NextAfter(cursor);
        if (entry == nullptr)
            return false;
        cursor = entry->serial;
        item = com::ComPtr<IDispatch>(entry->value.Get());
        return true;
    };
    return com::NewEnumerator(com::ComPtr<IUnknown>(owner), next).Detach();
}

/// Takes the reference that a caller hands over out of his variable, which is Nothing from then on.
template <class Object>
com::ComPtr<Object> TakeOver(Object** variable) {
    return com::ComPtr<Object>::Attach(std::exchange(com::Out(variable), nullptr));
}

} // namespace object_list
