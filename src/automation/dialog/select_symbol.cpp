#include "automation/dialog/select_symbol.h"

#include "automation/dialog/frmSymSelect.h"
#include "platform/win32/visual_styles.h"
#include "qsymbol/dialog/dialog_texts.h"

#include <commctrl.h>

namespace dialog {

std::u16string SelectSymbol(_CSymbolColl& catalogue, std::u16string_view request, const Services& services) {
    const platform::VisualStyles styles(services.instance);
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&classes);
    const qsymbol::SelectionRequest wanted = qsymbol::ParseSelectionRequest(request);
    return frmSymSelect(services, wanted.folder).ShowModal(catalogue, wanted.name);
}

} // namespace dialog
