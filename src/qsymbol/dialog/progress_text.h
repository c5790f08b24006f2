#pragma once

#include <cstddef>
#include <string>

namespace qsymbol {

/// How far a run over many entries is, as in "12 von 95".
std::u16string ProgressText(std::size_t current, std::size_t count);

} // namespace qsymbol
