#pragma once

#include "../plan_file.h"

#include <vector>

/// Puts placed symbols on the clipboard, for this and other editor windows, and as text.
void CopySymbols(HWND owner, const std::vector<PlacedSymbol>& symbols);

bool CanPasteSymbols();
/// The symbols on the clipboard, without a place in any file.
std::vector<PlacedSymbol> SymbolsOnClipboard(HWND owner);
