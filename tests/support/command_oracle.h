#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace support {

/// So many ways there are to send a file through the program.
std::size_t CommandCount();

/// What must hold when any bytes are sent as a file of this extension through one of the program's commands: the exit status and the
/// failures are those that the documentation names, results are well-formed (JSON, XML, pairs of DXF), a target is there or not as the
/// status says and nothing lies beside it, what was converted does not differ from its source, and the memory stays bounded.
/// Gives the promise that was not kept, "" when all were.
std::string BrokenCommandPromise(std::size_t command, std::string_view extension, std::string_view bytes);

/// The same for an input whose first byte chooses command and extension.
std::string BrokenCommandPromise(std::string_view input);

} // namespace support
