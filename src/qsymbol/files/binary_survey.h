#pragma once

#include <cstddef>
#include <string_view>

namespace qsymbol {

/// What a walk over a binary file's bytes finds, without making anything of them.
struct BinarySurvey {
    enum class Result {
        Whole,  ///< all is there up to the end of the last element
        CutOff, ///< the bytes end before that
        Broken, ///< no tag, or a last index that makes no list
    };

    Result result = Result::CutOff;
    std::size_t elementsBegin = 0; ///< of a whole file: where its elements begin
    std::size_t elementsEnd = 0;   ///< and where they end; what lies behind does not count
};

BinarySurvey SurveyBinary(std::string_view bytes);

} // namespace qsymbol
