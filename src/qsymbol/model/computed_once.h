#pragma once

#include <atomic>
#include <memory>

namespace qsymbol {

/// What is computed from a value when it is first asked for, and kept until the value changes.
///
/// A copy takes along what was computed. Threads may ask for the same one at the same time.
template <class T>
class ComputedOnce {
public:
    ComputedOnce() = default;
    ComputedOnce(const ComputedOnce& other) : value_(other.Copy()) {}
    ComputedOnce(ComputedOnce&& other) noexcept : value_(other.Take()) {}
    ComputedOnce& operator=(ComputedOnce other) noexcept {
        delete Take();
        value_.store(other.Take(), std::memory_order_relaxed);
        return *this;
    }
    ~ComputedOnce() { delete value_.load(std::memory_order_relaxed); }

    template <class Compute>
    const T& Get(Compute&& compute) const {
        if (const T* const present = value_.load(std::memory_order_acquire))
            return *present;
        auto made = std::make_unique<const T>(compute());
        const T* present = nullptr;
        // Whoever was faster has computed the same.
        return value_.compare_exchange_strong(present, made.get(), std::memory_order_acq_rel)
                   ? *made.release()
                   : *present;
    }

    void Drop() noexcept {
        if (value_.load(std::memory_order_relaxed) != nullptr)
            delete Take();
    }

private:
    /// Leaves nothing behind. Nobody else looks while a value moves or changes, so this needs no locked instruction.
    const T* Take() noexcept {
        const T* const present = value_.load(std::memory_order_relaxed);
        value_.store(nullptr, std::memory_order_relaxed);
        return present;
    }
    const T* Copy() const {
        const T* const present = value_.load(std::memory_order_acquire);
        return present == nullptr ? nullptr : new T(*present);
    }

    mutable std::atomic<const T*> value_{nullptr};
};

} // namespace qsymbol
