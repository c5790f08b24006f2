#pragma once

#include "automation/dialog/services.h"

#include <QSymbol.h>

#include <string>
#include <string_view>

namespace dialog {

/// Shows the selection dialog; `request` is "name to select+folder for pictures". The name of the chosen symbol, "" for
/// none. Throws when the dialog cannot be opened.
std::u16string SelectSymbol(_CSymbolColl& catalogue, std::u16string_view request, const Services& services);

} // namespace dialog
