#include "editor.h"

#include "catch_mark.h"
#include "moving_tool.h"
#include "snapping.h"
#include "turning_tool.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

// What the mouse and the keys do. The commands of the menu are in editor_commands.cpp.

Editor::Editor(Ptr<_CSymbolColl> catalogue) : document_(std::move(catalogue)) {
    view_.Show(document_);
}

/// Upon the picture lies what is seen of the moment only; the picture itself is the tools'.
void Editor::Paint(HDC dc) {
    const bool hasFrame = hovered_ && !IsBusy() && *hovered_ < document_.Symbols().size();
    if (!view_.HasPicture() || (!hasFrame && !caught_))
        return view_.Paint(dc);
    const Bitmap whole(pixels_.cx, pixels_.cy);
    view_.Paint(whole.Dc());
    if (hasFrame) {
        Marks::Corners corners;
        std::ranges::transform(view_.Scene().Corners(*hovered_), corners.begin(),
                               [this](POINT corner) { return view_.Map().ToPixel(corner); });
        DrawHoverFrame(whole.Dc(), corners, view_.Dots());
    }
    if (caught_)
        DrawCatchMark(whole.Dc(), pixels_.cx, view_.Map().ToPixel(*caught_->caught), caught_->kind,
                      view_.Dots());
    BitBlt(dc, 0, 0, pixels_.cx, pixels_.cy, whole.Dc(), 0, 0, SRCCOPY);
}

void Editor::UseDots(UINT dots) {
    if (dots != view_.Dots())
        ChangeView([&](PlanView& view) { view.UseDots(dots); });
}

void Editor::Resize(SIZE pixels) {
    pixels_ = pixels;
    ChangeView([&](PlanView& view) { view.Resize(pixels); });
}

void Editor::Redraw() {
    hovered_.reset();
    ChangeView([this](PlanView& view) { view.Show(document_); });
}

void Editor::ChangeView(const std::function<void(PlanView&)>& change) {
    change(view_);
    if (!view_.HasPicture())
        return;
    if (tool_)
        tool_->Draw(view_);
    if (band_)
        band_->Draw(view_);
}

bool Editor::DrawOn() {
    if (!view_.DrawNextTile())
        return false;
    ChangeView([](PlanView& view) { view.Compose(); });
    return true;
}

void Editor::UseCatalogue(Ptr<_CSymbolColl> catalogue) {
    document_.UseCatalogue(std::move(catalogue));
    view_.Forget();
    Redraw();
}

Pointer Editor::PointerAt(POINT pixel) const {
    const bool catches = tool_ && (snaps_ || GetKeyState(VK_SHIFT) < 0);
    return catches ? CatchPoint(document_, view_, pixel, *tool_) : Pointer{pixel, std::nullopt};
}

bool Editor::IsNear(POINT one, POINT other) const {
    return std::labs(one.x - other.x) < GetSystemMetrics(SM_CXDRAG) &&
           std::labs(one.y - other.y) < GetSystemMetrics(SM_CYDRAG);
}

void Editor::MouseMove(POINT pixel) {
    const POINT before = std::exchange(mouse_, pixel);
    if (panFrom_) {
        panFrom_ = pixel;
        return ChangeView([&](PlanView& view) { view.MoveBy(pixel.x - before.x, pixel.y - before.y); });
    }
    if (press_ && !IsNear(press_->pixel, pixel))
        StartDragging();
    caught_.reset();
    if (tool_) {
        const Pointer pointer = PointerAt(pixel);
        tool_->MouseMove(view_, pointer);
        if (pointer.caught)
            caught_ = pointer;
    } else if (band_) {
        band_->MouseMove(view_, pixel);
    } else {
        Look(pixel);
    }
}

/// Which symbol the mouse points to.
void Editor::Look(POINT pixel) {
    const std::vector<std::size_t> below = view_.HasPicture() ? SymbolsAt(pixel) : std::vector<std::size_t>();
    hovered_ = below.empty() ? std::nullopt : std::optional(below.front());
}

bool Editor::MouseLeave() {
    const bool wasSeen = hovered_ || caught_;
    hovered_.reset();
    caught_.reset();
    return wasSeen;
}

void Editor::MouseDown(POINT pixel) {
    mouse_ = pixel;
    if (tool_) {
        tool_->MouseDown(view_, PointerAt(pixel));
        return FinishIfReady();
    }
    if (IsTurnHandleAt(view_.MarksShown(), pixel))
        return StartTurning(pixel);
    const std::vector<std::size_t> below = SymbolsAt(pixel);
    if (below.empty())
        band_.emplace(pixel);
    else
        press_ = Press{pixel, std::ranges::any_of(
                                  below, [this](std::size_t i) { return document_.Marks().Contains(i); })};
}

