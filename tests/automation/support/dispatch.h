#pragma once

#include "support/failure.h"
#include "support/ref.h"
#include "support/value.h"

#include <windows.h>

#include <oaidl.h>

#include <string>
#include <vector>

namespace support {

/// What a late-bound call gave.
struct Answer {
    HRESULT status = S_OK; ///< of Invoke itself: DISP_E_EXCEPTION when the member failed
    Value value;
    Failure failure;          ///< what the exception tells
    UINT argument = kNoIndex; ///< the argument that did not fit, as Invoke counts them: last first

    static constexpr UINT kNoIndex = 0xFFFF;
};

struct Named {
    std::wstring name;
    Value value;
};

/// A client that knows names only, as a script does.
class Dispatch {
public:
    explicit Dispatch(IDispatch* object) : object_(object) {}
    template <class T>
    explicit Dispatch(const Ref<T>& object) : object_(object.Get()) {}
    /// Creates the class of a ProgID; empty when that fails.
    static Dispatch Create(const wchar_t* progId);

    IDispatch* Object() const { return object_.Get(); }
    explicit operator bool() const { return static_cast<bool>(object_); }

    Answer Call(const wchar_t* member, const std::vector<Value>& arguments = {},
                const std::vector<Named>& named = {}) const;
    Answer Get(const wchar_t* member, const std::vector<Value>& arguments = {}) const;
    Answer Put(const wchar_t* member, const Value& value) const;
    Answer PutRef(const wchar_t* member, const Value& value) const;
    /// Both at once, as a script host that does not know what it calls.
    Answer CallOrGet(const wchar_t* member, const std::vector<Value>& arguments = {}) const;

    /// The general form. `flags` are those of IDispatch::Invoke.
    Answer Invoke(const wchar_t* member, WORD flags, const std::vector<Value>& arguments,
                  const std::vector<Named>& named = {}) const;
    Answer InvokeId(DISPID id, WORD flags, const std::vector<Value>& arguments,
                    const std::vector<DISPID>& namedIds = {}, const std::vector<Value>& named = {}) const;

    /// DISPID_UNKNOWN when the object does not know the name.
    DISPID Id(const wchar_t* member) const;

private:
    Ref<IDispatch> object_;
};

} // namespace support
