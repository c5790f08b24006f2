#pragma once

#include "base/code_page.h"
#include "qsymbol/model/element_record.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qsymbol {

/// Elements as the bytes of the file they came from. The bytes are checked already: making records of them can fail for
/// want of memory only.
struct PackedElements {
    using Unpack = std::vector<ElementRecord> (*)(std::string_view bytes, std::size_t count,
                                                  const base::CodePage& codePage);

    std::string bytes;
    std::size_t count = 0;
    const base::CodePage* codePage = nullptr; ///< of the texts; outlives the elements
    Unpack unpack = nullptr;
};

} // namespace qsymbol
