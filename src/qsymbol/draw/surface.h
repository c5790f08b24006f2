#pragma once

#include "base/font_request.h"
#include "qmath/point.h"
#include "qmath/rect.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace qsymbol {

enum class SurfaceKind { PictureBox, Printer };

/// Contract: the host's drawing surface for the length of one draw call.
///
/// Gets and puts are the host object's late-bound properties under the same names and pass its errors on
/// (number, source and description as they are). The outputs go to its device context, in pixels.
class Surface {
public:
    virtual ~Surface() = default;

    virtual SurfaceKind Kind() = 0;
    /// The control's name. Not asked of a printer, which has none.
    virtual std::u16string Name() = 0;

    virtual std::int32_t DrawMode() = 0;
    virtual std::int32_t DrawWidth() = 0;
    virtual std::int32_t DrawStyle() = 0;
    virtual std::int32_t ForeColor() = 0;
    virtual std::int32_t FillStyle() = 0;

    virtual void PutDrawMode(std::int32_t value) = 0;
    virtual void PutDrawWidth(std::int32_t value) = 0;
    virtual void PutDrawStyle(std::int32_t value) = 0;
    virtual void PutForeColor(std::int32_t value) = 0;
    virtual void PutFillColor(std::int32_t value) = 0;
    virtual void PutFillStyle(std::int32_t value) = 0;

    /// The control's own late-bound "Line" method, in its current pen.
    virtual void Line(qmath::Point from, qmath::Point to) = 0;

    virtual void Polygon(std::span<const qmath::Point> points) = 0;
    virtual void Polyline(std::span<const qmath::Point> points) = 0;
    /// box is the bounding square as it stands, with exchanged edges for a negative radius.
    virtual void Ellipse(const qmath::Rect& box) = 0;
    /// In the context's arc direction from the ray through start to the ray through end.
    virtual void Arc(const qmath::Rect& box, qmath::Point start, qmath::Point end) = 0;
    /// Inverts the pixels below a rectangle. Reads the device context anew each time.
    virtual void Invert(qmath::Point leftTop, std::int32_t width, std::int32_t height) = 0;

    virtual void SetTextAlign(std::int32_t flags) = 0;
    virtual void SetBkMode(std::int32_t mode) = 0;
    /// Writes the text in the selected font; converts it to the ANSI code page.
    virtual void WriteText(qmath::Point anchor, std::u16string_view text) = 0;
    /// The same as a filled path, which unlike plain text follows the raster operation.
    virtual void WriteTextAsPath(qmath::Point anchor, std::u16string_view text) = 0;

    /// Creates the font and selects it into the device context.
    virtual void SelectFont(const base::FontRequest& request) = 0;
    /// Selects the previous font back and deletes the created one.
    virtual void ReleaseFont() noexcept = 0;
};

} // namespace qsymbol
