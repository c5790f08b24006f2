#pragma once

#include "qsymbol/compare/change.h"
#include "qsymbol/compare/precision.h"
#include "qsymbol/model/element_record.h"

#include <vector>

namespace qsymbol {

/// The fields that tell two elements of one kind apart; those that this kind does not use are passed over.
std::vector<Change> ElementChanges(const ElementRecord& before, const ElementRecord& after,
                                   Precision precision);

/// True when both draw the same: one kind and no changes.
bool SameElement(const ElementRecord& before, const ElementRecord& after, Precision precision);

} // namespace qsymbol
