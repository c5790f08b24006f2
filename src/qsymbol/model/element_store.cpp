#include "qsymbol/model/element_store.h"

#include <mutex>

namespace qsymbol {

namespace {

/// Held while packed elements are copied or become records: each symbol does that once, so one for all is enough.
std::mutex& PackedLock() {
    static std::mutex lock;
    return lock;
}

} // namespace

ElementStore::ElementStore(const ElementStore& other) {
    if (other.IsPacked()) {
        const std::lock_guard hold(PackedLock());
        if (other.IsPacked()) { // GCOVR_EXCL_LINE: unless another thread was faster, just now
            packed_ = other.packed_;
            packedCount_ = other.packedCount_;
            isPacked_.store(true, std::memory_order_relaxed);
            return;
        }
    }
    records_ = other.records_;
}

ElementStore::ElementStore(ElementStore&& other) noexcept
    : records_(std::exchange(other.records_, {})), packed_(std::move(other.packed_)),
      packedCount_(other.packedCount_), isPacked_(other.isPacked_.load(std::memory_order_relaxed)) {
    other.isPacked_.store(false, std::memory_order_relaxed);
}

ElementStore& ElementStore::operator=(ElementStore other) noexcept {
    records_.swap(other.records_);
    packed_ = std::move(other.packed_);
    packedCount_ = other.packedCount_;
    isPacked_.store(other.isPacked_.load(std::memory_order_relaxed), std::memory_order_relaxed);
    return *this;
}

void ElementStore::MakeRecords() const {
    const std::lock_guard hold(PackedLock());
    if (!IsPacked()) // GCOVR_EXCL_LINE: another thread was faster, just now
        return;      // GCOVR_EXCL_LINE: see above
    records_ = packed_.Records();
    packed_ = {};
    isPacked_.store(false, std::memory_order_release);
}

} // namespace qsymbol
