#pragma once

#include "golden/script.h"
#include "support/automation_test.h"
#include "support/dispatch.h"
#include "support/shapes.h"

namespace golden {

/// How a host calls the library.
enum class Road { VirtualTable, LateBound };

/// The symbol that a case works on, the transformation under which it is seen, and how both are called.
struct ComSubject {
    Road road;
    support::Ref<_CSymbol> symbol = support::NewSymbol();
    support::Ref<_CTrans> trans = support::NewTrans(10);

    bool Late() const { return road == Road::LateBound; }
    /// A call by name whose result is of no interest or is looked at by the caller.
    support::Failure Call(const wchar_t* member, const std::vector<support::Value>& arguments) const {
        return support::Dispatch(symbol).Call(member, arguments).failure;
    }
};

/// A whole number of a step.
inline LONG X(const Step& step, std::size_t at = 1) {
    return Long(step.words.at(at));
}

} // namespace golden
