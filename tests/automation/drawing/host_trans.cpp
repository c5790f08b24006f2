#include "drawing/host_trans.h"

namespace drawing {

HRESULT HostTrans::Done(const std::string& operation) const {
    if (operation == failing_)
        return wordless_ ? failure_.status : support::Throw(failure_);
    if (const auto action = action_)
        action();
    return S_OK;
}

} // namespace drawing
