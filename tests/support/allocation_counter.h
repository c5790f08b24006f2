#pragma once

#include <cstddef>

namespace support {

/// Bytes that the program holds from operator new, measured from the moment this object is made.
///
/// The test program's operator new and delete are replaced by counting ones; they go through malloc, so the
/// sanitizers still see every block. One at a time, in one thread.
class AllocationCounter {
public:
    AllocationCounter();

    /// Largest sum held at one time since the start, in bytes.
    std::size_t Peak() const;
    /// Number of blocks asked for since the start.
    std::size_t Blocks() const;
    /// Sum of all blocks asked for since the start, in bytes: what the work cost, not what it holds.
    std::size_t Total() const;
    /// True when everything taken since the start was given back.
    bool AllGivenBack() const;

private:
    std::size_t held_;
    std::size_t blocks_;
    std::size_t total_;
};

/// Lets operator new fail once, for the block after so many others, while this object lives.
class AllocationFailure {
public:
    explicit AllocationFailure(std::size_t blocksBefore);
    AllocationFailure(const AllocationFailure&) = delete;
    AllocationFailure& operator=(const AllocationFailure&) = delete;
    ~AllocationFailure();

    /// True when it has happened.
    bool Happened() const;
};

} // namespace support
