#include "plan_view.h"

#include "../plan_drawing.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr COLORREF kDesk = RGB(196, 199, 204);
constexpr int kMargin = 8; // pixels round the sheet

/// The sheet as large as it can be, in the middle.
Ptr<_CTrans> Fit(const Plan& plan, SIZE pixels) {
    const double width = static_cast<double>(plan.width) * kUnitsPerMillimetre;
    const double height = static_cast<double>(plan.height) * kUnitsPerMillimetre;
    const double scale = std::max(width / std::max(pixels.cx - 2 * kMargin, 1L),
                                  height / std::max(pixels.cy - 2 * kMargin, 1L));
    Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));
    Check(transformation->SetScale(scale));
    Check(transformation->SetOffsetX(std::lround((width - pixels.cx * scale) / 2)));
    Check(transformation->SetOffsetY(std::lround((height - pixels.cy * scale) / 2)));
    return transformation;
}

void DrawSheet(const Canvas& canvas, const Plan& plan) {
    const POINT leftTop = ToPixel(canvas, 0, 0);
    const POINT rightBottom = ToPixel(canvas, plan.width, plan.height);
    const RECT all{0, 0, canvas.size.cx, canvas.size.cy};
    const RECT sheet{leftTop.x, leftTop.y, rightBottom.x, rightBottom.y};
    const HBRUSH desk = CreateSolidBrush(kDesk);
    FillRect(canvas.dc, &all, desk);
    DeleteObject(desk);
    FillRect(canvas.dc, &sheet, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
}

} // namespace

void PlanView::Show(const PlanDocument& document, SIZE pixels) {
    MakePicture(pixels);
    if (!HasPicture())
        return;
    transformation_ = Fit(document.Content(), pixels);
    const Canvas canvas{bitmap_->Dc(), pixels, Transformation()};
    DrawSheet(canvas, document.Content());
    DrawPlanOn(canvas, document.Content(), document.Symbols(), document.Marks().Places());
    box_ = PictureBox::Create(bitmap_->Dc(), pixels.cx, pixels.cy, L"PlanBox");
}

void PlanView::MakePicture(SIZE pixels) {
    box_ = {}; // gives the device context back as it was
    if (pixels.cx <= 0 || pixels.cy <= 0)
        bitmap_.reset();
    else if (!bitmap_ || bitmap_->Width() != pixels.cx || bitmap_->Height() != pixels.cy)
        bitmap_.emplace(pixels.cx, pixels.cy);
}

POINT PlanView::ToPlan(POINT pixel) const {
    Ptr<_CPt> point = Create<_CPt>(__uuidof(CPt));
    Check(point->put_X(pixel.x));
    Check(point->put_Y(pixel.y));
    Check(transformation_->PtScreenToWorld(point.Put()));
    POINT place;
    Check(point->get_X(&place.x));
    Check(point->get_Y(&place.y));
    return place;
}

void PlanView::InvertFrame(const RECT& frame) {
    DrawFocusRect(bitmap_->Dc(), &frame);
}

void PlanView::Paint(HDC dc) const {
    if (HasPicture())
        BitBlt(dc, 0, 0, bitmap_->Width(), bitmap_->Height(), bitmap_->Dc(), 0, 0, SRCCOPY);
}
