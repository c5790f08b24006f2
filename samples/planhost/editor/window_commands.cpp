#include "window_commands.h"

#include "../text.h"
#include "clipboard.h"
#include "key_page.h"
#include "picture_folder.h"
#include "plan_files.h"
#include "print_dialog.h"
#include "resource.h"

#include <algorithm>

// The table of commands, and those that are more than a line.

namespace {

constexpr int kAlignments = 8;
constexpr int kRecent = 8;
constexpr wchar_t kViewSection[] = L"Ansicht";
constexpr wchar_t kRecentSection[] = L"Zuletzt geöffnet";

} // namespace

bool EditorWindow::HasMarks(const EditorWindow& window) {
    return !window.editor_.Document().Marks().IsEmpty();
}

bool EditorWindow::HasSeveral(const EditorWindow& window) {
    return window.editor_.Document().Marks().Places().size() > 1;
}

const EditorWindow::Command EditorWindow::kCommands[] = {
    {IDM_NEW, Always,
     [](EditorWindow& w, int) {
         if (StartNewPlan(w.window_, w.editor_.Document()))
             w.PlanChanged();
     }},
    {IDM_OPEN, Always,
     [](EditorWindow& w, int) {
         if (const std::filesystem::path plan = AskForPlan(w.window_, w.editor_.Document()); !plan.empty())
             w.Open(plan);
     }},
    {IDM_RECENT, Always, [](EditorWindow& w, int id) { w.OpenRecent(id - IDM_RECENT); }, kRecent},
    {IDM_SAVE, Always,
     [](EditorWindow& w, int) {
         if (SavePlan(w.window_, w.editor_.Document()))
             w.PlanChanged();
     }},
    {IDM_SAVE_AS, Always,
     [](EditorWindow& w, int) {
         if (SavePlanAs(w.window_, w.editor_.Document()))
             w.PlanChanged();
     }},
    {IDM_EXPORT, Always,
     [](EditorWindow& w, int) {
         ExportAsDxf(w.window_, w.editor_.Document());
         w.editor_.Redraw(); // symbols are hit in the size of their last drawing, and that was the export's
     }},
    {IDM_PRINT, Always, [](EditorWindow& w, int) { PrintPlan(w.window_, w.editor_.Document()); }},
    {IDM_QUIT, Always, [](EditorWindow& w, int) { PostMessageW(w.window_, WM_CLOSE, 0, 0); }},
    {IDM_UNDO, [](const EditorWindow& w) { return w.editor_.Document().CanUndo(); },
     [](EditorWindow& w, int) { w.editor_.Change([](PlanDocument& document) { document.Undo(); }); }},
    {IDM_REDO, [](const EditorWindow& w) { return w.editor_.Document().CanRedo(); },
     [](EditorWindow& w, int) { w.editor_.Change([](PlanDocument& document) { document.Redo(); }); }},
    {IDM_CUT, HasMarks,
     [](EditorWindow& w, int) {
         w.Copy();
         w.editor_.Change([](PlanDocument& document) { document.RemoveMarked(); });
     }},
    {IDM_COPY, HasMarks, [](EditorWindow& w, int) { w.Copy(); }},
    {IDM_PASTE, [](const EditorWindow&) { return CanPasteSymbols(); },
     [](EditorWindow& w, int) { w.Paste(); }},
    {IDM_MOVE, HasMarks, [](EditorWindow& w, int) { w.editor_.MoveMarked(); }},
    {IDM_MOVE_BY, HasMarks, [](EditorWindow& w, int) { w.MoveBy(); }},
    {IDM_DUPLICATE, HasMarks, [](EditorWindow& w, int) { w.editor_.DuplicateMarked(); }},
    {IDM_REMOVE, HasMarks,
     [](EditorWindow& w, int) { w.editor_.Change([](PlanDocument& document) { document.RemoveMarked(); }); }},
    {IDM_FRONT, HasMarks,
     [](EditorWindow& w, int) {
         w.editor_.Change([](PlanDocument& document) { document.BringMarkedTo(true); });
     }},
    {IDM_BACK, HasMarks,
     [](EditorWindow& w, int) {
         w.editor_.Change([](PlanDocument& document) { document.BringMarkedTo(false); });
     }},
    {IDM_PROPERTIES, HasMarks, [](EditorWindow& w, int) { w.properties_.Focus(); }},
    {IDM_ALIGN, HasSeveral,
     [](EditorWindow& w, int id) { w.editor_.Align(static_cast<Alignment>(id - IDM_ALIGN)); }, kAlignments},
    {IDM_MARK_ALL, Always, [](EditorWindow& w, int) { w.editor_.MarkAll(); }},
    {IDM_CHOOSE, Always,
     [](EditorWindow& w, int) {
         w.status_.Show(StatusBar::Hint,
                        L"Bilder aller Symbole kommen nach " + PictureFolder(w.editor_.Document().File()));
         w.editor_.Choose();
     }},
    {IDM_AGAIN, [](const EditorWindow& w) { return w.editor_.CanPlaceAgain(); },
     [](EditorWindow& w, int) { w.editor_.PlaceAgain(); }},
    {IDM_FILTER, [](const EditorWindow& w) { return w.palette_ != nullptr; },
     [](EditorWindow& w, int) { w.palette_->FocusFilter(); }},
    {IDM_CANCEL, Always, [](EditorWindow& w, int) { w.Cancel(); }},
    {IDM_ZOOM_ALL, Always, [](EditorWindow& w, int id) { w.Zoom(id); }},
    {IDM_ZOOM_TRUE, Always, [](EditorWindow& w, int id) { w.Zoom(id); }},
    {IDM_ZOOM_MARKED, HasMarks, [](EditorWindow& w, int id) { w.Zoom(id); }},
    {IDM_ZOOM_IN, Always, [](EditorWindow& w, int id) { w.Zoom(id); }},
    {IDM_ZOOM_OUT, Always, [](EditorWindow& w, int id) { w.Zoom(id); }},
    {IDM_GRID, Always, [](EditorWindow& w, int id) { w.Toggle(id); }},
    {IDM_SNAP, Always, [](EditorWindow& w, int id) { w.Toggle(id); }},
    {IDM_GO_ON, Always, [](EditorWindow& w, int id) { w.Toggle(id); }},
    {IDM_KEYS, Always, [](EditorWindow& w, int) { ShowKeys(w.window_); }},
};

