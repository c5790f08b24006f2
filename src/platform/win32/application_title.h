#pragma once

#include <string>

namespace platform {

/// The host program's title: the FileDescription of its version resource, else its base name.
std::u16string ApplicationTitle();

} // namespace platform
