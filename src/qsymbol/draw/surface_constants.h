#pragma once

#include <cstdint>

/// Values of surface properties and modes, as hosts and the GDI number them.
namespace qsymbol {

inline constexpr std::int32_t kDrawModeNotXor = 10;
inline constexpr std::int32_t kDrawModeCopy = 13;
inline constexpr std::int32_t kDrawStyleSolid = 0;
inline constexpr std::int32_t kDrawStyleInvisible = 5;
inline constexpr std::int32_t kDrawStyleInsideSolid = 6;
inline constexpr std::int32_t kFillStyleSolid = 0;
inline constexpr std::int32_t kFillStyleTransparent = 1;
inline constexpr std::int32_t kBkModeTransparent = 1;
inline constexpr std::int32_t kBlack = 0;
inline constexpr std::int32_t kTextAlignRight = 2;
inline constexpr std::int32_t kTextAlignCenter = 6;
inline constexpr std::int32_t kTextAlignBottom = 8;
inline constexpr std::int32_t kTextAlignBaseline = 24;

} // namespace qsymbol
