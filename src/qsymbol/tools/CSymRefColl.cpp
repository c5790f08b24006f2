#include "qsymbol/tools/CSymRefColl.h"

#include <string>
#include <utility>

namespace qsymbol {

namespace {

std::u16string Key(std::int32_t objectId) {
    const std::string digits = std::to_string(objectId);
    return std::u16string(digits.begin(), digits.end()) + u"$";
}

CSymRefColl::Reference Share(const CSymRefColl::Reference* place) {
    return place == nullptr ? nullptr : *place;
}

} // namespace

CSymRefColl::Reference CSymRefColl::ItemByPos(std::int32_t position) const {
    return Share(references_.ItemByPos(position));
}

CSymRefColl::Reference CSymRefColl::ItemByIndex(std::int32_t objectId) const {
    return Share(references_.ItemByKey(Key(objectId)));
}

void CSymRefColl::Append(const CSymRef& reference) {
    const auto copy = std::make_shared<CSymRef>();
    copy->CopyFrom(reference);
    references_.Append(copy, Key(copy->ObjId()));
}

void CSymRefColl::AppendRef(Reference& reference) {
    Reference taken = std::exchange(reference, nullptr);
    if (taken == nullptr)
        base::Raise(base::RunTimeError::ObjectNotSet);
    const std::u16string key = Key(taken->ObjId());
    references_.Append(std::move(taken), key);
}

void CSymRefColl::RemoveOnIndex(std::int32_t objectId) {
    references_.RemoveByKey(Key(objectId));
}

} // namespace qsymbol
