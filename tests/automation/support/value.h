#pragma once

#include "support/bstr.h"
#include "support/ref.h"

#include <windows.h>

#include <oaidl.h>

#include <ostream>
#include <string>

namespace support {

/// Owner of a VARIANT, made implicitly from what a script would write down.
class Value {
public:
    Value() { VariantInit(&value_); }
    Value(int number) : Value(static_cast<LONG>(number)) {}
    Value(LONG number);
    Value(SHORT number);
    Value(float number);
    Value(double number);
    Value(bool flag);
    Value(const wchar_t* text) : Value(std::wstring(text)) {}
    Value(const std::wstring& text);
    Value(IDispatch* object);
    template <class T>
    Value(const Ref<T>& object) : Value(static_cast<IDispatch*>(object.Get())) {}
    Value(const Value& other);
    Value(Value&& other) noexcept : value_(other.value_) { V_VT(&other.value_) = VT_EMPTY; }
    Value& operator=(Value other) noexcept;
    ~Value() { VariantClear(&value_); }

    /// An argument that the caller leaves out.
    static Value Omitted();
    static Value Nothing() { return Value(static_cast<IDispatch*>(nullptr)); }
    static Value Null();
    /// A variable without a type, as script hosts pass them.
    static Value Variable(Value& variable);
    /// A variable of a fixed type.
    static Value Variable(LONG& variable) { return Reference(VT_I4, &variable); }
    static Value Variable(SHORT& variable) { return Reference(VT_I2, &variable); }
    static Value Variable(float& variable) { return Reference(VT_R4, &variable); }
    static Value Variable(double& variable) { return Reference(VT_R8, &variable); }
    static Value Variable(BSTR* variable) { return Reference(VT_BSTR, variable); }
    static Value Variable(LONGLONG& variable) { return Reference(VT_I8, &variable); }
    static Value Flag(VARIANT_BOOL& variable) { return Reference(VT_BOOL, &variable); }
    template <class T>
    static Value Variable(Ref<T>& object) {
        return Reference(VT_DISPATCH, object.InOut());
    }
    /// Any other type of reference.
    static Value Reference(VARTYPE type, void* variable);

    VARTYPE Type() const { return V_VT(&value_); }
    VARIANT* Raw() { return &value_; }
    const VARIANT* Raw() const { return &value_; }

    /// The value itself; a type that differs ends the process with a message, as a test's mistake.
    LONG Long() const;
    SHORT Short() const;
    float Single() const;
    double Double() const;
    bool Bool() const;
    std::wstring Text() const;
    /// The object, without a reference of its own; nullptr for Nothing.
    IDispatch* Object() const;
    template <class T>
    Ref<T> As() const {
        return Ref<IDispatch>(Object()).template As<T>();
    }

private:
    const VARIANT& Of(VARTYPE type) const;

    VARIANT value_{};
};

std::ostream& operator<<(std::ostream& out, const Value& value);

} // namespace support
