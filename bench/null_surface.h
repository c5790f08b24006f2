#pragma once

#include "qsymbol/draw/surface.h"

#include <cstddef>

namespace bench {

/// A surface on which nothing costs anything, so that what remains is the library's own work.
class NullSurface final : public qsymbol::Surface {
public:
    std::size_t outputs = 0;

    qsymbol::SurfaceKind Kind() override { return qsymbol::SurfaceKind::PictureBox; }
    std::u16string Name() override { return u"GraphicBox"; }
    std::int32_t DrawMode() override { return 13; }
    std::int32_t DrawWidth() override { return 1; }
    std::int32_t DrawStyle() override { return 0; }
    std::int32_t ForeColor() override { return 0; }
    std::int32_t FillStyle() override { return 1; }
    void PutDrawMode(std::int32_t) override {}
    void PutDrawWidth(std::int32_t) override {}
    void PutDrawStyle(std::int32_t) override {}
    void PutForeColor(std::int32_t) override {}
    void PutFillColor(std::int32_t) override {}
    void PutFillStyle(std::int32_t) override {}
    void Line(qmath::Point, qmath::Point) override { ++outputs; }
    void Polygon(std::span<const qmath::Point>) override { ++outputs; }
    void Polyline(std::span<const qmath::Point>) override { ++outputs; }
    void Ellipse(const qmath::Rect&) override { ++outputs; }
    void Arc(const qmath::Rect&, qmath::Point, qmath::Point) override { ++outputs; }
    void Invert(qmath::Point, std::int32_t, std::int32_t) override { ++outputs; }
    void SetTextAlign(std::int32_t) override {}
    void SetBkMode(std::int32_t) override {}
    void WriteText(qmath::Point, std::u16string_view) override { ++outputs; }
    void WriteTextAsPath(qmath::Point, std::u16string_view) override { ++outputs; }
    void SelectFont(const base::FontRequest&) override {}
    void ReleaseFont() noexcept override {}
};

} // namespace bench
