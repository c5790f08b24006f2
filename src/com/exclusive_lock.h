#pragma once

#include <windows.h>

namespace com {

/// Holds a lock of the system's own for its life. Needs no making and no end, so it may stand in a
/// global object.
class ExclusiveLock {
public:
    explicit ExclusiveLock(SRWLOCK& lock) : lock_(lock) { AcquireSRWLockExclusive(&lock_); }
    ExclusiveLock(const ExclusiveLock&) = delete;
    ExclusiveLock& operator=(const ExclusiveLock&) = delete;
    ~ExclusiveLock() { ReleaseSRWLockExclusive(&lock_); }

private:
    SRWLOCK& lock_;
};

} // namespace com
