#pragma once

#include "golden/com_subject.h"

namespace golden {

/// Fills a new catalogue from a folder, wholly or by a list of names, and outputs what is in it then.
support::Failure LoadCatalogue(const Step& step, Road road, const std::wstring& path, Lines& outputs);

} // namespace golden
