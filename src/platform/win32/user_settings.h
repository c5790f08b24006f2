#pragma once

#include "base/regional_settings.h"

namespace platform {

/// The user's regional settings as they are now.
base::RegionalSettings UserSettings();

} // namespace platform
