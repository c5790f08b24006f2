#pragma once

#include "com/com_ptr.h"
#include "com/error_info.h"

/// A new object of a public class, as any client makes one.
template <class Class, class Interface>
com::ComPtr<Interface> New() {
    com::ComPtr<Interface> object;
    com::Check(CoCreateInstance(__uuidof(Class), nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface),
                                object.PutVoid()));
    return object;
}
