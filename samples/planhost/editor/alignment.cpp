#include "alignment.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/// An area seen along one of the two axes.
struct Span {
    double from, to;
    double Middle() const { return (from + to) / 2; }
    double Length() const { return to - from; }
};

bool IsAcross(Alignment alignment) {
    return alignment == Alignment::Left || alignment == Alignment::Right ||
           alignment == Alignment::MiddleAcross || alignment == Alignment::SpreadAcross;
}

/// The gaps between neighbours become the same.
std::vector<double> Spread(const std::vector<Span>& spans) {
    std::vector<std::size_t> order(spans.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return spans[i].Middle(); });
    double taken = 0;
    for (const Span& span : spans)
        taken += span.Length();
    const double from = spans[order.front()].from;
    const double gap = spans.size() < 2
                           ? 0
                           : (spans[order.back()].to - from - taken) / static_cast<double>(spans.size() - 1);
    std::vector<double> moves(spans.size());
    double next = from;
    for (const std::size_t i : order) {
        moves[i] = next - spans[i].from;
        next += spans[i].Length() + gap;
    }
    return moves;
}

double MoveOf(const Span& span, const Span& all, Alignment alignment) {
    switch (alignment) {
    case Alignment::Left:
    case Alignment::Top: return all.from - span.from;
    case Alignment::Right:
    case Alignment::Bottom: return all.to - span.to;
    default: return all.Middle() - span.Middle();
    }
}

} // namespace

std::vector<POINT> AlignedBy(const std::vector<RECT>& areas, Alignment alignment) {
    if (areas.empty())
        return {};
    const bool isAcross = IsAcross(alignment);
    std::vector<Span> spans;
    for (const auto& [left, top, right, bottom] : areas)
        spans.push_back(isAcross ? Span{1.0 * left, 1.0 * right} : Span{1.0 * top, 1.0 * bottom});
    std::vector<double> moves;
    if (alignment == Alignment::SpreadAcross || alignment == Alignment::SpreadDown) {
        moves = Spread(spans);
    } else {
        const Span all{std::ranges::min(spans, {}, &Span::from).from,
                       std::ranges::max(spans, {}, &Span::to).to};
        for (const Span& span : spans)
            moves.push_back(MoveOf(span, all, alignment));
    }
    std::vector<POINT> result;
    for (const double move : moves)
        result.push_back(isAcross ? POINT{std::lround(move), 0} : POINT{0, std::lround(move)});
    return result;
}
