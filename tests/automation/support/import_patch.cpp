#include "support/import_patch.h"

#include <gtest/gtest.h>

#include <cstring>

namespace support {

namespace {

/// Where a module keeps the address of an imported function; nullptr when it imports none of that name.
void** PlaceOf(const char* function, BYTE* base) {
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& table = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + table.VirtualAddress);
         library->Name != 0; ++library) {
        const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
        auto** place = reinterpret_cast<void**>(base + library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++place) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            const auto* const entry =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(entry->Name), function) == 0)
                return place;
        }
    }
    return nullptr;
}

} // namespace

ImportPatch::ImportPatch(const wchar_t* module, const char* function, void* replacement)
    : place_(PlaceOf(function, reinterpret_cast<BYTE*>(GetModuleHandleW(module)))) {
    EXPECT_NE(place_, nullptr) << function << " is not imported";
    if (place_ == nullptr)
        return;
    original_ = *place_;
    Write(replacement);
}

ImportPatch::~ImportPatch() {
    if (place_ != nullptr)
        Write(original_);
}

void ImportPatch::Write(void* function) const {
    DWORD before = 0;
    EXPECT_NE(VirtualProtect(place_, sizeof *place_, PAGE_READWRITE, &before), FALSE);
    *place_ = function;
    VirtualProtect(place_, sizeof *place_, before, &before);
}

} // namespace support
