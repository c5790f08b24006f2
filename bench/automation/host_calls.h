#pragma once

#include <cstdint>

/// Makes so many late-bound property puts on a picture box: the share of the host in what the library does
/// with one.
void MakeHostCalls(std::int64_t count);
