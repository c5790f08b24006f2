#pragma once

#include "com/late_bound.h"
#include "platform/win32/ansi_code_page.h"
#include "platform/win32/selected_font.h"
#include "qsymbol/draw/surface.h"

/// The surface contract over a host's late-bound control and the GDI; lives for one draw call.
class HostSurface final : public qsymbol::Surface {
public:
    /// Reads the control's hDC.
    explicit HostSurface(IDispatch& control);

    IDispatch& Control() const { return *control_; }
    /// What the control's hDC was.
    HDC Context() const { return context_; }

    qsymbol::SurfaceKind Kind() override;
    std::u16string Name() override;

    std::int32_t DrawMode() override { return drawMode_.GetLong(); }
    std::int32_t DrawWidth() override { return drawWidth_.GetLong(); }
    std::int32_t DrawStyle() override { return drawStyle_.GetLong(); }
    std::int32_t ForeColor() override { return foreColor_.GetLong(); }
    std::int32_t FillStyle() override { return fillStyle_.GetLong(); }

    void PutDrawMode(std::int32_t value) override { drawMode_.PutLong(value); }
    void PutDrawWidth(std::int32_t value) override { drawWidth_.PutLong(value); }
    void PutDrawStyle(std::int32_t value) override { drawStyle_.PutLong(value); }
    void PutForeColor(std::int32_t value) override { foreColor_.PutLong(value); }
    void PutFillColor(std::int32_t value) override { fillColor_.PutLong(value); }
    void PutFillStyle(std::int32_t value) override { fillStyle_.PutLong(value); }

    void Line(qmath::Point from, qmath::Point to) override;
    void Polygon(std::span<const qmath::Point> points) override;
    void Polyline(std::span<const qmath::Point> points) override;
    void Ellipse(const qmath::Rect& box) override;
    void Arc(const qmath::Rect& box, qmath::Point start, qmath::Point end) override;
    void Invert(qmath::Point leftTop, std::int32_t width, std::int32_t height) override;
    void SetTextAlign(std::int32_t flags) override;
    void SetBkMode(std::int32_t mode) override;
    void WriteText(qmath::Point anchor, std::u16string_view text) override;
    void WriteTextAsPath(qmath::Point anchor, std::u16string_view text) override;
    void SelectFont(const base::FontRequest& request) override;
    void ReleaseFont() noexcept override;

private:
    HDC ReadContext();

    com::ComPtr<IDispatch> control_;
    com::LateBoundMember hDC_;
    com::LateBoundMember drawMode_;
    com::LateBoundMember drawWidth_;
    com::LateBoundMember drawStyle_;
    com::LateBoundMember foreColor_;
    com::LateBoundMember fillColor_;
    com::LateBoundMember fillStyle_;
    HDC context_;
    platform::AnsiCodePage codePage_;
    platform::SelectedFont font_;
};
