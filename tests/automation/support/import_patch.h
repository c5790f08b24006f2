#pragma once

#include <windows.h>

namespace support {

/// While it lives, a module calls another function in the place of one of the system's that it imports.
class ImportPatch {
public:
    ImportPatch(const wchar_t* module, const char* function, void* replacement);
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;
    ~ImportPatch();

private:
    void Write(void* function) const;

    void** place_ = nullptr;
    void* original_ = nullptr;
};

} // namespace support
