#include "properties_bar.h"

#include "../millimetres.h"
#include "../text.h"
#include "dialog_support.h"
#include "dpi.h"
#include "typed_place.h"

#include <commctrl.h>

#include <cmath>

namespace {

// Pixels of a screen of 100 %.
constexpr int kBarHeight = 30;
constexpr int kFieldHeight = 20;
constexpr int kGap = 6;

constexpr UINT kTake = WM_APP; // to a field: it has been left

struct FieldForm {
    const wchar_t* label;
    int labelWidth, width;
};

constexpr FieldForm kForms[] = {{L"Symbol", 46, 170}, {L"x", 14, 84}, {L"y", 14, 84}, {L"Winkel", 42, 64}};

std::wstring DegreesText(double degrees) {
    std::wstring text = std::to_wstring(degrees); // six decimals
    text.erase(text.find_last_not_of(L'0') + 1);
    if (text.back() == L'.')
        text.pop_back();
    if (const std::size_t point = text.find(L'.'); point != std::wstring::npos)
        text[point] = L',';
    return text;
}

double TypedDegrees(std::wstring text) {
    if (const std::size_t comma = text.find(L','); comma != std::wstring::npos)
        text[comma] = L'.';
    wchar_t* end = nullptr;
    const double degrees = std::wcstod(text.c_str(), &end);
    if (text.empty() || *end != L'\0' || !std::isfinite(degrees))
        throw Failure{L"\"" + text + L"\" ist kein Winkel in Grad."};
    return degrees - 360 * std::floor(degrees / 360);
}

LONG TypedUnits(const std::wstring& text) {
    const std::optional<long> units = TypedLength(text);
    if (!units)
        throw Failure{L"\"" + text + L"\" ist keine Länge in Millimetern."};
    return *units;
}

} // namespace

void PropertiesBar::Create(HWND parent, Apply apply, std::function<void()> leave) {
    apply_ = std::move(apply);
    leave_ = std::move(leave);
    const HINSTANCE program = GetModuleHandleW(nullptr);
    WNDCLASSEXW form{};
    form.cbSize = sizeof form;
    form.lpfnWndProc = DefWindowProcW;
    form.hInstance = program;
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
    form.lpszClassName = L"PlanhostProperties";
    RegisterClassExW(&form);
    window_ = CreateWindowExW(0, form.lpszClassName, L"", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 0, 0,
                              parent, nullptr, program, nullptr);
    for (std::size_t i = 0; i < Count; ++i) {
        labels_[i] =
            CreateWindowExW(0, L"STATIC", kForms[i].label, WS_CHILD | WS_VISIBLE | SS_RIGHT | SS_CENTERIMAGE,
                            0, 0, 0, 0, window_, nullptr, program, nullptr);
        fields_[i] = CreateWindowExW(WS_EX_CLIENTEDGE, L"EDIT", L"",
                                     WS_CHILD | WS_VISIBLE | WS_DISABLED | ES_AUTOHSCROLL, 0, 0, 0, 0,
                                     window_, nullptr, program, nullptr);
        SetWindowSubclass(fields_[i], OnFieldMessage, i, reinterpret_cast<DWORD_PTR>(this));
    }
}

int PropertiesBar::Height(UINT dots) const {
    return Scaled(kBarHeight, dots);
}

void PropertiesBar::MoveTo(const RECT& area, UINT dots) {
    MoveWindow(window_, area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
    const HFONT before = std::exchange(font_, MakeMessageFont(dots));
    const int top = Scaled((kBarHeight - kFieldHeight) / 2, dots);
    int x = 0;
    for (std::size_t i = 0; i < Count; ++i) {
        for (const auto& [window, width] :
             {std::pair{labels_[i], kForms[i].labelWidth}, {fields_[i], kForms[i].width}}) {
            x += Scaled(kGap, dots);
            MoveWindow(window, x, top, Scaled(width, dots), Scaled(kFieldHeight, dots), TRUE);
            SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
            x += Scaled(width, dots);
        }
    }
    DeleteObject(before);
}

void PropertiesBar::Show(const PlanDocument& document) {
    if (state_ == document.State() && places_ == document.Marks().Places())
        return;
    state_ = document.State();
    places_ = document.Marks().Places();
    symbols_ = document.MarkedSymbols();
    const auto common = [this](auto text) {
        std::wstring all = symbols_.empty() ? L"" : text(symbols_.front());
        for (const PlacedSymbol& symbol : symbols_) {
            if (text(symbol) != all)
                return std::wstring();
        }
        return all;
    };
    ShowField(Name, common([](const PlacedSymbol& symbol) { return symbol.name; }));
    ShowField(X, common([](const PlacedSymbol& symbol) { return MillimetresText(symbol.at.x, L','); }));
    ShowField(Y, common([](const PlacedSymbol& symbol) { return MillimetresText(symbol.at.y, L','); }));
    ShowField(Angle, common([](const PlacedSymbol& symbol) { return DegreesText(symbol.angle); }));
}

void PropertiesBar::ShowField(Field field, const std::wstring& text) {
    texts_[field] = text;
    SetWindowTextW(fields_[field], text.c_str());
    EnableWindow(fields_[field], !symbols_.empty());
}

void PropertiesBar::Focus() const {
    SetFocus(fields_[X]);
    SendMessageW(fields_[X], EM_SETSEL, 0, -1);
}

LRESULT CALLBACK PropertiesBar::OnFieldMessage(HWND field, UINT message, WPARAM wParam, LPARAM lParam,
                                               UINT_PTR number, DWORD_PTR bar) {
    auto& self = *reinterpret_cast<PropertiesBar*>(bar);
    if (message == WM_KEYDOWN && self.OnKey(static_cast<Field>(number), wParam))
        return 0;
    if (message == WM_CHAR && (wParam == VK_RETURN || wParam == VK_TAB || wParam == VK_ESCAPE))
        return 0; // they would only beep
    // What was typed counts also when the mouse goes elsewhere; a message cannot be shown on the way there.
    if (message == WM_KILLFOCUS)
        PostMessageW(field, kTake, 0, 0);
    if (message == kTake) {
        self.Take(static_cast<Field>(number));
        return 0;
    }
    return DefSubclassProc(field, message, wParam, lParam);
}

bool PropertiesBar::OnKey(Field field, WPARAM key) {
    switch (key) {
    case VK_RETURN:
        Take(field);
        leave_();
        return true;
    case VK_TAB: {
        Take(field);
        const HWND next = fields_[(field + (GetKeyState(VK_SHIFT) < 0 ? Count - 1 : 1)) % Count];
        SetFocus(next);
        SendMessageW(next, EM_SETSEL, 0, -1);
        return true;
    }
    case VK_ESCAPE:
        ShowField(field, texts_[field]);
        leave_();
        return true;
    default: return false;
    }
}

void PropertiesBar::Take(Field field) {
    const std::wstring text = WindowText(fields_[field]);
    if (text == texts_[field])
        return;
    ShowField(field, texts_[field]); // until the plan says otherwise
    try {
        std::vector<PlacedSymbol> changed = symbols_;
        for (PlacedSymbol& symbol : changed) {
            switch (field) {
            case Name: symbol.name = text; break;
            case X: symbol.at.x = TypedUnits(text); break;
            case Y: symbol.at.y = TypedUnits(text); break;
            default: symbol.angle = TypedDegrees(text); break;
            }
        }
        apply_(changed);
    } catch (const Failure& failure) {
        MessageBoxW(GetParent(window_), failure.message.c_str(), L"Planhost", MB_ICONEXCLAMATION);
    }
}
