#include "qplan/files/plan_numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <numbers>

namespace qplan {

namespace {

constexpr std::int64_t kUnits = 100; // in a millimetre

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// Without blanks and a plus sign.
std::string_view Unsigned(std::string_view text) {
    text = Trimmed(text);
    if (text.starts_with('+') && !text.substr(1).starts_with('-'))
        text.remove_prefix(1);
    return text;
}

template <class Number>
std::optional<Number> Whole(std::string_view text) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

void AppendNumber(std::string& out, std::int64_t value) {
    std::array<char, 24> digits{};
    out.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr);
}

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

/// The text of degrees if it reads back as these radians.
bool AppendIfExact(std::string& out, std::string_view text, double radians) {
    if (RadiansFromDegrees(text) != radians)
        return false;
    out += text;
    return true;
}

} // namespace

std::optional<std::int32_t> WholeNumber(std::string_view text) {
    return Whole<std::int32_t>(Unsigned(text));
}

std::optional<std::int32_t> UnitsFromMillimetres(std::string_view text) {
    text = Unsigned(text);
    const bool isNegative = text.starts_with('-');
    text.remove_prefix(isNegative ? 1 : 0);
    const std::size_t point = text.find('.');
    const std::string_view part = point == std::string_view::npos ? "0" : text.substr(point + 1);
    const auto whole = Whole<std::uint32_t>(text.substr(0, point));
    const auto decimals = Whole<std::uint32_t>(part);
    if (!whole || !decimals || part.size() > 2)
        return std::nullopt;
    const std::int64_t size = *whole * kUnits + *decimals * (part.size() == 1 ? kUnits / 10 : 1);
    const std::int64_t units = isNegative ? -size : size;
    const auto value = static_cast<std::int32_t>(units);
    return value == units ? std::optional(value) : std::nullopt;
}

void AppendMillimetres(std::string& out, std::int32_t units) {
    const std::int64_t size = std::abs(std::int64_t{units});
    if (units < 0)
        out += '-';
    AppendNumber(out, size / kUnits);
    const auto part = static_cast<int>(size % kUnits);
    if (part == 0)
        return;
    out += '.';
    out += static_cast<char>('0' + part / 10);
    if (part % 10 != 0)
        out += static_cast<char>('0' + part % 10);
}

std::optional<double> RadiansFromDegrees(std::string_view text) {
    text = Unsigned(text);
    const auto degrees = Whole<double>(text);
    if (!degrees || !std::isfinite(Radians(*degrees)))
        return std::nullopt;
    return Radians(*degrees);
}

void AppendDegrees(std::string& out, double radians) {
    const double degrees = radians * 180 / std::numbers::pi;
    std::array<char, 400> text{};
    const auto written = [&](const std::to_chars_result& result) {
        return std::string_view(text.data(), static_cast<std::size_t>(result.ptr - text.data()));
    };
    std::string_view plain =
        written(std::to_chars(text.data(), text.data() + text.size(), degrees, std::chars_format::fixed, 6));
    plain = plain.substr(0, plain.find_last_not_of('0') + 1);
    if (plain.ends_with('.'))
        plain.remove_suffix(1);
    if (AppendIfExact(out, plain == "-0" ? "0" : plain, radians))
        return;
    // The way to degrees and back rounds twice, so it may take a neighbour.
    for (const double towards :
         {degrees, std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
        const double near = std::nextafter(degrees, towards);
        if (AppendIfExact(out, written(std::to_chars(text.data(), text.data() + text.size(), near)), radians))
            return;
    }
    out += written(std::to_chars(text.data(), text.data() + text.size(), degrees));
}

} // namespace qplan
