#pragma once

#include "qsymbol/draw/surface.h"

#include <cstdint>
#include <optional>

namespace qsymbol {

/// The pen and fill properties of a surface within one draw call: puts a value only when it differs from what
/// this call put last. The first put of a property is always made.
class SurfacePen {
public:
    explicit SurfacePen(Surface& surface) : surface_(surface) {}

    void ForeColor(std::int32_t value) { Put(foreColor_, value, &Surface::PutForeColor); }
    void DrawWidth(std::int32_t value) { Put(drawWidth_, value, &Surface::PutDrawWidth); }
    void DrawStyle(std::int32_t value) { Put(drawStyle_, value, &Surface::PutDrawStyle); }
    void FillColor(std::int32_t value) { Put(fillColor_, value, &Surface::PutFillColor); }
    void FillStyle(std::int32_t value) { Put(fillStyle_, value, &Surface::PutFillStyle); }

private:
    using Last = std::optional<std::int32_t>;

    void Put(Last& last, std::int32_t value, void (Surface::*put)(std::int32_t)) {
        if (last == value)
            return;
        (surface_.*put)(value);
        last = value;
    }

    Surface& surface_;
    Last foreColor_;
    Last drawWidth_;
    Last drawStyle_;
    Last fillColor_;
    Last fillStyle_;
};

} // namespace qsymbol
