#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Keywords and fields of the import format, upper case as they stand in a file.
namespace qsymbol::wsc_format {

inline constexpr char kSeparator = ' ';
inline constexpr char kKeySeparator = '=';
inline constexpr std::size_t kKeywordLength = 3;
inline constexpr std::size_t kHeaderFields = 6;

/// Keyed fields behind the keyword: of STR, STF, ELL and EBO; of EFL and PIE.
inline constexpr int kLineKeys = 5;
inline constexpr int kFilledKeys = 4;

/// The reference point of every imported symbol, in logical units.
inline constexpr std::int32_t kReference = 5000;

enum class Keyword {
    None,        ///< anything else
    Header,      ///< BLT
    Line,        ///< STR
    Chain,       ///< STF
    ChainPoints, ///< SFF
    Area,        ///< FLA
    AreaPoints,  ///< FLF
    Ellipse,     ///< ELL
    Arc,         ///< EBO
    ArcPoints,   ///< EBF
    FilledOval,  ///< EFL
    Pie,         ///< PIE
    PiePoints,   ///< PIF
    End,         ///< END
};

/// The keyword that this text is, the whole of it.
constexpr Keyword KeywordOf(std::string_view text) {
    constexpr auto code = [](std::string_view letters) {
        const auto byte = [&](std::size_t i) {
            return std::uint32_t{static_cast<unsigned char>(letters[i])};
        };
        return byte(0) << 16 | byte(1) << 8 | byte(2);
    };
    if (text.size() != kKeywordLength)
        return Keyword::None;
    switch (code(text)) {
    case code("BLT"): return Keyword::Header;
    case code("STR"): return Keyword::Line;
    case code("STF"): return Keyword::Chain;
    case code("SFF"): return Keyword::ChainPoints;
    case code("FLA"): return Keyword::Area;
    case code("FLF"): return Keyword::AreaPoints;
    case code("ELL"): return Keyword::Ellipse;
    case code("EBO"): return Keyword::Arc;
    case code("EBF"): return Keyword::ArcPoints;
    case code("EFL"): return Keyword::FilledOval;
    case code("PIE"): return Keyword::Pie;
    case code("PIF"): return Keyword::PiePoints;
    case code("END"): return Keyword::End;
    default: return Keyword::None;
    }
}

/// True for the keywords that make an element.
constexpr bool OpensFigure(Keyword keyword) {
    switch (keyword) {
    case Keyword::Line:
    case Keyword::Chain:
    case Keyword::Area:
    case Keyword::Ellipse:
    case Keyword::Arc:
    case Keyword::FilledOval:
    case Keyword::Pie: return true;
    default: return false;
    }
}

} // namespace qsymbol::wsc_format
