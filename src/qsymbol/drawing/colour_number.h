#pragma once

#include <cstdint>
#include <unordered_map>

namespace qsymbol {

/// The colour numbers that stand beside true colours, for readers that know no others.
class ColourNumbers {
public:
    /// The first number whose plan colour is nearest to this packed RGB colour.
    int NearestTo(std::int32_t colour);

private:
    std::unordered_map<std::int32_t, int> known_;
};

} // namespace qsymbol
