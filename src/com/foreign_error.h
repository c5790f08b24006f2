#pragma once

#include "base/error.h"
#include "com/bstr.h"

#include <windows.h>

#include <oleauto.h>

namespace com {

/// The error info of this thread, which has none afterwards; without one all texts are empty.
struct ThreadErrorInfo {
    ThreadErrorInfo();

    Bstr source;
    Bstr description;
    Bstr helpFile;
    DWORD helpContext = 0;
};

/// Owner of what an object leaves behind when its Invoke fails with DISP_E_EXCEPTION.
class ExceptionInfo {
public:
    ExceptionInfo() = default;
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;
    ~ExceptionInfo();

    /// The place for Invoke.
    EXCEPINFO* Get() { return &info_; }
    /// The error's status code, whichever of its two forms the object chose; never a success.
    HRESULT Status();
    base::Error Error();

private:
    /// An object may leave the texts for later.
    void FillIn();

    EXCEPINFO info_{};
};

/// An error that came from outside with a status code; without a description it gets the system's.
base::Error ForeignError(HRESULT status, std::u16string_view source, std::u16string_view description);

} // namespace com
