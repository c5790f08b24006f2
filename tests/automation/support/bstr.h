#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string>

namespace support {

/// Owner of a BSTR.
class Bstr {
public:
    Bstr() = default;
    explicit Bstr(const std::wstring& text)
        : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(text_); }

    BSTR* Put() {
        SysFreeString(text_);
        text_ = nullptr;
        return &text_;
    }
    BSTR* InOut() { return &text_; }
    operator BSTR() const { return text_; }
    /// The text; empty for a null pointer.
    std::wstring Text() const { return {text_ == nullptr ? L"" : text_, SysStringLen(text_)}; }

private:
    BSTR text_ = nullptr;
};

} // namespace support
