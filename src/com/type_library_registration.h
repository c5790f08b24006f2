#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string>

namespace com {

/// The entries of a type library and its interfaces under "Software\Classes" of the machine or the user.
///
/// The library stands under its own locale and under the neutral one: the marshaller asks for it in the
/// locale of the user's system. Both bitnesses share the library's key, each with its own path below the
/// locale; the interfaces stand in both views, so that either bitness can marshal what the other one made.
/// The system's own functions are not used: they know one locale, and removing takes the interfaces of both
/// bitnesses away.
class TypeLibraryRegistration {
public:
    TypeLibraryRegistration(HKEY root, ITypeLib& library);

    /// Enters the library that is found at `path`, with its help in `folder`.
    void Enter(const std::wstring& path, const std::wstring& folder) const;

    /// Takes out what this bitness needs; what both need goes with the last one.
    void Remove() const;

private:
    void EnterInterface(REGSAM view, const GUID& id, const std::wstring& name) const;

    HKEY root_;
    ITypeLib& library_;
    std::wstring id_;         ///< "{…}"
    std::wstring version_;    ///< "4.1", in hexadecimal
    std::wstring libraryKey_; ///< path of the key of all versions
    std::wstring versionKey_;
    std::wstring locales_[2];
};

} // namespace com
