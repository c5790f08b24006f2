#include "automation/objects/host_surface.h"

#include "base/checked.h"
#include "com/type_name.h"
#include "platform/win32/gdi_object.h"

#include <string>

namespace {

static_assert(sizeof(qmath::Point) == sizeof(POINT) && alignof(qmath::Point) == alignof(POINT));

const POINT* Gdi(std::span<const qmath::Point> points) {
    return reinterpret_cast<const POINT*>(points.data());
}

VARIANTARG Single(std::int32_t value) {
    VARIANTARG argument;
    V_VT(&argument) = VT_R4;
    V_R4(&argument) = static_cast<float>(value);
    return argument;
}

} // namespace

HostSurface::HostSurface(IDispatch& control)
    : control_(&control), hDC_(control, L"hDC"), drawMode_(control, L"DrawMode"),
      drawWidth_(control, L"DrawWidth"), drawStyle_(control, L"DrawStyle"), foreColor_(control, L"ForeColor"),
      fillColor_(control, L"FillColor"), fillStyle_(control, L"FillStyle"), context_(ReadContext()) {}

HDC HostSurface::ReadContext() {
    com::Variant value;
    hDC_.Get(VT_I8, value); // handles fit 32 bits, but a 64-bit host may hand out the wide form
    return platform::DeviceContext(static_cast<LONG_PTR>(V_I8(value.Get())));
}

qsymbol::SurfaceKind HostSurface::Kind() {
    return com::TypeName(*control_) == u"Printer" ? qsymbol::SurfaceKind::Printer
                                                  : qsymbol::SurfaceKind::PictureBox;
}

std::u16string HostSurface::Name() {
    return com::LateBoundMember(*control_, L"Name").GetText();
}

void HostSurface::Line(qmath::Point from, qmath::Point to) {
    com::LateBoundMember line(*control_, L"Line");
    VARIANTARG plain[4] = {Single(to.y), Single(to.x), Single(from.y), Single(from.x)};
    if (line.CallUnlessRefused(plain, nullptr))
        return;
    // The picture box's own form: flags, two points, colour.
    VARIANTARG full[6] = {{}, Single(to.y), Single(to.x), Single(from.y), Single(from.x), {}};
    V_VT(&full[0]) = VT_I4;
    V_I4(&full[0]) = ForeColor();
    V_VT(&full[5]) = VT_I2;
    V_I2(&full[5]) = 0;
    line.Call(full, nullptr);
}

void HostSurface::Polygon(std::span<const qmath::Point> points) {
    ::Polygon(context_, Gdi(points), static_cast<int>(points.size()));
}

void HostSurface::Polyline(std::span<const qmath::Point> points) {
    ::Polyline(context_, Gdi(points), static_cast<int>(points.size()));
}

void HostSurface::Ellipse(const qmath::Rect& box) {
    ::Ellipse(context_, box.left, box.top, box.right, box.bottom);
}

void HostSurface::Arc(const qmath::Rect& box, qmath::Point start, qmath::Point end) {
    ::Arc(context_, box.left, box.top, box.right, box.bottom, start.x, start.y, end.x, end.y);
}

void HostSurface::Invert(qmath::Point leftTop, std::int32_t width, std::int32_t height) {
    ::PatBlt(ReadContext(), leftTop.x, leftTop.y, width, height, DSTINVERT);
}

void HostSurface::SetTextAlign(std::int32_t flags) {
    ::SetTextAlign(context_, static_cast<UINT>(flags));
}

void HostSurface::SetBkMode(std::int32_t mode) {
    ::SetBkMode(context_, mode);
}

void HostSurface::WriteText(qmath::Point anchor, std::u16string_view text) {
    const std::string bytes = codePage_.Encode(text);
    ::TextOutA(context_, anchor.x, anchor.y, bytes.data(), base::Narrow<int>(bytes.size()));
}

void HostSurface::WriteTextAsPath(qmath::Point anchor, std::u16string_view text) {
    const std::string bytes = codePage_.Encode(text); // what can fail, before a path is open
    const int length = base::Narrow<int>(bytes.size());
    const platform::GdiObject brush(CreateSolidBrush(GetTextColor(context_)));
    const platform::Selection selected(context_, brush);
    BeginPath(context_);
    ::TextOutA(context_, anchor.x, anchor.y, bytes.data(), length);
    EndPath(context_);
    FillPath(context_);
}

void HostSurface::SelectFont(const base::FontRequest& request) {
    font_.Select(context_, request);
}

void HostSurface::ReleaseFont() noexcept {
    font_.Release();
}
