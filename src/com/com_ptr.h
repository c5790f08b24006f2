#pragma once

#include <unknwn.h>

#include <utility>

namespace com {

/// Owner of one counted reference to a COM object.
template <class T>
class ComPtr {
public:
    ComPtr() = default;
    ComPtr(std::nullptr_t) {} // NOLINT(google-explicit-constructor): nullptr is a natural empty value
    /// Shares: adds a reference of its own.
    explicit ComPtr(T* object) : object_(object) {
        if (object_ != nullptr)
            object_->AddRef();
    }
    ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
    ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ~ComPtr() { Reset(); }

    ComPtr& operator=(const ComPtr& other) {
        ComPtr(other).Swap(*this);
        return *this;
    }
    ComPtr& operator=(ComPtr&& other) noexcept {
        ComPtr(std::move(other)).Swap(*this);
        return *this;
    }

    /// Takes over a reference that the caller already holds.
    static ComPtr Attach(T* object) {
        ComPtr owner;
        owner.object_ = object;
        return owner;
    }
    /// Hands the reference over to the caller.
    T* Detach() { return std::exchange(object_, nullptr); }

    void Reset() {
        if (T* const object = std::exchange(object_, nullptr))
            object->Release();
    }
    /// Empties and gives the address for a function that returns a reference.
    T** Put() {
        Reset();
        return &object_;
    }
    /// The address for a function that may exchange the reference for another one.
    T** InOut() { return &object_; }
    void** PutVoid() { return reinterpret_cast<void**>(Put()); }

    /// The object under another interface; empty when it does not offer it.
    template <class Other>
    ComPtr<Other> As() const {
        ComPtr<Other> other;
        if (object_ != nullptr && FAILED(object_->QueryInterface(__uuidof(Other), other.PutVoid())))
            return {};
        return other;
    }

    void Swap(ComPtr& other) noexcept { std::swap(object_, other.object_); }
    T* Get() const { return object_; }
    T& operator*() const { return *object_; }
    T* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

} // namespace com
