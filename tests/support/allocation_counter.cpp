#include "support/allocation_counter.h"

#include <cstdint>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

std::size_t heldNow = 0;
std::size_t heldPeak = 0;
std::size_t blockCount = 0;
std::size_t totalBytes = 0;

constexpr std::size_t kNever = SIZE_MAX;
std::size_t blocksBeforeFailure = kNever;

/// True for the one block that is to fail.
bool FailsNow() {
    if (blocksBeforeFailure == kNever)
        return false;
    if (blocksBeforeFailure > 0) {
        --blocksBeforeFailure;
        return false;
    }
    blocksBeforeFailure = kNever;
    return true;
}

void* Take(std::size_t size) {
    if (FailsNow())
        return nullptr;
    return std::malloc(size != 0 ? size : 1);
}

void* Take(std::size_t size, std::align_val_t alignment) {
    if (FailsNow())
        return nullptr;
    const auto step = static_cast<std::size_t>(alignment);
    return std::aligned_alloc(step, (size + step - 1) / step * step);
}

void* CountedOrNull(void* block) noexcept {
    if (block == nullptr)
        return nullptr;
    heldNow += malloc_usable_size(block);
    totalBytes += malloc_usable_size(block);
    heldPeak = heldNow > heldPeak ? heldNow : heldPeak;
    ++blockCount;
    return block;
}

void* Counted(void* block) {
    if (block == nullptr)
        throw std::bad_alloc();
    return CountedOrNull(block);
}

void Free(void* block) noexcept {
    if (block != nullptr)
        heldNow -= malloc_usable_size(block);
    std::free(block);
}

} // namespace

// All forms, for the sanitizers want a block back in the form in which it was given.
void* operator new(std::size_t size) {
    return Counted(Take(size));
}
void* operator new[](std::size_t size) {
    return Counted(Take(size));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return CountedOrNull(Take(size));
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return CountedOrNull(Take(size));
}
void* operator new(std::size_t size, std::align_val_t step) {
    return Counted(Take(size, step));
}
void* operator new[](std::size_t size, std::align_val_t step) {
    return Counted(Take(size, step));
}
void operator delete(void* block) noexcept {
    Free(block);
}
void operator delete[](void* block) noexcept {
    Free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    Free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    Free(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
    Free(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
    Free(block);
}
void operator delete(void* block, std::align_val_t) noexcept {
    Free(block);
}
void operator delete[](void* block, std::align_val_t) noexcept {
    Free(block);
}
void operator delete(void* block, std::size_t, std::align_val_t) noexcept {
    Free(block);
}
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept {
    Free(block);
}

namespace support {

AllocationCounter::AllocationCounter() : held_(heldNow), blocks_(blockCount), total_(totalBytes) {
    heldPeak = heldNow;
}

std::size_t AllocationCounter::Peak() const {
    return heldPeak - held_;
}

std::size_t AllocationCounter::Blocks() const {
    return blockCount - blocks_;
}

std::size_t AllocationCounter::Total() const {
    return totalBytes - total_;
}

bool AllocationCounter::AllGivenBack() const {
    return heldNow == held_;
}

AllocationFailure::AllocationFailure(std::size_t blocksBefore) {
    blocksBeforeFailure = blocksBefore;
}

AllocationFailure::~AllocationFailure() {
    blocksBeforeFailure = kNever;
}

bool AllocationFailure::Happened() const {
    return blocksBeforeFailure == kNever;
}

} // namespace support
