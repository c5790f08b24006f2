#include "plan_view.h"

#include "../plan_drawing.h"
#include "grid.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr COLORREF kDesk = RGB(196, 199, 204);
constexpr int kMargin = 8; // pixels round the sheet

void Fill(HDC dc, const RECT& area, COLORREF colour) {
    const HBRUSH brush = CreateSolidBrush(colour);
    FillRect(dc, &area, brush);
    DeleteObject(brush);
}

} // namespace

RECT PlanView::Sheet() const {
    const Plan& plan = document_->Content();
    return {0, 0, plan.width * kUnitsPerMillimetre, plan.height * kUnitsPerMillimetre};
}

void PlanView::Show(const PlanDocument& document) {
    const bool isOther = planShown_ != document.PlanNumber();
    document_ = &document;
    for (const RECT& area : scene_.Show(document))
        tiles_.Outdate(map_, area);
    if (isOther) {
        planShown_ = document.PlanNumber();
        tiles_.Clear();
        before_.reset();
        isFitted_ = true;
    }
    if (HasPicture())
        isFitted_ ? FitSheet() : Compose();
}

void PlanView::Forget() {
    scene_.Forget();
    tiles_.OutdateAll();
}

void PlanView::Resize(SIZE pixels) {
    pixels_ = pixels;
    box_ = {}; // gives the device context back as it was
    if (pixels.cx <= 0 || pixels.cy <= 0)
        return screen_.reset();
    screen_.emplace(pixels.cx, pixels.cy);
    if (document_ != nullptr)
        isFitted_ ? FitSheet() : Compose();
}

void PlanView::UseDots(UINT dots) {
    dots_ = dots;
    Compose();
}

void PlanView::FitSheet() {
    UseMap(ViewMap::Fit(Sheet(), pixels_, kMargin));
    isFitted_ = true;
}

void PlanView::FitMarked() {
    std::optional<RECT> area;
    for (const std::size_t place : document_->Marks().Places()) {
        const RECT around = Around(scene_.Corners(place));
        area = area ? Joined(*area, around) : around;
    }
    if (!area)
        return;
    constexpr int kRoom = 60; // pixels, so that what is beside can be seen
    UseMap(ViewMap::Fit(*area, pixels_, std::min<int>(kRoom, pixels_.cx / 4)));
    isFitted_ = false;
}

void PlanView::ZoomAt(POINT pixel, double factor) {
    ViewMap map = map_;
    map.ScaleAbout(pixel, map.Scale() / factor);
    UseMap(map);
    isFitted_ = false;
}

void PlanView::SetScale(double unitsPerPixel) {
    ViewMap map = map_;
    map.ScaleAbout({pixels_.cx / 2, pixels_.cy / 2}, unitsPerPixel);
    UseMap(map);
    isFitted_ = false;
}

void PlanView::MoveBy(int right, int down) {
    ViewMap map = map_;
    map.MoveBy(right, down);
    UseMap(map);
    isFitted_ = false;
}

void PlanView::ShowGrid(bool isShown) {
    hasGrid_ = isShown;
    Compose();
}

void PlanView::UseMap(const ViewMap& map) {
    if (map.Scale() != map_.Scale()) {
        auto now = std::make_unique<Bitmap>(pixels_.cx, pixels_.cy);
        DrawRough(now->Dc());
        before_ = std::move(now);
        mapBefore_ = map_;
        tiles_.Clear();
    }
    map_ = map;
    Compose();
}

void PlanView::Compose() {
    if (!HasPicture() || document_ == nullptr)
        return;
    box_ = {};
    transformation_ = map_.Transformation();
    const HDC dc = screen_->Dc();
    if (tiles_.CoverAll(map_, pixels_))
        tiles_.Copy(dc, map_, pixels_);
    else
        DrawRough(dc);
    if (hasGrid_)
        DrawGrid(*screen_, map_);
    DrawMarks(dc, MarksShown());
    box_ = PictureBox::Create(dc, pixels_.cx, pixels_.cy, L"PlanBox");
}

/// What can be had at once: walls, the picture that was there, and the tiles that are ready.
void PlanView::DrawRough(HDC dc) const {
    const Ptr<_CTrans> transformation = map_.Transformation();
    DrawSheet({dc, pixels_, *transformation.Get()});
    if (before_) {
        const auto at = [&](LONG x, LONG y) { return map_.ToPixel(mapBefore_.ToPlan({x, y})); };
        const POINT leftTop = at(0, 0);
        const POINT rightBottom = at(before_->Width(), before_->Height());
        SetStretchBltMode(dc, COLORONCOLOR);
        StretchBlt(dc, leftTop.x, leftTop.y, rightBottom.x - leftTop.x, rightBottom.y - leftTop.y,
                   before_->Dc(), 0, 0, before_->Width(), before_->Height(), SRCCOPY);
    }
    tiles_.Copy(dc, map_, pixels_);
}

/// The desk, and on it the sheet with floors and walls.
void PlanView::DrawSheet(const Canvas& canvas) const {
    Fill(canvas.dc, {0, 0, canvas.size.cx, canvas.size.cy}, kDesk);
    const POINT leftTop = ToPixel(canvas, 0, 0);
    const POINT rightBottom = ToPixel(canvas, document_->Content().width, document_->Content().height);
    Fill(canvas.dc, {leftTop.x, leftTop.y, rightBottom.x, rightBottom.y}, RGB(255, 255, 255));
    DrawBelowSymbols(canvas, document_->Content());
}

bool PlanView::DrawNextTile() {
    POINT tile;
    if (!HasPicture() || document_ == nullptr || !tiles_.FindMissing(map_, pixels_, tile))
        return false;
    tiles_.Render(map_, tile, [this](const Canvas& canvas) {
        DrawSheet(canvas);
        if (!scene_.DrawSymbols(canvas)) {
            DrawSheet(canvas); // over what is there of the others
            scene_.DrawWhatCanBeDrawn(canvas);
        }
        DrawAboveSymbols(canvas, document_->Content());
    });
    return true;
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

std::vector<std::size_t> PlanView::SymbolsAt(const PointedAt& place) const {
    return document_->Placed().SymbolsAt(place, Transformation());
}

void PlanView::InvertFrame(const RECT& frame) {
    DrawFocusRect(screen_->Dc(), &frame);
}

void PlanView::Paint(HDC dc) const {
    if (HasPicture())
        BitBlt(dc, 0, 0, screen_->Width(), screen_->Height(), screen_->Dc(), 0, 0, SRCCOPY);
}
