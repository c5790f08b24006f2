#include "editor.h"

#include "../plan_symbols.h"
#include "../text.h"
#include "moving_tool.h"
#include "picture_folder.h"
#include "placing_tool.h"

#include <algorithm>
#include <cmath>

// The commands of the editor, and what its status bar says.

namespace {

std::wstring CountOf(std::size_t count) {
    return std::to_wstring(count) + (count == 1 ? L" Symbol" : L" Symbole");
}

/// Whole millimetres: a pixel is more than one.
std::wstring Rounded(LONG units) {
    return std::to_wstring(std::lround(units / static_cast<double>(kUnitsPerMillimetre)));
}

} // namespace

void Editor::MarkAll() {
    document_.Marks().SetRange(0, document_.Symbols().size());
    Redraw();
}

void Editor::Unmark() {
    document_.Marks().Clear();
    Redraw();
}

void Editor::Change(const std::function<void(PlanDocument&)>& change) {
    change(document_);
    Redraw();
}

void Editor::Align(Alignment alignment) {
    std::vector<RECT> areas;
    for (const std::size_t place : document_.Marks().Places())
        areas.push_back(Around(view_.Scene().Corners(place)));
    const std::vector<POINT> moves = AlignedBy(areas, alignment);
    std::vector<PlacedSymbol> moved = document_.MarkedSymbols();
    for (std::size_t i = 0; i < moved.size(); ++i)
        moved[i].at = {moved[i].at.x + moves[i].x, moved[i].at.y + moves[i].y};
    document_.Replace(document_.Marks().Places(), moved);
    Redraw();
}

void Editor::Choose() {
    Bstr chosen;
    const std::wstring request = DialogRequest(name_, PictureFolder(document_.File()));
    Check(document_.Catalogue().SelectSymNameDlg(Bstr(request).Get(), chosen.Put()));
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
    std::optional<POINT> from;
    if (placed_ && std::ranges::count(document_.Content().symbols, *placed_) > 0)
        from = placed_->at;
    document_.Marks().Clear();
    Start(std::make_unique<PlacingTool>(document_.Catalogue(), name_, degrees_, from));
    isPlacing_ = true;
}

void Editor::MoveMarked() {
    Start(std::make_unique<MovingTool>(document_, MovingTool::Moved));
}

void Editor::DuplicateMarked() {
    Start(std::make_unique<MovingTool>(document_, MovingTool::Copied));
}

void Editor::Paste(std::vector<PlacedSymbol> symbols) {
    const std::vector<Ptr<_CSymbol>> found = FindSymbols(symbols, document_.Catalogue());
    Start(std::make_unique<MovingTool>(std::move(symbols), found));
}

void Editor::MoveMarked(const TypedMove& move) {
    MovingTool tool(document_, MovingTool::Moved);
    tool.MoveTo(view_, move.to, move.isRelative);
    Finish(tool);
}

void Editor::FixAt(const TypedMove& move) {
    if (!tool_)
        return;
    tool_->MoveTo(view_, move.to, move.isRelative);
    FinishIfReady();
}

std::wstring Editor::Hint() const {
    if (tool_)
        return tool_->Hint();
    if (!document_.Marks().IsEmpty())
        return L"Strg+M verschiebt, Strg+D dupliziert, Entf löscht; F1 zeigt alle Tasten";
    return L"Klick oder Rechteck markiert Symbole; F2 wählt ein Symbol; F1 zeigt alle Tasten";
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
