#pragma once

#include "automation/dialog/drawing_style.h"

namespace dialog {

/// Owner of the pen and the brush of a picture box.
class DrawingTools {
public:
    DrawingTools() = default;
    DrawingTools(const DrawingTools&) = delete;
    DrawingTools& operator=(const DrawingTools&) = delete;
    ~DrawingTools();

    /// Selects pen, brush, text colour and mode. Error 5 for a style that means nothing.
    void Select(HDC context, const DrawingStyle& style);
    /// Puts stock objects into their places, which the owner does before the context goes.
    void Release(HDC context);

private:
    void Replace(HDC context, HGDIOBJ& current, HGDIOBJ fresh);

    HGDIOBJ pen_ = nullptr;
    HGDIOBJ brush_ = nullptr;
};

} // namespace dialog
