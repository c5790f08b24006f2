#pragma once

#include "qsymbol/picture/vector_surface.h"

#include <string>
#include <string_view>

namespace qsymbol {

/// Collects what is drawn as SVG elements whose user unit is a millimetre.
///
/// Logical units are 1/100 mm. Neighbours of the same paint share one path, which looks the same as long as
/// nothing is filled.
class SvgSurface final : public VectorSurface {
public:
    static constexpr double kUnitsPerMillimetre = 100;
    /// Whole units have two decimals in millimetres; points on circles get one more.
    static constexpr int kDecimals = 3;

    /// The elements so far. They want an SvgDocument's group, or one like it, around them.
    std::string_view Elements();
    /// True when a text with an opaque background was drawn, which needs kOpaqueTextFilter.
    bool HasOpaqueText() const { return hasOpaqueText_; }

private:
    void OnPoly(std::span<const qmath::Point> points, bool closed, const Paint& paint) override;
    void OnCircle(qmath::Vector centre, double radius, const Paint& paint) override;
    void OnArc(qmath::Vector centre, double radius, double start, double sweep, const Paint& paint) override;
    void OnText(const PictureText& text) override;

    /// Opens a path of this paint, or goes on in the one that is open.
    void BeginPath(const Paint& paint);
    void EndPath();
    void PutPaint(const Paint& paint);
    void PutPoint(char command, qmath::Vector point);
    void PutLength(double units);
    void PutAttribute(std::string_view name, double value);

    std::string out_;
    Paint open_;
    bool pathIsOpen_ = false;
    bool hasOpaqueText_ = false;
};

/// The group attributes that every picture's elements count on.
inline constexpr std::string_view kSvgGroupAttributes =
    R"(fill="none" fill-rule="evenodd" stroke-linecap="round" stroke-linejoin="round")";

/// What texts with an opaque background refer to; once in a document.
inline constexpr std::string_view kOpaqueTextFilter =
    R"(<filter id="qsymbol-opaque" x="0" y="0" width="1" height="1"><feFlood flood-color="#fff"/>)"
    R"(<feComposite in="SourceGraphic"/></filter>)";

} // namespace qsymbol
