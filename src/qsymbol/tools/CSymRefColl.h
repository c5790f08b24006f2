#pragma once

#include "qsymbol/model/keyed_list.h"
#include "qsymbol/tools/CSymRef.h"

#include <cstdint>
#include <memory>

namespace qsymbol {

/// The references of a tool, in the order in which they were added, keyed by object id.
///
/// Lookups answer nothing for what is not there. The list may grow while it is walked through. It has all that the
/// other keyed collections have: an editor that takes groups apart would call Append, Clear and the removals, which
/// the symbol tool has no use for.
class CSymRefColl {
public:
    using Reference = std::shared_ptr<const CSymRef>;
    using List = KeyedList<Reference>;

    std::int32_t Count() const { return references_.Count(); }
    /// position: from 1.
    Reference ItemByPos(std::int32_t position) const;
    Reference ItemByIndex(std::int32_t objectId) const;
    bool ItemDa(std::int32_t objectId) const { return ItemByIndex(objectId) != nullptr; }
    /// For walking through with the serial numbers of KeyedList::NextAfter.
    const List& Items() const { return references_; }

    void Clear() { references_.Clear(); }
    /// Adds a copy. Error 457 when there is a reference with this object id.
    void Append(const CSymRef& reference);
    /// Adds the reference itself and empties the caller's variable in any case. Error 457 as above, error 91
    /// when there is nothing in it.
    void AppendRef(Reference& reference);
    /// Error 5 when there is none.
    void RemoveOnPos(std::int32_t position) { references_.RemoveByPos(position); }
    /// Error 5 when there is none.
    void RemoveOnIndex(std::int32_t objectId);

private:
    List references_;
};

} // namespace qsymbol
