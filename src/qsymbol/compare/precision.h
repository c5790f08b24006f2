#pragma once

namespace qsymbol {

/// How exactly two symbols are compared.
enum class Precision {
    Exact,
    Text, ///< as text files keep them: hundredths of a degree, whole font sizes, no elements without a kind
};

} // namespace qsymbol
