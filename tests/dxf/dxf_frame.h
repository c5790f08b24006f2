#pragma once

#include "base/file_system.h"

#include <string>

namespace support {

/// Begins a DXF file of release 12: header, tables with the layer SYMBOLE, then the entities section.
void BeginDxf(base::FileSystem& files, const std::u16string& path);

/// Ends the entities section and the file.
void EndDxf(base::FileSystem& files, const std::u16string& path);

} // namespace support
