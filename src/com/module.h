#pragma once

#include "com/class_entry.h"
#include "com/com_ptr.h"
#include "platform/wide/module_path.h"

#include <windows.h>

#include <oaidl.h>

#include <atomic>
#include <span>
#include <string>
#include <string_view>

namespace com {

/// A DLL whose types this one uses.
struct Sibling {
    std::u16string_view file; ///< its file name
    const CLSID* anyClass;    ///< registered when the DLL is
};

/// What one DLL is: its identity, its creatable classes, its type library, and how many of its objects live.
class Module {
public:
    struct Identity {
        std::u16string_view name; ///< the library's name, source of run-time errors
        std::span<const ClassEntry> classes;
        std::span<const Sibling> siblings = {}; ///< of the first one the classes are used as well
        /// Called when the last object of a thread goes, and when the system asks whether the DLL may: each
        /// may be missing.
        void (*threadIsIdle)() noexcept = nullptr;
        bool (*mayUnload)() noexcept = nullptr;
    };

    void Start(HINSTANCE instance, const Identity& identity);
    /// Lets the cached type library go; not called when the whole process ends.
    void Stop();

    HINSTANCE Instance() const { return instance_; }
    std::u16string_view Name() const { return identity_.name; }
    std::span<const ClassEntry> Classes() const { return identity_.classes; }
    std::span<const Sibling> Siblings() const { return identity_.siblings; }
    /// Full path of the DLL; empty when the system does not tell.
    std::wstring Path() const { return platform::ModulePath(instance_); }
    /// Folder of the DLL with a backslash at its end.
    std::wstring Folder() const { return platform::ModuleFolder(instance_); }

    /// The type library from the DLL's own resource, loaded once, whichever thread comes first.
    ITypeLib& TypeLibrary();
    /// Held while a description is read: not every system's type descriptions are made for several threads.
    SRWLOCK& TypeLock() { return types_; }

    void Lock() { ++locks_; }
    void Unlock() { --locks_; }
    /// A lock for the life of an object that belongs to the calling thread.
    void ObjectMade();
    void ObjectGone();
    /// True when no object lives and no lock is held.
    bool CanUnload() const;

private:
    HINSTANCE instance_ = nullptr;
    Identity identity_{};
    SRWLOCK types_ = SRWLOCK_INIT;
    ComPtr<ITypeLib> typeLibrary_;
    std::atomic<long> locks_ = 0;
};

/// The module of the DLL that this code is linked into.
Module& TheModule();

/// Throws what a client can do about a sibling DLL that is neither registered nor beside this one.
[[noreturn]] void ThrowMissing(const Sibling& sibling, HRESULT status);

} // namespace com
