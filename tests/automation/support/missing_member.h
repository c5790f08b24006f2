#pragma once

#include "support/failure.h"

namespace support {

/// Error 438 as it tells what is missing: "PictureBox.DrawMode".
inline Failure MissingMember(const std::wstring& member) {
    Failure failure = RunTimeError(438);
    failure.description += L": " + member;
    return failure;
}

} // namespace support
