#pragma once

#include "golden/element_text.h"
#include "support/shapes.h"

namespace golden {

/// The elements of a case as those of a client, and back.
support::ElementSpec SpecOf(const std::string& line);
std::vector<support::ElementSpec> SpecsOf(const Lines& lines);
Element ElementOf(const support::ElementSpec& spec);

} // namespace golden
