#pragma once

#include "editor_tool.h"
#include "move_dialog.h"
#include "rubber_band.h"

#include <memory>

/// The editor without its window: the plan, its picture, and what the mouse is doing in it. Without a tool
/// the mouse marks symbols; a tool gets all its events until it is ready.
class Editor {
public:
    explicit Editor(Ptr<_CSymbolColl> catalogue);

    PlanDocument& Document() { return document_; }
    const PlanDocument& Document() const { return document_; }
    void Paint(HDC dc) const { view_.Paint(dc); }
    void Resize(SIZE pixels);
    /// Draws all anew, the tool's image last.
    void Redraw();

    /// Pixels of the picture. Shift catches points for a tool; Ctrl adds to the marked symbols and takes
    /// from them.
    void MouseMove(POINT pixel);
    void MouseDown(POINT pixel);
    void MouseUp(POINT pixel);
    void KeyUp(WPARAM key, LPARAM info);

    bool HasTool() const { return tool_ != nullptr; }
    bool IsBusy() const { return HasTool() || band_.has_value(); }
    /// Takes away the tool or the rubber band, without a trace.
    void Cancel();
    /// Does the same after a failure, when the picture may be anything.
    void Abandon();

    void MarkAll();
    void Unmark();
    void RemoveMarked();
    void Undo();
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
    void MoveMarked(const TypedMove& move);

    std::wstring Hint() const;
    std::wstring PositionText() const;
    std::wstring CountText() const;

private:
    Pointer PointerAt(POINT pixel) const;
    void Place();
    void Start(std::unique_ptr<EditorTool> tool);
    void Finish(EditorTool& tool);

    PlanDocument document_;
    PlanView view_;
    SIZE pixels_{};
    POINT mouse_{};
    std::unique_ptr<EditorTool> tool_;
    std::optional<RubberBand> band_;
    std::wstring name_;  ///< of the symbol that was placed last, or is being placed
    double degrees_ = 0; ///< its direction
    bool isPlacing_ = false;
    bool fixesWhereLetGo_ = false;
    std::optional<PlacedSymbol> placed_;
};
