#pragma once

#include "platform/wide/wide_text.h"

#include <windows.h>

#include <oleauto.h>

#include <string>
#include <string_view>
#include <utility>

namespace com {

/// The text of a BSTR, embedded zeros included; a null BSTR is empty.
inline std::u16string_view View(BSTR text) {
    return text == nullptr ? std::u16string_view() : platform::Utf16({text, SysStringLen(text)});
}

inline std::u16string Text(BSTR text) {
    return std::u16string(View(text));
}

/// A new BSTR that the caller owns; throws std::bad_alloc.
BSTR NewBstr(std::u16string_view text);

/// Owner of a BSTR.
class Bstr {
public:
    Bstr() = default;
    explicit Bstr(std::u16string_view text) : text_(NewBstr(text)) {}
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(text_); }

    BSTR Get() const { return text_; }
    /// Hands the text over to the caller.
    BSTR Detach() { return std::exchange(text_, nullptr); }
    BSTR* Put() {
        SysFreeString(text_);
        text_ = nullptr;
        return &text_;
    }
    std::u16string_view View() const { return com::View(text_); }

private:
    BSTR text_ = nullptr;
};

} // namespace com
