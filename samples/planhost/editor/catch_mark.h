#pragma once

#include <windows.h>

/// A small mark at a caught point, with its kind beside it.
void DrawCatchMark(HDC dc, POINT pixel, const wchar_t* kind);
