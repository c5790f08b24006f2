#include "editor_window.h"

#include "../text.h"
#include "dpi.h"
#include "editor_layout.h"
#include "plan_files.h"
#include "resource.h"

#include <commctrl.h>

#include <algorithm>

namespace {

constexpr wchar_t kClassName[] = L"PlanhostEditor";
constexpr wchar_t kTitle[] = L"Planhost";
// In pixels of a screen with 96 to the inch.
constexpr SIZE kFirstSize{1120, 840};
constexpr int kPositionWidth = 220; // of the status bar's parts
constexpr int kCountWidth = 170;

/// The first size of the window; no larger than there is room.
SIZE FirstSize() {
    RECT room;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &room, 0);
    const UINT dots = DotsOf(nullptr);
    return {std::min<LONG>(Scaled(kFirstSize.cx, dots), room.right - room.left),
            std::min<LONG>(Scaled(kFirstSize.cy, dots), room.bottom - room.top)};
}

void RegisterWindowClass(WNDPROC onMessage) {
    WNDCLASSEXW form{};
    form.cbSize = sizeof form;
    form.lpfnWndProc = onMessage;
    form.hInstance = GetModuleHandleW(nullptr);
    form.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    form.lpszMenuName = MAKEINTRESOURCEW(IDR_EDITOR);
    form.lpszClassName = kClassName;
    RegisterClassExW(&form);
}

} // namespace

/// A menu command, and when it can be chosen.
struct EditorWindow::Command {
    int id;
    bool (*isPossible)(const EditorWindow& window);
    void (*run)(EditorWindow& window);
};

bool EditorWindow::HasMarks(const EditorWindow& window) {
    return !window.editor_.Document().Marks().IsEmpty();
}

const EditorWindow::Command EditorWindow::kCommands[] = {
    {IDM_NEW, Always,
     [](EditorWindow& w) {
         StartNewPlan(w.window_, w.editor_.Document());
         w.editor_.Redraw();
     }},
    {IDM_OPEN, Always,
     [](EditorWindow& w) {
         OpenPlan(w.window_, w.editor_.Document());
         w.editor_.Redraw();
     }},
    {IDM_SAVE, Always, [](EditorWindow& w) { SavePlan(w.window_, w.editor_.Document()); }},
    {IDM_SAVE_AS, Always, [](EditorWindow& w) { SavePlanAs(w.window_, w.editor_.Document()); }},
    {IDM_EXPORT, Always,
     [](EditorWindow& w) {
         ExportAsDxf(w.window_, w.editor_.Document());
         w.editor_.Redraw(); // symbols are hit in the size of their last drawing, and that was the export's
     }},
    {IDM_QUIT, Always, [](EditorWindow& w) { PostMessageW(w.window_, WM_CLOSE, 0, 0); }},
    {IDM_UNDO, [](const EditorWindow& w) { return w.editor_.Document().CanUndo(); },
     [](EditorWindow& w) { w.editor_.Undo(); }},
    {IDM_MOVE, HasMarks, [](EditorWindow& w) { w.editor_.MoveMarked(); }},
    {IDM_MOVE_BY, HasMarks, [](EditorWindow& w) { w.MoveBy(); }},
    {IDM_DUPLICATE, HasMarks, [](EditorWindow& w) { w.editor_.DuplicateMarked(); }},
    {IDM_REMOVE, HasMarks, [](EditorWindow& w) { w.editor_.RemoveMarked(); }},
    {IDM_MARK_ALL, Always, [](EditorWindow& w) { w.editor_.MarkAll(); }},
    {IDM_CHOOSE, Always, [](EditorWindow& w) { w.editor_.Choose(); }},
    {IDM_AGAIN, [](const EditorWindow& w) { return w.editor_.CanPlaceAgain(); },
     [](EditorWindow& w) { w.editor_.PlaceAgain(); }},
    {IDM_CANCEL, Always, [](EditorWindow& w) { w.Cancel(); }},
};

EditorWindow::EditorWindow(const std::filesystem::path& catalogueFolder)
    : catalogueFolder_(std::filesystem::absolute(catalogueFolder)), editor_(OpenCatalogue(catalogueFolder)),
      plan_(editor_) {
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    RegisterWindowClass(OnMessage);
    const auto [width, height] = FirstSize();
    CreateWindowExW(0, kClassName, kTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                    CW_USEDEFAULT, width, height, nullptr, nullptr, GetModuleHandleW(nullptr), this);
    if (window_ == nullptr)
        throw Failure{L"Das Fenster lässt sich nicht öffnen."};
    ShowWindow(window_, SW_SHOWDEFAULT);
    ShowState();
}

void EditorWindow::Open(const std::filesystem::path& plan) {
    Do([&] {
        editor_.Document().Open(plan);
        editor_.Redraw();
    });
}

