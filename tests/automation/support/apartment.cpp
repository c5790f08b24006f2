#include "support/apartment.h"

#include <objbase.h>
#include <tlhelp32.h>

namespace support {

bool IsMultithreaded() {
    APTTYPE type = APTTYPE_CURRENT;
    APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
    return SUCCEEDED(CoGetApartmentType(&type, &qualifier)) && type == APTTYPE_MTA;
}

std::vector<DWORD> ThreadsOfObjects() {
    if (!IsMultithreaded())
        return {GetCurrentThreadId()};
    std::vector<DWORD> threads;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Thread32First(snapshot, &entry); more != FALSE; more = Thread32Next(snapshot, &entry))
        if (entry.th32OwnerProcessID == GetCurrentProcessId())
            threads.push_back(entry.th32ThreadID);
    CloseHandle(snapshot);
    return threads;
}

} // namespace support
