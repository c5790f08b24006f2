#include "qsymbol/export/tag_sink.h"

#include "base/number_format.h"

#include <algorithm>

namespace qsymbol {

namespace {

constexpr int kDecimals = 14;
constexpr std::size_t kFirstCapacity = 8192;

} // namespace

void TagSink::Whole(std::string_view code, std::int32_t value) {
    scratch_.clear();
    base::AppendLong(scratch_, value);
    Text(code, scratch_);
}

void TagSink::Real(std::string_view code, double value) {
    scratch_.clear();
    base::AppendDecimals(scratch_, value, kDecimals, ".");
    Text(code, scratch_);
}

void TagSink::Grow(std::size_t count) {
    const std::size_t capacity = std::max({kFirstCapacity, 2 * capacity_, size_ + count});
    auto bytes = std::make_unique_for_overwrite<char[]>(capacity); // NOLINT(*-avoid-c-arrays)
    std::copy_n(bytes_.get(), size_, bytes.get());
    bytes_ = std::move(bytes);
    capacity_ = capacity;
}

} // namespace qsymbol
