#pragma once

#include "base/code_page.h"
#include "qsymbol/model/element_record.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace qsymbol {

/// Elements as the bytes of the file they came from, in one block of memory with all that makes records of them. The bytes
/// are checked already: making records can fail for want of memory only.
class PackedElements {
public:
    using Unpack = std::vector<ElementRecord> (*)(std::string_view bytes, std::size_t count,
                                                  const base::CodePage& codePage);

    PackedElements() = default;
    /// Copies the bytes. The code page is that of the texts and outlives the elements.
    PackedElements(std::string_view bytes, std::size_t count, const base::CodePage& codePage, Unpack unpack);
    PackedElements(const PackedElements& other);
    PackedElements(PackedElements&& other) noexcept = default;
    PackedElements& operator=(PackedElements other) noexcept;
    ~PackedElements() = default;

    /// How many elements these are; 0 for a value that holds none.
    std::size_t Count() const;
    /// The elements as records; of a value that holds some.
    std::vector<ElementRecord> Records() const;

private:
    /// What stands ahead of the bytes.
    struct Head {
        std::size_t size;
        std::size_t count;
        const base::CodePage* codePage;
        Unpack unpack;
    };

    Head HeadOf() const;

    std::unique_ptr<char[]> block_; // NOLINT(*-avoid-c-arrays): of any size, in one allocation
};

} // namespace qsymbol
