#pragma once

#include "qmath/point.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace qsymbol {

/// The library-wide array of pixels that drawing fills before each output. It only grows.
class ScreenPointBuffer {
public:
    /// The one of the process.
    static ScreenPointBuffer& Shared();

    /// The last index, -1 when empty.
    std::int32_t UpperIndex() const { return static_cast<std::int32_t>(points_.size()) - 1; }
    /// Start-up: empty.
    void Reset() { points_ = {}; }

    /// The buffer in use for one element, at least count points long. A foreign object may draw again while
    /// it converts a point; the inner drawing then finds the buffer empty instead of writing into this one.
    class Lease {
    public:
        Lease(ScreenPointBuffer& buffer, std::size_t count) : buffer_(buffer) {
            if (buffer.points_.size() < count)
                buffer.points_.resize(count);
            storage_ = std::move(buffer.points_);
            points_ = std::span(storage_).first(count);
        }
        ~Lease() {
            if (storage_.size() > buffer_.points_.size())
                buffer_.points_ = std::move(storage_);
        }
        Lease(const Lease&) = delete;
        Lease& operator=(const Lease&) = delete;

        std::span<qmath::Point> Points() const { return points_; }

    private:
        ScreenPointBuffer& buffer_;
        std::vector<qmath::Point> storage_;
        std::span<qmath::Point> points_;
    };

private:
    std::vector<qmath::Point> points_;
};

} // namespace qsymbol
