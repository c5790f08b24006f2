#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string>
#include <utility>

/// COM for this thread, from the start of the program to its end.
class ComThread {
public:
    ComThread();
    ~ComThread();
    ComThread(const ComThread&) = delete;
};

/// Owner of one counted reference.
template <class T>
class Ptr {
public:
    Ptr() = default;
    explicit Ptr(T* owned) : object_(owned) {}
    Ptr(Ptr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Ptr& operator=(Ptr&& other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Ptr() {
        if (object_ != nullptr)
            object_->Release();
    }

    /// For a call that hands out a reference; the pointer must be empty.
    T** Put() { return &object_; }
    T* Get() const { return object_; }
    T* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

/// Owner of an automation string.
class Bstr {
public:
    Bstr() = default;
    explicit Bstr(const std::wstring& text)
        : string_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
    Bstr(const Bstr&) = delete;
    ~Bstr() { SysFreeString(string_); }

    BSTR* Put() { return &string_; }
    BSTR Get() const { return string_; }
    std::wstring Text() const { return {string_, string_ + SysStringLen(string_)}; }

private:
    BSTR string_ = nullptr;
};

/// Turns the failure of an automation call, with the source and description that it left, into a Failure.
/// what: the user's own words for what was being done.
void Check(HRESULT status, const std::wstring& what = {});

/// A new object of a registered class.
template <class Interface>
Ptr<Interface> Create(const CLSID& classId) {
    Ptr<Interface> object;
    Check(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface),
                           reinterpret_cast<void**>(object.Put())));
    return object;
}