void EditorWindow::Execute(int id) {
    for (const Command& command : kCommands) {
        if (id < command.id || id >= command.id + command.count || !command.isPossible(*this))
            continue;
        Do([&] {
            // What only changes the view leaves a tool alone.
            if (id != IDM_CANCEL && (id < IDM_ZOOM_ALL || id > IDM_GO_ON))
                editor_.Cancel();
            command.run(*this, id);
            FollowMouse(); // the tool's image appears where the mouse is already
        });
    }
}

void EditorWindow::PrepareMenu(HMENU menu) {
    for (const Command& command : kCommands) {
        for (int i = 0; i < command.count; ++i)
            EnableMenuItem(menu, command.id + i, command.isPossible(*this) ? MF_ENABLED : MF_GRAYED);
    }
    CheckMenuItem(menu, IDM_GRID, editor_.View().HasGrid() ? MF_CHECKED : MF_UNCHECKED);
    CheckMenuItem(menu, IDM_SNAP, editor_.Snaps() ? MF_CHECKED : MF_UNCHECKED);
    CheckMenuItem(menu, IDM_GO_ON, editor_.GoesOnPlacing() ? MF_CHECKED : MF_UNCHECKED);
    if (GetMenuState(menu, IDM_RECENT, MF_BYCOMMAND) == static_cast<UINT>(-1))
        return;
    // The menu of recent plans: always one entry at least, so that it can be found.
    const std::vector<std::wstring> plans = settings_.List(kRecentSection);
    for (int i = 1; i < kRecent; ++i)
        DeleteMenu(menu, IDM_RECENT + i, MF_BYCOMMAND);
    ModifyMenuW(menu, IDM_RECENT, MF_BYCOMMAND | (plans.empty() ? MF_GRAYED : MF_ENABLED), IDM_RECENT,
                plans.empty() ? L"(noch keiner)" : (L"&1 " + plans.front()).c_str());
    if (GetMenuItemID(menu, 0) == IDM_RECENT) {
        for (std::size_t i = 1; i < std::min<std::size_t>(plans.size(), kRecent); ++i)
            AppendMenuW(menu, MF_STRING, IDM_RECENT + i,
                        (L"&" + std::to_wstring(i + 1) + L" " + plans[i]).c_str());
    }
}

