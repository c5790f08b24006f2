#pragma once

#include <windows.h>

#include <oleauto.h>

namespace com {

/// Owner of a VARIANT.
class Variant {
public:
    Variant() { VariantInit(&value_); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    ~Variant() { VariantClear(&value_); }

    VARIANT* Get() { return &value_; }
    const VARIANT* Get() const { return &value_; }
    VARIANT* Put() {
        VariantClear(&value_);
        return &value_;
    }

private:
    VARIANT value_{};
};

} // namespace com
