#include "com/bstr.h"

#include <climits>
#include <new>

namespace com {

BSTR NewBstr(std::u16string_view text) {
    if (text.size() > UINT_MAX / 2)
        throw std::bad_alloc();
    const BSTR result = SysAllocStringLen(platform::Wide(text.data()), static_cast<UINT>(text.size()));
    if (result == nullptr)
        throw std::bad_alloc();
    return result;
}

} // namespace com
