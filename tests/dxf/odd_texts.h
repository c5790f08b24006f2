#pragma once

#include "base/code_page.h"
#include "base/file_system.h"

#include <string>
#include <vector>

namespace support {

/// Texts that have broken a reader of DXF files somewhere.
const std::vector<std::u16string>& OddTexts();

/// A whole DXF file with a symbol for each of them: the text, then a circle of radius 1, 2, 3 and so on in units of
/// the file, which says whether the reader is still in step.
void WriteOddTexts(base::FileSystem& files, const base::CodePage& codePage, const std::u16string& path);

} // namespace support
