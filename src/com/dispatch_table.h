#pragma once

#include "com/com_ptr.h"
#include "com/dispatch_member.h"

#include <windows.h>

#include <oaidl.h>

#include <atomic>
#include <memory>
#include <vector>

namespace com {

/// The members of one dual interface, read from the type library; all threads of the process share it.
class DispatchTable {
public:
    /// Loads the list of members from the module's type library; throws where it is damaged.
    explicit DispatchTable(REFIID iid);

    /// The type description that clients see.
    ITypeInfo* TypeInfo() const { return typeInfo_.Get(); }

    /// IDispatch::GetIDsOfNames.
    HRESULT IdsOfNames(LPOLESTR* names, UINT count, DISPID* ids) const;

    /// The member for an invocation, nullptr when there is none. A property is also found as a method and the
    /// other way round, and a put by value also as a put by reference, because script hosts mix them.
    ///
    /// The types of its arguments are looked up with its first invocation: one that another library defines
    /// is an error only for the members that need it.
    const DispatchMember* Find(DISPID id, WORD flags) const;

private:
    struct Entry {
        DISPID id = DISPID_UNKNOWN;
        INVOKEKIND kind = INVOKE_FUNC;
        std::unique_ptr<const DispatchMember> owner;
        std::atomic<const DispatchMember*> member = nullptr; ///< empty until the first invocation
    };

    const DispatchMember* Described(std::size_t index) const;

    ComPtr<ITypeInfo> typeInfo_;
    ComPtr<ITypeInfo> vtable_; ///< the other half of a dual interface: with status codes and results
    mutable std::vector<Entry> entries_;
};

} // namespace com