void EditorWindow::Run() {
    const HACCEL keys = LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDR_EDITOR));
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (TranslateAcceleratorW(window_, keys, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

LRESULT CALLBACK EditorWindow::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* self = static_cast<EditorWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        self->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<EditorWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return self != nullptr ? self->Handle(message, wParam, lParam)
                           : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT EditorWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE: CreateParts(); return status_ != nullptr ? 0 : -1;
    case WM_SIZE: Resize(); return 0;
    case WM_SETFOCUS: FocusPlan(); return 0;
    case WM_COMMAND: Execute(LOWORD(wParam)); return 0;
    case WM_INITMENUPOPUP: EnableCommands(reinterpret_cast<HMENU>(wParam)); return 0;
    case WM_CLOSE:
        if (MayClose())
            DestroyWindow(window_);
        return 0;
    case WM_QUERYENDSESSION: return MayClose();
    case WM_DESTROY: PostQuitMessage(0); return 0;
    default: break;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

template <class Action>
void EditorWindow::Do(const Action& action) {
    const auto explain = [this](const std::wstring& message) {
        ReleaseCapture();
        editor_.Abandon();
        MessageBoxW(window_, message.c_str(), kTitle, MB_ICONEXCLAMATION);
    };
    try {
        action();
    } catch (const Failure& failure) {
        explain(failure.message);
    } catch (const std::exception& error) {
        explain(FromUtf8(error.what()));
    }
    ShowState();
}

void EditorWindow::CreateParts() {
    status_ = CreateWindowExW(0, STATUSCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0, 0,
                              window_, nullptr, GetModuleHandleW(nullptr), nullptr);
    plan_.Create(window_, [this](const std::function<void()>& action) { Do(action); });
    palette_ = MakePalette(window_, *this);
}

void EditorWindow::Resize() {
    RECT client, bar;
    SendMessageW(status_, WM_SIZE, 0, 0);
    GetClientRect(window_, &client);
    GetWindowRect(status_, &bar);
    const UINT dots = DotsOf(window_);
    const int countStart = client.right - Scaled(kCountWidth, dots);
    const int ends[] = {std::max(0, countStart - Scaled(kPositionWidth, dots)), std::max(0, countStart), -1};
    SendMessageW(status_, SB_SETPARTS, std::size(ends), reinterpret_cast<LPARAM>(ends));
    const EditorLayout layout = LayOut({client.right, client.bottom},
                                       {0, palette_ ? palette_->Width(dots) : 0, bar.bottom - bar.top});
    plan_.MoveTo(layout.plan);
    if (palette_) {
        const auto [left, top, right, bottom] = layout.palette;
        MoveWindow(palette_->Window(), left, top, right - left, bottom - top, TRUE);
    }
}

void EditorWindow::FollowMouse() {
    editor_.MouseMove(plan_.Mouse());
}

void EditorWindow::BeginPlacing(const std::wstring& name) {
    Do([&] {
        editor_.Cancel();
        editor_.Place(name);
        FollowMouse();
    });
    FocusPlan();
}

void EditorWindow::BeginDragging(const std::wstring& name) {
    BeginPlacing(name);
    editor_.FixWhereLetGo();
    SetCapture(plan_.Window());
}

void EditorWindow::ReloadCatalogue() {
    Do([&] {
        editor_.Cancel();
        editor_.Document().UseCatalogue(OpenCatalogue(catalogueFolder_));
        editor_.Redraw();
    });
    if (palette_)
        palette_->CatalogueChanged();
}

void EditorWindow::Execute(int id) {
    for (const Command& command : kCommands) {
        if (command.id != id)
            continue;
        Do([&] {
            if (id != IDM_CANCEL)
                editor_.Cancel();
            command.run(*this);
            FollowMouse(); // the tool's image appears where the mouse is already
        });
    }
}

void EditorWindow::EnableCommands(HMENU menu) const {
    for (const Command& command : kCommands)
        EnableMenuItem(menu, command.id, command.isPossible(*this) ? MF_ENABLED : MF_GRAYED);
}

void EditorWindow::ShowState() {
    const std::wstring texts[] = {editor_.Hint(), editor_.PositionText(), editor_.CountText()};
    for (std::size_t i = 0; i < std::size(texts); ++i)
        SendMessageW(status_, SB_SETTEXTW, i, reinterpret_cast<LPARAM>(texts[i].c_str()));
    const std::wstring title =
        PlanName(editor_.Document()) + (editor_.Document().IsModified() ? L"* – " : L" – ") + kTitle;
    SetWindowTextW(window_, title.c_str());
    plan_.Refresh();
}

void EditorWindow::Cancel() {
    if (editor_.IsBusy())
        editor_.Cancel();
    else
        editor_.Unmark();
}

void EditorWindow::MoveBy() {
    if (const std::optional<TypedMove> move = AskForMove(window_))
        editor_.MoveMarked(*move);
}

bool EditorWindow::MayClose() {
    bool mayClose = false;
    Do([&] {
        editor_.Cancel();
        mayClose = MayLeave(window_, editor_.Document());
    });
    return mayClose;
}
