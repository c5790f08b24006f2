#pragma once

#include "base/regional_settings.h"

namespace platform {

/// The number conventions that LC_ALL, LC_NUMERIC or LANG names, the first of them that is set: decimal comma
/// or decimal point. A locale need not be installed for that.
base::RegionalSettings EnvironmentSettings();

} // namespace platform
