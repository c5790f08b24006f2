#pragma once

#include <string>
#include <string_view>

namespace qsymbol {

/// The file that the picture of an entry is written to. An empty folder is the root of the current drive.
std::u16string PicturePath(std::u16string_view folder, std::u16string_view name);

} // namespace qsymbol
