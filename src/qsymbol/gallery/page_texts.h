#pragma once

#include <string_view>

namespace qsymbol {

// The files of page/ as the build takes them in.
extern const std::string_view kGalleryHtml;
extern const std::string_view kGalleryCss;
extern const std::string_view kGalleryJs;

} // namespace qsymbol
