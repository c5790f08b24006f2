#include "selection.h"

#include <algorithm>
#include <iterator>
#include <numeric>

bool Selection::Contains(std::size_t place) const {
    return std::ranges::binary_search(places_, place);
}

void Selection::Set(std::vector<std::size_t> places) {
    places_ = std::move(places);
    std::ranges::sort(places_);
}

void Selection::Toggle(const std::vector<std::size_t>& places) {
    std::vector<std::size_t> sorted = places;
    std::ranges::sort(sorted);
    std::vector<std::size_t> result;
    std::ranges::set_symmetric_difference(places_, sorted, std::back_inserter(result));
    places_ = std::move(result);
}

void Selection::SetRange(std::size_t first, std::size_t count) {
    places_.resize(count);
    std::iota(places_.begin(), places_.end(), first);
}
