#include "qplan/index/packed_tree.h"

namespace qplan {

namespace {

/// The place of a point of a grid of 2^16 by 2^16 along Hilbert's curve: points that are near on it are near.
std::uint32_t AlongCurve(std::uint32_t x, std::uint32_t y) {
    constexpr std::uint32_t kLast = 0xFFFF;
    std::uint32_t place = 0;
    for (std::uint32_t side = 0x8000; side > 0; side /= 2) {
        const bool right = (x & side) != 0;
        const bool lower = (y & side) != 0;
        place += side * side * ((right ? 3U : 0U) ^ (lower ? 1U : 0U));
        if (lower)
            continue;
        if (right) {
            x = kLast - x;
            y = kLast - y;
        }
        std::swap(x, y);
    }
    return place;
}

/// Brings the middles of the entries' boxes onto the grid.
class Grid {
public:
    explicit Grid(std::span<const BoxEntry> entries) {
        double right = -kFar;
        double bottom = -kFar;
        for (const BoxEntry& entry : entries) {
            left_ = std::min(left_, TwiceX(entry.box));
            top_ = std::min(top_, TwiceY(entry.box));
            right = std::max(right, TwiceX(entry.box));
            bottom = std::max(bottom, TwiceY(entry.box));
        }
        constexpr double kLast = 65535;
        scale_ = kLast / std::max({right - left_, bottom - top_, 1.0});
    }
    std::uint32_t PlaceOf(const WorldBox& box) const {
        return AlongCurve(static_cast<std::uint32_t>((TwiceX(box) - left_) * scale_),
                          static_cast<std::uint32_t>((TwiceY(box) - top_) * scale_));
    }

private:
    static constexpr double kFar = std::numeric_limits<double>::infinity();

    static double TwiceX(const WorldBox& box) { return static_cast<double>(box.left) + box.right; }
    static double TwiceY(const WorldBox& box) { return static_cast<double>(box.top) + box.bottom; }

    double left_ = kFar;
    double top_ = kFar;
    double scale_ = 1;
};

/// The entries' places along the curve with their positions in the low half, sorted.
std::vector<std::uint64_t> SortedAlongCurve(std::span<const BoxEntry> entries) {
    const Grid grid(entries);
    std::vector<std::uint64_t> order;
    order.reserve(entries.size());
    for (const BoxEntry& entry : entries)
        order.push_back(std::uint64_t{grid.PlaceOf(entry.box)} << 32 | order.size());
    std::sort(order.begin(), order.end());
    return order;
}

} // namespace

PackedTree::PackedTree(std::vector<BoxEntry>& entries) {
    std::size_t boxes = entries.size();
    levels_.push_back({0, boxes});
    do {
        levels_.push_back({boxes, (levels_.back().count + kWidth - 1) / kWidth});
        boxes += levels_.back().count;
    } while (levels_.back().count > 1);
    boxes_.reserve(boxes);
    slots_.reserve(entries.size());
    highest_.reserve(boxes - entries.size());

    for (const std::uint64_t place : SortedAlongCurve(entries)) {
        const BoxEntry& entry = entries[place & 0xFFFFFFFF];
        boxes_.push_back(entry.box);
        slots_.push_back(entry.slot);
    }
    for (std::size_t level = 1; level < levels_.size(); ++level) {
        const Level& below = levels_[level - 1];
        for (std::size_t first = 0; first < below.count; first += kWidth) {
            WorldBox box = boxes_[below.first + first];
            std::uint32_t highest = HighestAt(level - 1, first);
            for (std::size_t at = first + 1; at < std::min(first + kWidth, below.count); ++at) {
                box.Include(boxes_[below.first + at]);
                highest = std::max(highest, HighestAt(level - 1, at));
            }
            boxes_.push_back(box);
            highest_.push_back(highest);
        }
    }
}

void PackedTree::AppendEntriesTo(std::vector<BoxEntry>& entries) const {
    for (std::size_t i = 0; i < slots_.size(); ++i)
        entries.push_back({boxes_[i], slots_[i]});
}

} // namespace qplan
