#pragma once

#include "qsymbol/draw/surface.h"

#include <cstdint>

namespace qsymbol {

/// The pen state of a surface, put back at the end of this object's life whatever happens in between.
class SavedPen {
public:
    /// Reads DrawMode, DrawWidth, DrawStyle, ForeColor and FillStyle, in this order. Errors pass through.
    explicit SavedPen(Surface& surface);
    /// Puts all five back in the same order; what fails is left as it is.
    ~SavedPen();

    SavedPen(const SavedPen&) = delete;
    SavedPen& operator=(const SavedPen&) = delete;

    /// Drawing the same image twice restores what was there: not-xor mode, one pixel wide, solid, black,
    /// not filled.
    void UseInvertingPen();
    /// The image replaces what is there; elements bring their own pens.
    void UseCopyPen();

private:
    void PutBack(void (Surface::*put)(std::int32_t), std::int32_t value) noexcept;

    Surface& surface_;
    std::int32_t drawMode_;
    std::int32_t drawWidth_;
    std::int32_t drawStyle_;
    std::int32_t foreColor_;
    std::int32_t fillStyle_;
};

} // namespace qsymbol
