#pragma once

#include <windows.h>

/// A small square at the point that has been caught, with its kind beside it, in a picture of this width. dots: of the
/// screen to the inch.
void DrawCatchMark(HDC dc, int width, POINT pixel, const wchar_t* kind, UINT dots);
