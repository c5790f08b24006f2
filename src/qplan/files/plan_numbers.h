#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Numbers as plan files write them: a point before decimals, whatever the regional settings. Blanks around are ignored.
namespace qplan {

/// A whole number of 32 bits.
std::optional<std::int32_t> WholeNumber(std::string_view text);

/// Millimetres with at most two decimals, in logical units; nothing outside 32 bits.
std::optional<std::int32_t> UnitsFromMillimetres(std::string_view text);
void AppendMillimetres(std::string& out, std::int32_t units);

/// Degrees, in radians; nothing for what is not finite.
std::optional<double> RadiansFromDegrees(std::string_view text);
/// At most six decimals where they read back as the same angle, otherwise as many as that takes.
void AppendDegrees(std::string& out, double radians);

} // namespace qplan
