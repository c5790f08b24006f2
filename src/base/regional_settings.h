#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace base {

/// Seam: the user's number conventions, taken once for each file that is read or written.
struct RegionalSettings {
    /// Separators as bytes of the ANSI code page; an empty one is not used.
    std::string decimal = ".";
    std::string thousands = ",";

    /// What the system makes of a text that is no plain number (nullptr: it is no number at all).
    /// Infinity stands for a number too large for a double.
    std::optional<double> (*systemParse)(std::string_view text) = nullptr;
};

} // namespace base
