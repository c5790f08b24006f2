#pragma once

#include <functional>
#include <string_view>

namespace base {

/// Takes a file's bytes piece by piece.
using ByteSink = std::function<void(std::string_view)>;

/// Hands a file's bytes to a sink, so that a large one is never in memory as a whole.
using Composer = std::function<void(const ByteSink&)>;

} // namespace base
