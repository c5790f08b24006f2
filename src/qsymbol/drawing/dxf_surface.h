#pragma once

#include "qsymbol/drawing/drawing_context.h"
#include "qsymbol/picture/vector_surface.h"

#include <string>

namespace qsymbol {

/// Where the colours of a surface's entities come from.
enum class DxfColours { Own, OfLayer };

/// Collects what is drawn as entities of one block or of the model space of a drawing.
///
/// x stays, y is mirrored at the x axis. Fills become solid hatches below their outlines. Pens up to 2.11 mm
/// are line weights, wider ones polylines of that width. Backgrounds of texts are not drawn.
class DxfSurface final : public VectorSurface {
public:
    /// `owner` is the handle of the block record, `layer` an encoded name.
    DxfSurface(DrawingContext& context, DxfHandle owner, std::string layer,
               DxfColours colours = DxfColours::Own);

    const DxfTags& Entities() const { return out_; }

private:
    void OnPoly(std::span<const qmath::Point> points, bool closed, const Paint& paint) override;
    void OnCircle(qmath::Vector centre, double radius, const Paint& paint) override;
    void OnArc(qmath::Vector centre, double radius, double start, double sweep, const Paint& paint) override;
    void OnText(const PictureText& text) override;

    void Begin(std::string_view type, std::int32_t colour);
    /// Begins an outline: its line weight; the width of a pen that is too wide for one, otherwise 0.
    double BeginLine(std::string_view type, const Paint& paint);
    void BeginHatch(std::int32_t colour, bool bulged, std::size_t vertices);
    void EndHatch();
    void PutCircle(qmath::Vector centre, double radius);
    void PutTextPiece(const PictureText& text, TextSide side, double offset, double width,
                      std::u16string_view piece);
    void PutPoint(int code, qmath::Vector point);
    void PutVertex(qmath::Vector point);
    double X(double x) const { return context_.Length(x); }
    double Y(double y) const { return context_.Length(-y); }

    DrawingContext& context_;
    DxfHandle owner_;
    std::string layer_;
    DxfColours colours_;
    DxfTags out_;
};

} // namespace qsymbol
