#pragma once

#include "qsymbol/model/element_record.h"
#include "qsymbol/model/packed_elements.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace qsymbol {

/// Where a list keeps its elements: as records or, until somebody looks at one, packed in one block of memory.
///
/// Of a large catalogue most symbols are never looked at. Copies of what is packed are packed. Threads may look at the
/// same store at the same time.
class ElementStore {
public:
    using Records = std::vector<ElementRecord>;

    ElementStore() = default;
    explicit ElementStore(Records records) : records_(std::move(records)) {}
    explicit ElementStore(PackedElements packed)
        : packed_(std::move(packed)), packedCount_(static_cast<std::uint32_t>(packed_.Count())),
          isPacked_(true) {}
    ElementStore(const ElementStore& other);
    ElementStore(ElementStore&& other) noexcept;
    ElementStore& operator=(ElementStore other) noexcept;
    ~ElementStore() = default;

    std::size_t Count() const { return IsPacked() ? packedCount_ : records_.size(); }
    bool IsPacked() const { return isPacked_.load(std::memory_order_acquire); }

    /// The elements as records.
    const Records& Look() const {
        if (IsPacked())
            MakeRecords();
        return records_;
    }
    Records& Edit() {
        Look();
        return records_;
    }

private:
    void MakeRecords() const;

    mutable Records records_;
    mutable PackedElements packed_; ///< goes when the records are made
    std::uint32_t packedCount_ = 0; ///< stays then: another thread may be asking for it
    mutable std::atomic<bool> isPacked_{false};
};

} // namespace qsymbol
