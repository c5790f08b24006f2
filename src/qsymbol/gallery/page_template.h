#pragma once

#include <map>
#include <string>
#include <string_view>

namespace qsymbol {

/// The text with each @NAME@ replaced by its value. What a value holds is not looked at again, and names that
/// are not in the map stay as they are.
std::string FilledTemplate(std::string_view text,
                           const std::map<std::string, std::string, std::less<>>& values);

} // namespace qsymbol
