#pragma once

#include "../picture_box.h"
#include "marks.h"
#include "plan_document.h"
#include "plan_scene.h"
#include "smooth_tiles.h"

#include <memory>
#include <optional>

/// The picture of the plan in its window. The plan comes from smooth tiles, which are drawn while nothing else is to be done;
/// until then what was to be seen before stands there, in its new size. Upon it lie grid and marks, and then what the
/// libraries' tools draw, pixel by pixel: painting is one copy, and what a tool shows survives a covered window.
class PlanView {
public:
    /// The plan has changed, or is another one.
    void Show(const PlanDocument& document);
    /// Takes symbols for new that have come from a file again.
    void Forget();
    void Resize(SIZE pixels);
    /// Of the screen, to the inch: handles grow with them.
    void UseDots(UINT dots);
    UINT Dots() const { return dots_; }
    /// False while the window has no room for a picture.
    bool HasPicture() const { return screen_.has_value(); }

    // What is to be seen. Each makes the picture anew, without what tools drew.
    void FitSheet();
    void FitMarked();
    void ZoomAt(POINT pixel, double factor);
    void SetScale(double unitsPerPixel);
    void MoveBy(int right, int down);
    void ShowGrid(bool isShown);
    /// Puts the picture together again.
    void Compose();

    /// Draws one tile that is missing; false when there is none.
    bool DrawNextTile();
    std::optional<std::wstring> TakeFailure() { return scene_.TakeFailure(); }

    const ViewMap& Map() const { return map_; }
    const PlanScene& Scene() const { return scene_; }
    std::optional<Marks> MarksShown() const { return MarksOf(*document_, scene_, map_, dots_); }
    bool HasGrid() const { return hasGrid_; }

    /// What the libraries' tools draw on, and the map that they use; they change whenever the picture does.
    IDispatch& Box() const { return *box_.Get(); }
    _CTrans& Transformation() const { return *transformation_.Get(); }

    /// The place in the plan that a pixel shows, in units.
    POINT ToPlan(POINT pixel) const;
    /// By their places in the plan, the topmost first.
    std::vector<std::size_t> SymbolsAt(const PointedAt& place) const;
    /// Inverts a frame; a second time takes it away again.
    void InvertFrame(const RECT& frame);
    void Paint(HDC dc) const;

private:
    void UseMap(const ViewMap& map);
    void DrawRough(HDC dc) const;
    void DrawSheet(const Canvas& canvas) const;
    RECT Sheet() const;

    const PlanDocument* document_ = nullptr;
    unsigned planShown_ = 0;
    PlanScene scene_;
    ViewMap map_;
    SIZE pixels_{};
    UINT dots_ = USER_DEFAULT_SCREEN_DPI;
    bool isFitted_ = true; ///< until the user zooms or pans
    bool hasGrid_ = false;
    SmoothTiles tiles_;
    std::unique_ptr<Bitmap> before_; ///< the picture at the map that was used before
    ViewMap mapBefore_;
    std::optional<Bitmap> screen_;
    Ptr<PictureBox> box_; ///< on the screen
    Ptr<_CTrans> transformation_;
};
