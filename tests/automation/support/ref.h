#pragma once

#include <windows.h>

#include <unknwn.h>

#include <utility>

namespace support {

/// Owner of one counted reference.
template <class T>
class Ref {
public:
    Ref() = default;
    /// Shares: adds a reference of its own.
    explicit Ref(T* object) : object_(object) {
        if (object_ != nullptr)
            object_->AddRef();
    }
    Ref(const Ref& other) : Ref(other.object_) {}
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ~Ref() { Reset(); }

    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    /// Takes over a reference that the caller holds.
    static Ref Attach(T* object) {
        Ref owner;
        owner.object_ = object;
        return owner;
    }

    void Reset() {
        if (T* const object = std::exchange(object_, nullptr))
            object->Release();
    }
    T** Put() {
        Reset();
        return &object_;
    }
    void** PutVoid() { return reinterpret_cast<void**>(Put()); }
    /// The reference for a parameter that the called method may replace or empty.
    T** InOut() { return &object_; }

    template <class Other>
    Ref<Other> As() const {
        Ref<Other> other;
        if (object_ != nullptr)
            object_->QueryInterface(__uuidof(Other), other.PutVoid());
        return other;
    }

    T* Get() const { return object_; }
    T* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

/// True when both are the same object, whatever interface they are held by.
template <class A, class B>
bool SameObject(A* a, B* b) {
    const Ref<IUnknown> left = Ref<A>(a).template As<IUnknown>();
    const Ref<IUnknown> right = Ref<B>(b).template As<IUnknown>();
    return left.Get() == right.Get();
}

} // namespace support
