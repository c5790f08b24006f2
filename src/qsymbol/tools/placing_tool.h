#pragma once

#include "qmath/point.h"
#include "qsymbol/geometry/symbol_position.h"
#include "qsymbol/tools/drawing_target.h"
#include "qsymbol/tools/screen_position.h"

#include <optional>

namespace qsymbol {

/// What the placing tools share: an image that follows the mouse, turns and is fixed, and a guide line to it.
///
///  1. Start: there is no position. Draws and turns show nothing.
///  2. The first mouse event gives the image a position; from now on it stands on the surface, inverted: drawing it
///     once more takes it away again.
///  3. Each move and turn takes the image away, changes the place and draws the image there.
///  4. Fixing makes the tool ready. It ignores every further event; a draw now shows the image for good, in its own
///     colours and without guide line.
///
/// What an event is to change is worked out before the image is taken away, so an event that fails early
/// leaves image and state as they were. The guide line belongs to the image: set its start before the
/// first event.
class PlacingTool {
public:
    PlacingTool(const PlacingTool&) = delete;
    PlacingTool& operator=(const PlacingTool&) = delete;
    virtual ~PlacingTool() = default;

    /// True once the image is fixed.
    bool Ready() const { return ready_; }
    /// Insertion point in world coordinates; empty before the first mouse event.
    const std::optional<qmath::Point>& Position() const { return position_; }
    /// Rotation in radians, counter-clockwise.
    double Angle() const { return angle_; }

    /// Draws image and guide line at the position; does nothing without image or position. Every time the
    /// surface's pen state is put back. Errors of surface and transformation pass through.
    void Draw(DrawingTarget& target) const;

    /// Moves the image to the mouse.
    void MouseMove(ScreenPosition mouse, DrawingTarget& target);

protected:
    /// Whether the image stays away after a change or is drawn at its new place.
    enum class Redraw { No, Yes };

    PlacingTool() = default;

    virtual bool HasImage() const = 0;
    virtual void DrawImage(const SymbolPosition& place, DrawingTarget& target) const = 0;

    /// The world point below the mouse. Error 6 for a pixel outside 32 bits.
    static qmath::Point WorldPoint(ScreenPosition mouse, DrawingTarget& target);

    void MoveTo(qmath::Point position, DrawingTarget& target, Redraw redraw);
    void TurnTo(double angle, DrawingTarget& target);
    /// Changes the rotation and nothing else.
    void PresetAngle(double angle) { angle_ = angle; }
    void Fix() { ready_ = true; }

    /// Start of the guide line in world coordinates.
    const std::optional<qmath::Point>& GuideStart() const { return guideStart_; }
    void SetGuideStart(qmath::Point start) { guideStart_ = start; }

private:
    std::optional<qmath::Point> position_;
    double angle_ = 0;
    bool ready_ = false;
    std::optional<qmath::Point> guideStart_;
};

} // namespace qsymbol
