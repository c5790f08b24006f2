#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace qplan {

/// A box of whole world units; its edges belong to it.
struct WorldBox {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    /// Around these edges, cut off at the 32-bit range: two that meet still do.
    static WorldBox Around(double left, double top, double right, double bottom) {
        return {Cut(std::floor(left)), Cut(std::floor(top)), Cut(std::ceil(right)), Cut(std::ceil(bottom))};
    }

    static constexpr WorldBox Everything() {
        using Limits = std::numeric_limits<std::int32_t>;
        return {Limits::min(), Limits::min(), Limits::max(), Limits::max()};
    }

    bool Meets(const WorldBox& other) const {
        // Without branches: where boxes lie is anyone's guess.
        return (left <= other.right) & (other.left <= right) & (top <= other.bottom) & (other.top <= bottom);
    }
    bool Holds(const WorldBox& other) const {
        return (left <= other.left) & (other.right <= right) & (top <= other.top) & (other.bottom <= bottom);
    }
    void Include(const WorldBox& other) {
        left = std::min(left, other.left);
        top = std::min(top, other.top);
        right = std::max(right, other.right);
        bottom = std::max(bottom, other.bottom);
    }

    friend bool operator==(const WorldBox&, const WorldBox&) = default;

private:
    static std::int32_t Cut(double value) {
        return static_cast<std::int32_t>(std::clamp<double>(value, std::numeric_limits<std::int32_t>::min(),
                                                            std::numeric_limits<std::int32_t>::max()));
    }
};

} // namespace qplan
