#pragma once

#include "base/code_page.h"

namespace platform {

/// The system's ANSI code page.
class AnsiCodePage final : public base::CodePage {
public:
    std::string Encode(std::u16string_view text) const override;
    std::u16string Decode(std::string_view bytes) const override;
};

} // namespace platform
