#pragma once

#include "base/error.h"

#include <cstdint>

namespace qsymbol {

/// What reading one file may take in memory: 64 MiB and 64 bytes for each byte of the file, the
/// file included.
///
/// Counts in a file are charged here before they are believed, so no file, however broken, takes more.
class MemoryBudget {
public:
    explicit MemoryBudget(std::uint64_t fileSize) : left_(kBase + (kPerByte - kContents) * fileSize) {}

    /// Takes memory for so many items of so many bytes, and a fixed sum for the block. Error 7 when it is
    /// not left.
    void Charge(std::uint64_t count, std::uint64_t itemSize) {
        if (left_ < kBlock || count > (left_ - kBlock) / itemSize)
            base::Raise(base::RunTimeError::OutOfMemory);
        left_ -= kBlock + count * itemSize;
    }

    /// Gives back what Charge took with the same arguments.
    void Release(std::uint64_t count, std::uint64_t itemSize) { left_ += kBlock + count * itemSize; }

private:
    /// 64 MiB less what the call itself needs: path, error texts, the operating system's file object.
    static constexpr std::uint64_t kBase = (64U << 20) - (64U << 10);
    static constexpr std::uint64_t kPerByte = 64;
    /// Set aside for the file itself and for its texts (decoded, and once more while a string grows).
    static constexpr std::uint64_t kContents = 12;
    /// What the allocator adds to a block.
    static constexpr std::uint64_t kBlock = 32;

    std::uint64_t left_;
};

} // namespace qsymbol
