#pragma once

#include "com/object_call.h"

#include <cstdint>

namespace com {

/// The interface id under which a face gives itself to the library that it belongs to. It is made of an
/// address in this module, so nobody else in the process has it: neither another build nor a second copy of
/// this one.
template <class Face>
const IID& PrivateId() {
    static char mark;
    constexpr unsigned long kPrefix = 0x2f8cb1d4;
    static const IID id = [] {
        const auto address = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&mark));
        IID made{kPrefix, 0x7c3e, 0x4a95, {}};
        for (int i = 0; i < 8; ++i)
            made.Data4[i] = static_cast<unsigned char>(address >> (8 * i));
        return made;
    }();
    return id;
}

/// The library's own object behind an interface that a host passed; empty for any other object. Passes
/// on what the object says when it is asked, unless that it does not know the question. The caller
/// holds the object.
template <class Face, class Interface>
ComPtr<Face> Own(Interface& object) {
    struct Nobody;
    ComPtr<IUnknown> known;
    Query(object, PrivateId<Face>(), known.PutVoid());
    // An object that hands all questions on to one of ours is another one.
    if (known.Get() != static_cast<IUnknown*>(&object))
        return {};
    // Nor is one of ours that says yes to every question.
    Query(object, PrivateId<Nobody>(), known.PutVoid());
    return known ? ComPtr<Face>() : ComPtr<Face>(static_cast<Face*>(&object));
}

} // namespace com
