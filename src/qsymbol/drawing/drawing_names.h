#pragma once

#include <set>
#include <string>
#include <string_view>

namespace qsymbol {

/// The names of one table of a drawing: legal, and no two alike in any case of letters.
class DrawingNames {
public:
    /// The name under which something new stands: the wanted one, made legal, with "_2", "_3" … when taken.
    std::u16string Take(std::u16string_view wanted);

private:
    std::set<std::u16string> taken_; ///< upper case
};

} // namespace qsymbol
