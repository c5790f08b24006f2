#pragma once

#include "support/automation_test.h"
#include "support/dialog_user.h"
#include "support/foreign_symbol.h"
#include "support/message_boxes.h"
#include "support/number_settings.h"
#include "support/pixels.h"
#include "support/shapes.h"

#include <string>
#include <vector>

namespace dialog {

using support::ForeignSymbol;
using support::Ref;
using support::SelectionDialog;

inline constexpr COLORREF kRed = RGB(200, 20, 30);
inline constexpr COLORREF kGreen = RGB(10, 160, 60);
inline constexpr COLORREF kWhite = RGB(255, 255, 255);

/// A catalogue of the test's own, and a user before the dialog.
class DialogTest : public support::AutomationTest {
protected:
    /// Symbols of that name whose outline is as large as they are, 2000 by 1000.
    void Add(const std::vector<std::wstring>& names);
    void Add(const std::wstring& name, LONG width, LONG height,
             const std::vector<support::ElementSpec>& elements);
    Ref<ForeignSymbol> AddForeign(const std::wstring& name, LONG width = 100, LONG height = 100);

    /// Lets the user choose; what the host gets.
    std::wstring Choose(const std::wstring& oldName = L"") const;

    const support::NumberSettings english = support::NumberSettings::English();
    Ref<_CSymbolColl> catalogue = support::Create<CSymbolColl, _CSymbolColl>();
    support::DialogUser user;
};

/// The preview as the dialog paints it, its border included, on a canvas of the preview's size.
void PaintPreview(const SelectionDialog& dialog, support::Canvas& canvas);
SIZE PreviewSize(const SelectionDialog& dialog);

/// The window that the message box now open in this thread belongs to.
HWND OwnerOfMessageBox();

/// The extent of everything that is not white, without the preview's border; empty for nothing.
RECT Drawn(const support::Canvas& preview);

} // namespace dialog
