#pragma once

#include "qsymbol/draw/surface.h"

namespace qsymbol {

/// A font selected into a surface for the length of a scope.
class SelectedFont {
public:
    SelectedFont(Surface& surface, const base::FontRequest& request) : surface_(surface) {
        surface.SelectFont(request);
    }
    ~SelectedFont() { surface_.ReleaseFont(); }
    SelectedFont(const SelectedFont&) = delete;
    SelectedFont& operator=(const SelectedFont&) = delete;

private:
    Surface& surface_;
};

} // namespace qsymbol
