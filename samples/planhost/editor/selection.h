#pragma once

#include <cstddef>
#include <vector>

/// Which placed symbols are marked, by their places in the plan, ascending.
class Selection {
public:
    const std::vector<std::size_t>& Places() const { return places_; }
    bool IsEmpty() const { return places_.empty(); }

    bool Contains(std::size_t place) const;

    void Set(std::vector<std::size_t> places);
    /// What is not marked gets marked, and the other way round.
    void Toggle(const std::vector<std::size_t>& places);
    /// Marks count symbols from a place on.
    void SetRange(std::size_t first, std::size_t count);
    void Clear() { places_.clear(); }

private:
    std::vector<std::size_t> places_;
};
