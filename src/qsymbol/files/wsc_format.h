#pragma once

#include "qsymbol/files/three_letters.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Keywords and fields of the import format, upper case as they stand in a file.
namespace qsymbol::wsc_format {

inline constexpr char kSeparator = ' ';
inline constexpr char kKeySeparator = '=';
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
    if (text.size() != kKeyLength)
        return Keyword::None;
    switch (Key(text)) {
    case Key("BLT"): return Keyword::Header;
    case Key("STR"): return Keyword::Line;
    case Key("STF"): return Keyword::Chain;
    case Key("SFF"): return Keyword::ChainPoints;
    case Key("FLA"): return Keyword::Area;
    case Key("FLF"): return Keyword::AreaPoints;
    case Key("ELL"): return Keyword::Ellipse;
    case Key("EBO"): return Keyword::Arc;
    case Key("EBF"): return Keyword::ArcPoints;
    case Key("EFL"): return Keyword::FilledOval;
    case Key("PIE"): return Keyword::Pie;
    case Key("PIF"): return Keyword::PiePoints;
    case Key("END"): return Keyword::End;
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
