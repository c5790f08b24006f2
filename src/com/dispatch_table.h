#pragma once

#include "com/com_ptr.h"
#include "com/dispatch_member.h"

#include <windows.h>

#include <oaidl.h>

#include <vector>

namespace com {

/// The members of one dual interface, read once from the type library.
class DispatchTable {
public:
    /// Loads the description of the interface from the module's type library; throws where it is damaged.
    explicit DispatchTable(REFIID iid);

    /// The type description that clients see.
    ITypeInfo* TypeInfo() const { return typeInfo_.Get(); }

    /// The member for an invocation, nullptr when there is none. A property is also found as a method and the
    /// other way round, and a put by value also as a put by reference, because script hosts mix them.
    const DispatchMember* Find(DISPID id, WORD flags) const;

private:
    ComPtr<ITypeInfo> typeInfo_;
    std::vector<DispatchMember> members_;
};

} // namespace com
