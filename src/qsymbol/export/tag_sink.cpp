#include "qsymbol/export/tag_sink.h"

#include "base/number_format.h"

#include <algorithm>

namespace qsymbol {

namespace {

constexpr int kDecimals = 14;
constexpr std::size_t kFirstSize = 8192;

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
    bytes_.resize(std::max({kFirstSize, 2 * bytes_.size(), size_ + count}));
}

} // namespace qsymbol
