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

private:
    std::size_t held_;
    std::size_t blocks_;
};

} // namespace support
