#pragma once

#include "messages/resource_strings.h"

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>

namespace dialog {

/// What the dialog needs of the library that shows it.
struct Services {
    HINSTANCE instance; ///< of the module with the dialog's resources
    const messages::ResourceStrings& strings;
    /// Shows the exception being handled under a source.
    void (*report)(std::u16string_view source) noexcept;
    /// Logical units in a unit that the user sees; asked for each symbol, as the host may change it.
    std::function<double()> unitFactor;
    /// The user's decimal separator.
    std::u16string (*decimal)();
};

} // namespace dialog
