#pragma once

#include "move_dialog.h"

#include <optional>
#include <string>

/// A length in millimetres with a comma or a point; nothing when it is none.
std::optional<long> TypedLength(const std::wstring& text);

/// A place that is typed while something hangs at the mouse: "1200;3400" in the plan, "@100;-50" from where it comes. A blank
/// will do for the semicolon. Nothing when it is none.
std::optional<TypedMove> TypedPlace(std::wstring text);
