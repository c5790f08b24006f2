#pragma once

#include "qmath/point.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace qsymbol {

/// The pixels of one element, which drawing fills before its output.
///
/// Every drawing has its own: several threads may draw, and a foreign object may draw again while it converts
/// a point. The few points that most elements have need no memory of the heap.
class ScreenPointBuffer {
public:
    explicit ScreenPointBuffer(std::size_t count) {
        if (count > few_.size())
            many_.resize(count);
        points_ = many_.empty() ? std::span(few_).first(count) : std::span(many_);
    }
    ScreenPointBuffer(const ScreenPointBuffer&) = delete;
    ScreenPointBuffer& operator=(const ScreenPointBuffer&) = delete;

    std::span<qmath::Point> Points() const { return points_; }

private:
    std::array<qmath::Point, 32> few_;
    std::vector<qmath::Point> many_;
    std::span<qmath::Point> points_;
};

} // namespace qsymbol
