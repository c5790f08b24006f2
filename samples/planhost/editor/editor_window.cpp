#include "editor_window.h"

#include "../text.h"
#include "dpi.h"
#include "editor_layout.h"
#include "plan_files.h"
#include "resource.h"
#include "window_commands.h"
#include "window_messages.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr wchar_t kClassName[] = L"PlanhostEditor";
constexpr wchar_t kTitle[] = L"Planhost";
constexpr wchar_t kPlaceSection[] = L"Fenster";
constexpr UINT_PTR kKeepTimer = 1;
constexpr long kKeepSeconds = 60;
// In pixels of a screen of 100 %.
constexpr SIZE kFirstSize{1120, 840};

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
    form.hIcon = LoadIconW(form.hInstance, MAKEINTRESOURCEW(IDI_PLANHOST));
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
    form.lpszMenuName = MAKEINTRESOURCEW(IDR_EDITOR);
    form.lpszClassName = kClassName;
    RegisterClassExW(&form);
}

/// Whether a message is a key that a field of text has its own use for.
bool IsForField(const MSG& message) {
    wchar_t name[16] = L"";
    GetClassNameW(message.hwnd, name, 16);
    if (lstrcmpiW(name, L"Edit") != 0 || message.message != WM_KEYDOWN)
        return false;
    const bool isEditing = message.wParam == VK_DELETE ||
                           (message.wParam < 128 && std::strchr("ACVXYZ", static_cast<int>(message.wParam)));
    return isEditing || message.wParam == VK_PRIOR || message.wParam == VK_NEXT;
}

/// The wheel turns what the mouse points to, whatever has the keyboard; only newer systems see to that themselves.
HWND UnderMouse(const MSG& message) {
    const HWND under = WindowFromPoint(message.pt);
    return GetWindowThreadProcessId(under, nullptr) == GetCurrentThreadId() ? under : message.hwnd;
}

} // namespace

EditorWindow::EditorWindow(const std::filesystem::path& catalogueFolder)
    : catalogueFolder_(std::filesystem::absolute(catalogueFolder)), editor_(OpenCatalogue(catalogueFolder)),
      plan_(editor_), autosave_(settings_.Folder()) {
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    RegisterWindowClass(OnMessage);
    const auto [width, height] = FirstSize();
    CreateWindowExW(0, kClassName, kTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                    CW_USEDEFAULT, width, height, nullptr, nullptr, GetModuleHandleW(nullptr), this);
    if (window_ == nullptr)
        throw Failure{L"Das Fenster lässt sich nicht öffnen."};
    editor_.SetSnaps(settings_.Flag(L"Ansicht", L"Fangen", true));
    editor_.SetGoesOnPlacing(settings_.Flag(L"Ansicht", L"Weitersetzen", true));
    editor_.View().ShowGrid(settings_.Flag(L"Ansicht", L"Raster", false));
    editor_.OnPlaced([this](const std::wstring& name) {
        if (palette_)
            palette_->SymbolPlaced(name);
    });
    RestorePlace();
    FocusPlan();
    ShowState();
    const long seconds = settings_.Number(L"Plan", L"Sicherung", kKeepSeconds);
    SetTimer(window_, kKeepTimer, static_cast<UINT>(std::clamp(seconds, 1L, 3600L) * 1000), nullptr);
}

void EditorWindow::Open(const std::filesystem::path& plan) {
    Do([&] {
        editor_.Document().Open(plan);
        PlanChanged();
        OfferRecovery(editor_.Document().File());
    });
}

void EditorWindow::StartNew() {
    Do([this] { OfferRecovery({}); });
}

void EditorWindow::Run() {
    const HACCEL keys = LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDR_EDITOR));
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!IsForField(message) && TranslateAcceleratorW(window_, keys, &message))
            continue;
        if (message.message == WM_MOUSEWHEEL)
            message.hwnd = UnderMouse(message);
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

LRESULT CALLBACK EditorWindow::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return Deliver(&EditorWindow::window_, &EditorWindow::Handle, window, message, wParam, lParam);
}

