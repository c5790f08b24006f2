#pragma once

#include <cstdint>
#include <string>

namespace qsymbol {

/// A length in logical units (1/100 mm) as millimetres, with as many decimals as it needs: "900", "12.5".
std::string Millimetres(std::int64_t units);

} // namespace qsymbol
