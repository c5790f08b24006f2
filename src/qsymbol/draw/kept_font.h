#pragma once

#include "qsymbol/draw/surface.h"

#include <optional>

namespace qsymbol {

/// The font of a surface within one draw call: kept selected as long as texts ask for the same one.
class KeptFont {
public:
    explicit KeptFont(Surface& surface) : surface_(surface) {}
    ~KeptFont() { Release(); }
    KeptFont(const KeptFont&) = delete;
    KeptFont& operator=(const KeptFont&) = delete;

    void Select(base::FontRequest request) {
        if (selected_ == request)
            return;
        Release();
        surface_.SelectFont(request);
        selected_ = std::move(request);
    }
    /// Back to the surface's own font.
    void Release() noexcept {
        if (!selected_)
            return;
        selected_.reset();
        surface_.ReleaseFont();
    }

private:
    Surface& surface_;
    std::optional<base::FontRequest> selected_;
};

} // namespace qsymbol
