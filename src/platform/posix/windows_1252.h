#pragma once

#include "base/code_page.h"

namespace platform {

/// The ANSI code page of the native build: Windows-1252; '?' replaces what it cannot hold.
class Windows1252 final : public base::CodePage {
public:
    std::string Encode(std::u16string_view text) const override;
    std::u16string Decode(std::string_view bytes) const override;
};

} // namespace platform
