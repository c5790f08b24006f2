#pragma once

#include "base/regional_settings.h"

namespace platform {

/// Number conventions of the native build: German ("1.234,56").
base::RegionalSettings GermanSettings();
/// Number conventions of the native build: English ("1,234.56").
base::RegionalSettings EnglishSettings();

} // namespace platform
