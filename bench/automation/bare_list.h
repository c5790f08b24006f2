#pragma once

#include <string>
#include <vector>

/// The yardstick: a modal dialog with a list box, which is filled as fast as a list box can be, and
/// nothing else.
void ShowListOf(const std::vector<std::u16string>& names);