LRESULT EditorWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT kDotsChanged = 0x02E0; // WM_DPICHANGED, from Windows 8.1 on
    switch (message) {
    case WM_CREATE: return CreateParts() ? 0 : -1;
    case WM_SIZE: Resize(); return 0;
    case kDotsChanged: TakeDots(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam)); return 0;
    case WM_ACTIVATE:
        if (LOWORD(wParam) == WA_INACTIVE)
            focus_ = GetFocus();
        break;
    case WM_SETFOCUS: SetFocus(IsChild(window_, focus_) != FALSE ? focus_ : plan_.Window()); return 0;
    case WM_MOUSEWHEEL: SendMessageW(plan_.Window(), message, wParam, lParam); return 0;
    case WM_COMMAND: Execute(LOWORD(wParam)); return 0;
    case WM_INITMENUPOPUP: PrepareMenu(reinterpret_cast<HMENU>(wParam)); return 0;
    case WM_CONTEXTMENU:
        if (reinterpret_cast<HWND>(wParam) != plan_.Window())
            break;
        ShowContextMenu(lParam == -1 ? plan_.Corner() : POINT{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        return 0;
    case WM_SETCURSOR: // the mouse is over one of the parts, which asks here first
        if (reinterpret_cast<HWND>(wParam) != plan_.Window() && editor_.MouseLeave())
            plan_.Refresh();
        break;
    case WM_TIMER: KeepUnsaved(); return 0;
    case WM_CLOSE:
        if (MayClose())
            DestroyWindow(window_);
        return 0;
    case WM_QUERYENDSESSION: return MayClose();
    case WM_DESTROY:
        RememberPlace();
        ForgetDots(window_);
        autosave_.Discard();
        PostQuitMessage(0);
        return 0;
    default: break;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

void EditorWindow::Do(const std::function<void()>& action) {
    const auto explain = [this](const std::wstring& message) {
        ReleaseCapture();
        try {
            editor_.Abandon();
        } catch (const Failure&) {
            // The plan is in memory still, and can be saved.
        }
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

bool EditorWindow::CreateParts() {
    if (!status_.Create(window_))
        return false;
    properties_.Create(
        window_,
        [this](const std::vector<PlacedSymbol>& changed) {
            Do([&] {
                editor_.Change(
                    [&](PlanDocument& document) { document.Replace(document.Marks().Places(), changed); });
            });
        },
        [this] { FocusPlan(); });
    plan_.Create(window_, [this](const std::function<void()>& action) { Do(action); });
    palette_ = MakePalette(window_, *this);
    return true;
}

void EditorWindow::Resize() {
    RECT client;
    GetClientRect(window_, &client);
    const UINT dots = DotsOf(window_);
    status_.Arrange(client.right, dots);
    const EditorLayout layout =
        LayOut({client.right, client.bottom},
               {properties_.Height(dots), palette_ ? palette_->Width(dots) : 0, status_.Height()});
    properties_.MoveTo(layout.properties, dots);
    Do([&] { editor_.UseDots(dots); });
    plan_.MoveTo(layout.plan);
    if (palette_) {
        const auto [left, top, right, bottom] = layout.palette;
        MoveWindow(palette_->Window(), left, top, right - left, bottom - top, TRUE);
    }
    ShowState();
}

/// The window has come to a screen with other dots, or its user has changed them; proposed: its place there.
void EditorWindow::TakeDots(UINT dots, const RECT& proposed) {
    TellDots(window_, dots);
    SetWindowPos(window_, nullptr, proposed.left, proposed.top, proposed.right - proposed.left,
                 proposed.bottom - proposed.top, SWP_NOZORDER | SWP_NOACTIVATE);
    Resize();
    // Parts that have moved bring old pixels along.
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void EditorWindow::RestorePlace() {
    WINDOWPLACEMENT place{};
    place.length = sizeof place;
    GetWindowPlacement(window_, &place);
    RECT& area = place.rcNormalPosition;
    area.left = settings_.Number(kPlaceSection, L"Links", area.left);
    area.top = settings_.Number(kPlaceSection, L"Oben", area.top);
    area.right = settings_.Number(kPlaceSection, L"Rechts", area.right);
    area.bottom = settings_.Number(kPlaceSection, L"Unten", area.bottom);
    place.showCmd = settings_.Flag(kPlaceSection, L"Maximiert", false) ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
    // The screen that it was on may be gone.
    const bool isSeen = MonitorFromRect(&area, MONITOR_DEFAULTTONULL) != nullptr && area.left < area.right;
    if (isSeen)
        SetWindowPlacement(window_, &place);
    else
        ShowWindow(window_, SW_SHOWDEFAULT);
}

void EditorWindow::RememberPlace() {
    WINDOWPLACEMENT place{};
    place.length = sizeof place;
    GetWindowPlacement(window_, &place);
    settings_.SetNumber(kPlaceSection, L"Links", place.rcNormalPosition.left);
    settings_.SetNumber(kPlaceSection, L"Oben", place.rcNormalPosition.top);
    settings_.SetNumber(kPlaceSection, L"Rechts", place.rcNormalPosition.right);
    settings_.SetNumber(kPlaceSection, L"Unten", place.rcNormalPosition.bottom);
    settings_.SetFlag(kPlaceSection, L"Maximiert", IsZoomed(window_) != FALSE);
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
        editor_.UseCatalogue(OpenCatalogue(catalogueFolder_));
    });
    if (palette_)
        palette_->CatalogueChanged();
}

/// Of the glass, so that a ruler held against it agrees: as the user has measured it, or as the screen tells.
double EditorWindow::DotsPerMillimetre() const {
    constexpr double kMillimetresPerInch = 25.4;
    const double dots = measuredDots_ > 0 ? static_cast<double>(measuredDots_) : MeasuredDotsOf(window_);
    return dots / kMillimetresPerInch;
}

/// The scale at which the plan is seen on this screen.
std::wstring EditorWindow::ZoomText() const {
    const double reduced = editor_.View().Map().Scale() / kUnitsPerMillimetre * DotsPerMillimetre();
    return reduced >= 0.99 ? L"1:" + std::to_wstring(std::lround(reduced))
                           : std::to_wstring(std::lround(1 / reduced)) + L":1";
}

void EditorWindow::ShowState() {
    status_.Show(StatusBar::Hint, editor_.Hint());
    status_.Show(StatusBar::Position, editor_.PositionText());
    status_.Show(StatusBar::Marked, editor_.CountText());
    status_.Show(StatusBar::Zoom, ZoomText());
    properties_.Show(editor_.Document());
    std::wstring title =
        PlanName(editor_.Document()) + (editor_.Document().IsModified() ? L"* – " : L" – ") + kTitle;
    if (title != title_)
        SetWindowTextW(window_, title.c_str());
    title_ = std::move(title);
    plan_.Refresh();
}

void EditorWindow::KeepUnsaved() {
    autosave_.Keep(editor_.Document());
}

bool EditorWindow::MayClose() {
    bool mayClose = false;
    Do([&] {
        editor_.Cancel();
        mayClose = MayLeave(window_, editor_.Document());
    });
    return mayClose;
}
