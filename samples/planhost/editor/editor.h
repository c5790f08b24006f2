#pragma once

#include "alignment.h"
#include "editor_tool.h"
#include "marks.h"
#include "move_dialog.h"
#include "rubber_band.h"

#include <functional>
#include <memory>

/// The editor without its window: the plan, its picture, and what the mouse is doing in it. Without a tool
/// the mouse marks symbols and drags what is marked; a tool gets all its events until it is ready.
class Editor {
public:
    explicit Editor(Ptr<_CSymbolColl> catalogue);

    PlanDocument& Document() { return document_; }
    const PlanDocument& Document() const { return document_; }
    PlanView& View() { return view_; }
    const PlanView& View() const { return view_; }
    /// Called with the name of each symbol that has been placed.
    void OnPlaced(std::function<void(const std::wstring&)> told) { placedTold_ = std::move(told); }

    void Paint(HDC dc);
    void Resize(SIZE pixels);
    /// Draws handles and marks for a screen of so many dots to the inch.
    void UseDots(UINT dots);
    /// Shows the plan as it is now, the tool's image last.
    void Redraw();
    /// Changes what is to be seen of the plan, with the tool's image upon it.
    void ChangeView(const std::function<void(PlanView&)>& change);
    /// Draws a piece of the picture that is still missing; false when all is there.
    bool DrawOn();
    /// Loads the symbols of another catalogue.
    void UseCatalogue(Ptr<_CSymbolColl> catalogue);

    // Pixels of the picture. Shift catches points for a tool; Ctrl adds to the marked symbols and takes from them, and
    // drags a copy.
    void MouseMove(POINT pixel);
    void MouseDown(POINT pixel);
    void MouseUp(POINT pixel);
    /// The mouse is elsewhere; true when that is something to see.
    bool MouseLeave();
    /// From here on the mouse moves the picture, until it is let go.
    void StartPanning(POINT pixel) { panFrom_ = pixel; }
    void StopPanning() { panFrom_.reset(); }
    bool IsPanning() const { return panFrom_.has_value(); }
    void Zoom(POINT pixel, double notches);
    /// Marks the topmost symbol there if it is not marked.
    void MarkAt(POINT pixel);

    void Turn(const TurnKey& key);
    /// Moves what is marked, in units; steps in a row are taken back as one.
    void Nudge(int right, int down);

    bool HasTool() const { return tool_ != nullptr; }
    bool IsBusy() const { return HasTool() || band_.has_value() || press_.has_value(); }
    bool Snaps() const { return snaps_; }
    void SetSnaps(bool snaps) { snaps_ = snaps; }
    /// Whether the same symbol is placed again and again, until Esc.
    bool GoesOnPlacing() const { return goesOnPlacing_; }
    void SetGoesOnPlacing(bool goesOn) { goesOnPlacing_ = goesOn; }
    /// Takes away the tool or the rubber band, without a trace.
    void Cancel();
    /// Does the same after a failure, when the picture may be anything.
    void Abandon();

    void MarkAll();
    void Unmark();
    /// Does something with the plan and shows what has come of it.
    void Change(const std::function<void(PlanDocument&)>& change);
    void Align(Alignment alignment);
    /// The user chooses a symbol and places it.
    void Choose();
    /// The user has chosen a symbol by its name.
    void Place(const std::wstring& name);
    /// What is being placed is placed where the mouse button that is down now is let go; outside of the picture it is
    /// given up.
    void FixWhereLetGo() { fixesWhereLetGo_ = HasTool(); }
    bool CanPlaceAgain() const;
    /// Places the topmost marked symbol once more, or else the last one.
    void PlaceAgain();
    void MoveMarked();
    void DuplicateMarked();
    void Paste(std::vector<PlacedSymbol> symbols);
    void MoveMarked(const TypedMove& move);
    /// Fixes what a tool has at typed coordinates.
    void FixAt(const TypedMove& move);

    std::wstring Hint() const;
    std::wstring PositionText() const;
    std::wstring CountText() const;

private:
    /// A mouse button that went down on a symbol.
    struct Press {
        POINT pixel;
        bool isOnMarked; ///< it was marked before
    };

    Pointer PointerAt(POINT pixel) const;
    bool IsNear(POINT one, POINT other) const;
    std::vector<std::size_t> SymbolsAt(POINT pixel) const {
        return view_.SymbolsAt({{pixel.x, pixel.y, pixel.x, pixel.y}, true});
    }
    void Click(POINT pixel);
    void StartDragging();
    void StartTurning(POINT pixel);
    void Place();
    void Start(std::unique_ptr<EditorTool> tool);
    void FinishIfReady();
    void Finish(EditorTool& tool);
    void Look(POINT pixel);

    PlanDocument document_;
    PlanView view_;
    SIZE pixels_{};
    POINT mouse_{};
    std::unique_ptr<EditorTool> tool_;
    std::optional<RubberBand> band_;
    std::optional<Press> press_;
    std::optional<POINT> panFrom_;
    std::optional<POINT> lastClick_;
    std::optional<std::size_t> hovered_; ///< symbol that the mouse points to
    std::optional<Pointer> caught_;      ///< as the user sees it
    bool snaps_ = true;
    bool goesOnPlacing_ = true;
    std::wstring name_;  ///< of the symbol that was placed last, or is being placed
    double degrees_ = 0; ///< its direction
    bool isPlacing_ = false;
    bool fixesWhereLetGo_ = false;
    std::optional<PlacedSymbol> placed_;
    std::function<void(const std::wstring&)> placedTold_;
};
