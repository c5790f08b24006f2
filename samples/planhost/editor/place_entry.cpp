#include "place_entry.h"

#include "dialog_support.h"
#include "dpi.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace {

// Pixels of a screen of 100 %.
constexpr int kWidth = 120;
constexpr int kHeight = 21;
constexpr int kBeside = 16; // the mouse

} // namespace

void PlaceEntry::Open(HWND plan, POINT at, const std::wstring& begin,
                      std::function<void(const TypedMove&)> take) {
    Close();
    take_ = std::move(take);
    RECT room;
    GetClientRect(plan, &room);
    const UINT dots = DotsOf(plan);
    const int width = Scaled(kWidth, dots);
    const int height = Scaled(kHeight, dots);
    const LONG left =
        std::clamp<LONG>(at.x + Scaled(kBeside, dots), 0, std::max<LONG>(room.right - width, 0));
    const LONG top =
        std::clamp<LONG>(at.y + Scaled(kBeside, dots), 0, std::max<LONG>(room.bottom - height, 0));
    field_ = CreateWindowExW(0, L"EDIT", begin.c_str(), WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL,
                             left, top, width, height, plan, nullptr, GetModuleHandleW(nullptr), nullptr);
    const HFONT font = MakeMessageFont(dots);
    SendMessageW(field_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    SetWindowSubclass(field_, OnMessage, reinterpret_cast<UINT_PTR>(font), reinterpret_cast<DWORD_PTR>(this));
    SetFocus(field_);
    SendMessageW(field_, EM_SETSEL, begin.size(), static_cast<LPARAM>(begin.size()));
}

void PlaceEntry::Close() {
    if (field_ == nullptr)
        return;
    const HWND plan = GetParent(field_);
    DestroyWindow(std::exchange(field_, nullptr));
    SetFocus(plan);
}

void PlaceEntry::Accept() {
    const std::wstring text = WindowText(field_);
    const std::optional<TypedMove> place = TypedPlace(text);
    if (!place) {
        const std::wstring message = L"\"" + text +
                                     L"\" ist keine Stelle. Eine Stelle im Plan ist \"1200;3400\", " +
                                     L"eine Strecke \"@100;-50\".";
        MessageBoxW(GetAncestor(field_, GA_ROOT), message.c_str(), L"Planhost", MB_ICONEXCLAMATION);
        SetFocus(field_);
        return;
    }
    const auto take = take_;
    Close();
    take(*place);
}

/// The number of the subclass is its font, which goes with the field.
LRESULT CALLBACK PlaceEntry::OnMessage(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR font,
                                       DWORD_PTR entry) {
    auto& self = *reinterpret_cast<PlaceEntry*>(entry);
    switch (message) {
    case WM_KEYDOWN:
        if (wParam != VK_RETURN && wParam != VK_ESCAPE)
            break;
        wParam == VK_RETURN ? self.Accept() : self.Close();
        return 0;
    case WM_CHAR:
        if (wParam == VK_RETURN || wParam == VK_ESCAPE)
            return 0; // they would only beep
        break;
    case WM_NCDESTROY: DeleteObject(reinterpret_cast<HFONT>(font)); break;
    default: break;
    }
    return DefSubclassProc(field, message, wParam, lParam);
}
