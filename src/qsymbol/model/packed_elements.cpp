#include "qsymbol/model/packed_elements.h"

#include <cstring>
#include <utility>

namespace qsymbol {

PackedElements::PackedElements(std::string_view bytes, std::size_t count, const base::CodePage& codePage,
                               Unpack unpack)
    // NOLINTNEXTLINE(*-avoid-c-arrays): see there
    : block_(std::make_unique_for_overwrite<char[]>(sizeof(Head) + bytes.size())) {
    const Head head{bytes.size(), count, &codePage, unpack};
    std::memcpy(block_.get(), &head, sizeof head);
    if (!bytes.empty())
        std::memcpy(block_.get() + sizeof head, bytes.data(), bytes.size());
}

PackedElements::PackedElements(const PackedElements& other) {
    if (other.block_ == nullptr)
        return;
    const std::size_t size = sizeof(Head) + other.HeadOf().size;
    block_ = std::make_unique_for_overwrite<char[]>(size); // NOLINT(*-avoid-c-arrays): see there
    std::memcpy(block_.get(), other.block_.get(), size);
}

PackedElements& PackedElements::operator=(PackedElements other) noexcept {
    block_.swap(other.block_);
    return *this;
}

PackedElements::Head PackedElements::HeadOf() const {
    Head head{};
    std::memcpy(&head, block_.get(), sizeof head);
    return head;
}

std::size_t PackedElements::Count() const {
    return block_ == nullptr ? 0 : HeadOf().count;
}

std::vector<ElementRecord> PackedElements::Records() const {
    const Head head = HeadOf();
    return head.unpack({block_.get() + sizeof head, head.size}, head.count, *head.codePage);
}

} // namespace qsymbol
