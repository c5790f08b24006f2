#include "drawing/host_trans.h"

namespace drawing {

HRESULT HostTrans::Done(const std::string& operation) const {
    if (action_)
        action_();
    return operation == failing_ ? support::Throw(failure_) : S_OK;
}

} // namespace drawing
