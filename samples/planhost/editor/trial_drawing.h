#pragma once

#include "../catalogue.h"
#include "../plan_file.h"

#include <vector>

/// Draws placed symbols where nobody sees them, so that one that cannot be drawn is known before it is in a plan: its points
/// may leave the libraries' 32 bits. Fails with its name. symbols: the catalogue's, in the order of the placed ones.
void RequireDrawable(const std::vector<PlacedSymbol>& placed, const std::vector<Ptr<_CSymbol>>& symbols);