/// The symbols hang where they were taken hold of.
void Editor::StartDragging() {
    const auto [pixel, isOnMarked] = *std::exchange(press_, std::nullopt);
    if (!isOnMarked)
        document_.Marks().Set({SymbolsAt(pixel).front()});
    const bool copies = GetKeyState(VK_CONTROL) < 0;
    Start(std::make_unique<MovingTool>(document_, copies ? MovingTool::Copied : MovingTool::Moved,
                                       view_.ToPlan(pixel)));
    fixesWhereLetGo_ = true;
}

/// One symbol turns about its insertion point, several about the middle of all.
void Editor::StartTurning(POINT pixel) {
    const std::vector<std::size_t>& places = document_.Marks().Places();
    POINT about = document_.Content().symbols[places.front()].at;
    if (places.size() > 1) {
        RECT all = Around(view_.Scene().Corners(places.front()));
        for (const std::size_t place : places)
            all = Joined(all, Around(view_.Scene().Corners(place)));
        about = {all.left + (all.right - all.left) / 2, all.top + (all.bottom - all.top) / 2};
    }
    Start(std::make_unique<TurningTool>(document_, about, view_.ToPlan(pixel)));
    fixesWhereLetGo_ = true;
}

void Editor::MouseUp(POINT pixel) {
    if (fixesWhereLetGo_ && tool_) {
        const RECT picture{0, 0, pixels_.cx, pixels_.cy};
        return PtInRect(&picture, pixel) ? MouseDown(pixel) : Cancel();
    }
    if (std::exchange(press_, std::nullopt))
        return Click(pixel);
    if (!band_)
        return;
    band_->MouseMove(view_, pixel);
    const PointedAt place = std::exchange(band_, std::nullopt)->Place();
    std::vector<std::size_t> hit = place.isPoint ? std::vector<std::size_t>() : view_.SymbolsAt(place);
    if (GetKeyState(VK_CONTROL) < 0)
        document_.Marks().Toggle(hit);
    else
        document_.Marks().Set(std::move(hit));
    Redraw();
}

/// Marks the topmost symbol. A second click at the same place marks the one below, until it is the topmost's turn again.
void Editor::Click(POINT pixel) {
    const std::vector<std::size_t> below = SymbolsAt(pixel);
    if (below.empty())
        return;
    std::size_t next = 0;
    if (GetKeyState(VK_CONTROL) < 0) {
        document_.Marks().Toggle({below.front()});
    } else {
        const std::vector<std::size_t>& marked = document_.Marks().Places();
        if (lastClick_ && IsNear(*lastClick_, pixel) && marked.size() == 1) {
            const auto now = std::ranges::find(below, marked.front());
            if (now != below.end())
                next = static_cast<std::size_t>(now - below.begin() + 1) % below.size();
        }
        document_.Marks().Set({below[next]});
    }
    lastClick_ = pixel;
    Redraw();
}

void Editor::MarkAt(POINT pixel) {
    const std::vector<std::size_t> below = SymbolsAt(pixel);
    if (below.empty() ||
        std::ranges::any_of(below, [this](std::size_t i) { return document_.Marks().Contains(i); }))
        return;
    document_.Marks().Set({below.front()});
    Redraw();
}

void Editor::Zoom(POINT pixel, double notches) {
    ChangeView([&](PlanView& view) { view.ZoomAt(pixel, std::pow(2.0, notches / 4)); });
}

void Editor::Turn(const TurnKey& key) {
    if (tool_)
        tool_->Turn(view_, key);
}

void Editor::Nudge(int right, int down) {
    std::vector<PlacedSymbol> moved = document_.MarkedSymbols();
    for (PlacedSymbol& symbol : moved)
        symbol.at = {symbol.at.x + right, symbol.at.y + down};
    document_.Replace(document_.Marks().Places(), moved, true);
    Redraw();
}

void Editor::Cancel() {
    if (tool_)
        std::exchange(tool_, nullptr)->Draw(view_); // the second time erases
    if (band_)
        std::exchange(band_, std::nullopt)->Draw(view_);
    press_.reset();
    caught_.reset();
    fixesWhereLetGo_ = false;
}

void Editor::Abandon() {
    tool_.reset();
    band_.reset();
    press_.reset();
    panFrom_.reset();
    caught_.reset();
    Redraw();
}

void Editor::Start(std::unique_ptr<EditorTool> tool) {
    Redraw();
    tool_ = std::move(tool);
    isPlacing_ = false;
    fixesWhereLetGo_ = false;
}

void Editor::FinishIfReady() {
    if (tool_ && tool_->IsReady())
        Finish(*std::exchange(tool_, nullptr));
}

void Editor::Finish(EditorTool& tool) {
    caught_.reset();
    tool.Finish(document_);
    const bool hasPlaced = std::exchange(isPlacing_, false);
    const bool wasDropped = std::exchange(fixesWhereLetGo_, false);
    if (hasPlaced) {
        placed_ = document_.Content().symbols.back();
        degrees_ = placed_->angle;
        if (placedTold_)
            placedTold_(name_);
    }
    Redraw();
    // Who drags wants one; who clicks may want another beside it.
    if (hasPlaced && goesOnPlacing_ && !wasDropped) {
        Place();
        MouseMove(mouse_);
    }
}
