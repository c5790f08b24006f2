#include "editor.h"

#include "../plan_hits.h"
#include "../text.h"
#include "moving_tool.h"
#include "placing_tool.h"
#include "snapping.h"

#include <algorithm>
#include <cmath>

namespace {

/// Where the library's dialog puts pictures of the symbols when the user asks for them.
std::wstring PictureFolder(const PlanDocument& document) {
    return document.File().empty() ? std::filesystem::current_path().wstring()
                                   : document.File().parent_path().wstring();
}

std::wstring CountOf(std::size_t count) {
    return std::to_wstring(count) + (count == 1 ? L" Symbol" : L" Symbole");
}

/// Whole millimetres: a pixel is more than one.
std::wstring Rounded(LONG units) {
    return std::to_wstring(std::lround(units / static_cast<double>(kUnitsPerMillimetre)));
}

} // namespace

Editor::Editor(Ptr<_CSymbolColl> catalogue) : document_(std::move(catalogue)) {}

void Editor::Resize(SIZE pixels) {
    pixels_ = pixels;
    Redraw();
}

void Editor::Redraw() {
    view_.Show(document_, pixels_);
    if (!view_.HasPicture())
        return;
    if (tool_)
        tool_->Draw(view_);
    if (band_)
        band_->Draw(view_);
}

Pointer Editor::PointerAt(POINT pixel) const {
    return GetKeyState(VK_SHIFT) < 0 ? CatchPoint(document_, view_, pixel) : Pointer{pixel, std::nullopt};
}

void Editor::MouseMove(POINT pixel) {
    mouse_ = pixel;
    if (tool_)
        tool_->MouseMove(view_, PointerAt(pixel));
    else if (band_)
        band_->MouseMove(view_, pixel);
}

void Editor::MouseDown(POINT pixel) {
    if (!tool_) {
        band_.emplace(pixel);
        return;
    }
    tool_->MouseDown(view_, PointerAt(pixel));
    if (tool_->IsReady())
        Finish(*std::exchange(tool_, nullptr));
}

void Editor::MouseUp(POINT pixel) {
    if (std::exchange(fixesWhereLetGo_, false) && tool_) {
        const RECT picture{0, 0, pixels_.cx, pixels_.cy};
        return PtInRect(&picture, pixel) ? MouseDown(pixel) : Cancel();
    }
    if (!band_)
        return;
    band_->MouseMove(view_, pixel);
    const PointedAt place = std::exchange(band_, std::nullopt)->Place();
    std::vector<std::size_t> hit =
        SymbolsAt(place, document_.Content(), document_.Symbols(), view_.Transformation());
    if (GetKeyState(VK_CONTROL) < 0)
        document_.Marks().Toggle(hit);
    else
        document_.Marks().Set(std::move(hit));
    Redraw();
}

void Editor::KeyUp(WPARAM key, LPARAM info) {
    if (tool_)
        tool_->KeyUp(view_, key, info);
}

void Editor::Cancel() {
    if (tool_)
        std::exchange(tool_, nullptr)->Draw(view_); // the second time erases
    if (band_)
        std::exchange(band_, std::nullopt)->Draw(view_);
}

void Editor::Abandon() {
    tool_.reset();
    band_.reset();
    Redraw();
}

void Editor::MarkAll() {
    document_.Marks().SetRange(0, document_.Symbols().size());
    Redraw();
}

void Editor::Unmark() {
    document_.Marks().Clear();
    Redraw();
}

void Editor::RemoveMarked() {
    document_.RemoveMarked();
    Redraw();
}

void Editor::Undo() {
    document_.Undo();
    Redraw();
}

void Editor::Choose() {
    Bstr chosen;
    Check(document_.Catalogue().SelectSymNameDlg(Bstr(name_ + L"+" + PictureFolder(document_)).Get(),
                                                 chosen.Put()));
    if (chosen.Text().empty())
        return;
    Place(chosen.Text());
}

void Editor::Place(const std::wstring& name) {
    name_ = name;
    degrees_ = 0;
    Place();
}

bool Editor::CanPlaceAgain() const {
    return !name_.empty() || !document_.Marks().IsEmpty();
}

void Editor::PlaceAgain() {
    if (!document_.Marks().IsEmpty()) {
        const PlacedSymbol& example = document_.Content().symbols[document_.Marks().Places().back()];
        name_ = example.name;
        degrees_ = example.angle;
    }
    Place();
}

/// A line leads from the symbol that was placed before, if it is still there.
void Editor::Place() {
    std::optional<POINT> guideFrom;
    if (placed_ && std::ranges::count(document_.Content().symbols, *placed_) > 0)
        guideFrom = placed_->at;
    document_.Marks().Clear();
    Start(std::make_unique<PlacingTool>(document_.Catalogue(), name_, degrees_, guideFrom));
    isPlacing_ = true;
}

void Editor::MoveMarked() {
    Start(std::make_unique<MovingTool>(document_, MovingTool::Moved));
}

void Editor::DuplicateMarked() {
    Start(std::make_unique<MovingTool>(document_, MovingTool::Copied));
}

void Editor::MoveMarked(const TypedMove& move) {
    MovingTool tool(document_, MovingTool::Moved);
    tool.MoveTo(view_, move.to, move.isRelative);
    Finish(tool);
}

void Editor::Start(std::unique_ptr<EditorTool> tool) {
    Redraw();
    tool_ = std::move(tool);
    isPlacing_ = false;
    fixesWhereLetGo_ = false;
}

void Editor::Finish(EditorTool& tool) {
    tool.Finish(document_);
    if (std::exchange(isPlacing_, false)) {
        placed_ = document_.Content().symbols.back();
        degrees_ = placed_->angle;
    }
    Redraw();
}

std::wstring Editor::Hint() const {
    if (tool_)
        return tool_->Hint();
    if (!document_.Marks().IsEmpty())
        return L"Strg+M verschiebt, Strg+D dupliziert, Entf löscht, F3 setzt das Symbol noch einmal";
    return L"Klick oder Rechteck markiert Symbole, mit Strg auch weitere; F2 wählt ein neues Symbol";
}

std::wstring Editor::PositionText() const {
    if (!view_.HasPicture())
        return {};
    const POINT place = view_.ToPlan(mouse_);
    std::wstring text = L"x " + Rounded(place.x) + L" mm   y " + Rounded(place.y) + L" mm";
    if (const std::optional<double> degrees = tool_ ? tool_->Direction() : std::nullopt)
        text += L"   " + std::to_wstring(std::lround(*degrees)) + L"°";
    return text;
}

std::wstring Editor::CountText() const {
    std::wstring text = CountOf(document_.Symbols().size());
    if (const std::size_t marked = document_.Marks().Places().size(); marked > 0)
        text += L", " + std::to_wstring(marked) + L" markiert";
    return text;
}