void EditorWindow::ShowContextMenu(POINT at) {
    const HMENU all = LoadMenuW(nullptr, MAKEINTRESOURCEW(IDR_CONTEXT));
    TrackPopupMenu(GetSubMenu(all, 0), TPM_RIGHTBUTTON, at.x, at.y, 0, window_, nullptr);
    DestroyMenu(all);
}

void EditorWindow::Cancel() {
    if (editor_.IsBusy())
        editor_.Cancel();
    else
        editor_.Unmark();
}

void EditorWindow::Copy() {
    CopySymbols(window_, editor_.Document().MarkedSymbols());
}

void EditorWindow::Paste() {
    if (std::vector<PlacedSymbol> symbols = SymbolsOnClipboard(window_); !symbols.empty())
        editor_.Paste(std::move(symbols));
}

void EditorWindow::MoveBy() {
    const PlacedSymbol first = editor_.Document().MarkedSymbols().front();
    if (const std::optional<TypedMove> move = AskForMove(window_, first.name, first.at))
        editor_.MoveMarked(*move);
}

void EditorWindow::Zoom(int command) {
    RECT area;
    GetClientRect(plan_.Window(), &area);
    const POINT middle{area.right / 2, area.bottom / 2};
    switch (command) {
    case IDM_ZOOM_ALL: return editor_.ChangeView([](PlanView& view) { view.FitSheet(); });
    case IDM_ZOOM_MARKED: return editor_.ChangeView([](PlanView& view) { view.FitMarked(); });
    case IDM_ZOOM_TRUE:
        return editor_.ChangeView(
            [&](PlanView& view) { view.SetScale(kUnitsPerMillimetre / DotsPerMillimetre()); });
    default: return editor_.Zoom(middle, command == IDM_ZOOM_IN ? 2 : -2);
    }
}

void EditorWindow::Toggle(int command) {
    if (command == IDM_GRID)
        editor_.ChangeView([](PlanView& view) { view.ShowGrid(!view.HasGrid()); });
    else if (command == IDM_SNAP)
        editor_.SetSnaps(!editor_.Snaps());
    else
        editor_.SetGoesOnPlacing(!editor_.GoesOnPlacing());
    settings_.SetFlag(kViewSection, L"Raster", editor_.View().HasGrid());
    settings_.SetFlag(kViewSection, L"Fangen", editor_.Snaps());
    settings_.SetFlag(kViewSection, L"Weitersetzen", editor_.GoesOnPlacing());
}

void EditorWindow::OpenRecent(int number) {
    const std::vector<std::wstring> plans = settings_.List(kRecentSection);
    if (static_cast<std::size_t>(number) < plans.size() && MayLeave(window_, editor_.Document()))
        Open(plans[static_cast<std::size_t>(number)]);
}

void EditorWindow::PlanChanged() {
    autosave_.Discard();
    editor_.Redraw();
    const std::filesystem::path& file = editor_.Document().File();
    if (file.empty())
        return;
    settings_.PutFirst(kRecentSection, file.wstring(), kRecent);
    settings_.SetText(L"Plan", L"Zuletzt", file.wstring());
    settings_.SetText(L"Plan", L"Katalog", catalogueFolder_.wstring());
}

/// What a crash has left is offered once.
void EditorWindow::OfferRecovery(const std::filesystem::path& plan) {
    const std::filesystem::path kept = autosave_.FileFor(plan);
    std::error_code ignored;
    if (!std::filesystem::exists(kept, ignored))
        return;
    const std::wstring question = L"\"" + (plan.empty() ? L"Unbenannt" : plan.filename().wstring()) +
                                  L"\" wurde beim letzten Mal nicht mehr gespeichert.\n"
                                  L"Den Stand übernehmen, der dabei gesichert wurde?";
    if (MessageBoxW(window_, question.c_str(), L"Planhost", MB_YESNO | MB_ICONQUESTION) == IDYES)
        editor_.Document().Recover(kept, plan);
    std::filesystem::remove(kept, ignored);
    autosave_.Keep(editor_.Document());
    editor_.Redraw();
}
