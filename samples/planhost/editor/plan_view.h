#pragma once

#include "../bitmap.h"
#include "../picture_box.h"
#include "plan_document.h"

#include <QMath.h>

#include <optional>

/// The picture of the plan, as large as its window. It is kept in a bitmap on which the tools draw as well,
/// so painting is one copy and what a tool shows survives a covered window.
class PlanView {
public:
    /// Draws the plan anew, fitted into this many pixels.
    void Show(const PlanDocument& document, SIZE pixels);
    /// False while the window has no room for a picture.
    bool HasPicture() const { return bitmap_.has_value(); }

    /// What the libraries' tools draw on, and the map that they use; they change with every Show.
    IDispatch& Box() const { return *box_.Get(); }
    _CTrans& Transformation() const { return *transformation_.Get(); }

    /// The place in the plan that a pixel shows, in units.
    POINT ToPlan(POINT pixel) const;
    /// Inverts a frame; a second time takes it away again.
    void InvertFrame(const RECT& frame);
    void Paint(HDC dc) const;

private:
    void MakePicture(SIZE pixels);

    std::optional<Bitmap> bitmap_;
    Ptr<PictureBox> box_; ///< on the bitmap
    Ptr<_CTrans> transformation_;
};
