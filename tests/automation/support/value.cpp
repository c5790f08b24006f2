#include "support/value.h"

#include <oleauto.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace support {

Value::Value(LONG number) {
    V_VT(&value_) = VT_I4;
    V_I4(&value_) = number;
}

Value::Value(SHORT number) {
    V_VT(&value_) = VT_I2;
    V_I2(&value_) = number;
}

Value::Value(float number) {
    V_VT(&value_) = VT_R4;
    V_R4(&value_) = number;
}

Value::Value(double number) {
    V_VT(&value_) = VT_R8;
    V_R8(&value_) = number;
}

Value::Value(bool flag) {
    V_VT(&value_) = VT_BOOL;
    V_BOOL(&value_) = flag ? VARIANT_TRUE : VARIANT_FALSE;
}

Value::Value(const std::wstring& text) {
    V_VT(&value_) = VT_BSTR;
    V_BSTR(&value_) = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

Value::Value(IDispatch* object) {
    V_VT(&value_) = VT_DISPATCH;
    V_DISPATCH(&value_) = object;
    if (object != nullptr)
        object->AddRef();
}

Value::Value(const Value& other) {
    VariantInit(&value_);
    VariantCopy(&value_, const_cast<VARIANT*>(&other.value_)); // older headers lack the const
}

Value& Value::operator=(Value other) noexcept {
    std::swap(value_, other.value_);
    return *this;
}

Value Value::Omitted() {
    Value value;
    V_VT(&value.value_) = VT_ERROR;
    V_ERROR(&value.value_) = DISP_E_PARAMNOTFOUND;
    return value;
}

Value Value::Null() {
    Value value;
    V_VT(&value.value_) = VT_NULL;
    return value;
}

Value Value::Variable(Value& variable) {
    return Reference(VT_VARIANT, variable.Raw());
}

Value Value::Reference(VARTYPE type, void* variable) {
    Value value;
    V_VT(&value.value_) = VT_BYREF | type;
    V_BYREF(&value.value_) = variable;
    return value;
}

const VARIANT& Value::Of(VARTYPE type) const {
    if (Type() != type) {
        std::fprintf(stderr, "A value has type %d where the test takes type %d\n", Type(), type);
        std::abort();
    }
    return value_;
}

LONG Value::Long() const {
    return V_I4(&Of(VT_I4));
}
SHORT Value::Short() const {
    return V_I2(&Of(VT_I2));
}
float Value::Single() const {
    return V_R4(&Of(VT_R4));
}
double Value::Double() const {
    return V_R8(&Of(VT_R8));
}
bool Value::Bool() const {
    return V_BOOL(&Of(VT_BOOL)) != VARIANT_FALSE;
}

std::wstring Value::Text() const {
    const BSTR text = V_BSTR(&Of(VT_BSTR));
    return {text == nullptr ? L"" : text, SysStringLen(text)};
}

IDispatch* Value::Object() const {
    return V_DISPATCH(&Of(VT_DISPATCH));
}

std::ostream& operator<<(std::ostream& out, const Value& value) {
    out << "type " << value.Type();
    Value text;
    if (SUCCEEDED(VariantChangeType(text.Raw(), const_cast<VARIANT*>(value.Raw()), 0, VT_BSTR)))
        for (const wchar_t c : text.Text())
            out << (c < 128 ? static_cast<char>(c) : '?');
    return out;
}

} // namespace support
