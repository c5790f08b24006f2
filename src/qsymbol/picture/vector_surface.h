#pragma once

#include "qmath/box.h"
#include "qmath/vector.h"
#include "qsymbol/draw/surface.h"
#include "qsymbol/picture/paint.h"
#include "qsymbol/picture/picture_text.h"

#include <optional>

namespace qsymbol {

/// A surface that hands every output on as a shape with its paint: what vector formats have in common.
///
/// It is meant for a transformation of scale 1, so that a "pixel" is a logical unit and nothing is lost.
/// Always in copy mode; the background is that of the picture's reader. The current position of TA_UPDATECP
/// does not exist here: such a text stands on its own anchor.
class VectorSurface : public Surface {
public:
    /// Around everything that was drawn: sweeps of arcs, half the pens, estimated widths of texts.
    const qmath::Box& Bounds() const { return bounds_; }

    SurfaceKind Kind() override { return SurfaceKind::PictureBox; }
    std::u16string Name() override { return {}; }
    std::int32_t DrawMode() override;
    std::int32_t DrawWidth() override { return drawWidth_; }
    std::int32_t DrawStyle() override { return drawStyle_; }
    std::int32_t ForeColor() override { return foreColor_; }
    std::int32_t FillStyle() override { return fillStyle_; }
    void PutDrawMode(std::int32_t /*value*/) override {}
    void PutDrawWidth(std::int32_t value) override { drawWidth_ = value; }
    void PutDrawStyle(std::int32_t value) override { drawStyle_ = value; }
    void PutForeColor(std::int32_t value) override { foreColor_ = value; }
    void PutFillColor(std::int32_t value) override { fillColor_ = value; }
    void PutFillStyle(std::int32_t value) override { fillStyle_ = value; }
    void Line(qmath::Point from, qmath::Point to) override;
    void Polygon(std::span<const qmath::Point> points) override;
    void Polyline(std::span<const qmath::Point> points) override;
    void Ellipse(const qmath::Rect& box) override;
    void Arc(const qmath::Rect& box, qmath::Point start, qmath::Point end) override;
    /// Editing handles are no part of a picture.
    void Invert(qmath::Point /*leftTop*/, std::int32_t /*width*/, std::int32_t /*height*/) override {}
    void SetTextAlign(std::int32_t flags) override { textAlign_ = flags; }
    void SetBkMode(std::int32_t mode) override { bkMode_ = mode; }
    void WriteText(qmath::Point anchor, std::u16string_view text) override;
    void WriteTextAsPath(qmath::Point anchor, std::u16string_view text) override;
    void SelectFont(const base::FontRequest& request) override { font_ = request; }
    void ReleaseFont() noexcept override { font_.reset(); }

protected:
    /// At least two points; a closed one has no last point again.
    virtual void OnPoly(std::span<const qmath::Point> points, bool closed, const Paint& paint) = 0;
    virtual void OnCircle(qmath::Vector centre, double radius, const Paint& paint) = 0;
    /// Counter-clockwise as seen, from `start` over `sweep` radians (0 to 2π, 0 excluded); y grows upwards
    /// for both angles.
    virtual void OnArc(qmath::Vector centre, double radius, double start, double sweep,
                       const Paint& paint) = 0;
    virtual void OnText(const PictureText& text) = 0;

private:
    Paint CurrentPaint(bool mayFill) const;
    void Poly(std::span<const qmath::Point> points, bool closed);
    void IncludeText(const PictureText& text, double ascent, double descent);

    qmath::Box bounds_;
    std::int32_t drawWidth_ = 1;
    std::int32_t drawStyle_ = 0;
    std::int32_t foreColor_ = 0;
    std::int32_t fillColor_ = 0;
    std::int32_t fillStyle_ = 1;
    std::int32_t textAlign_ = 0;
    std::int32_t bkMode_ = 1;
    std::optional<base::FontRequest> font_;
};

} // namespace qsymbol
