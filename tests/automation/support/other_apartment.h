#pragma once

#include "support/ref.h"

#include <windows.h>

#include <objbase.h>

#include <functional>
#include <future>
#include <thread>

namespace support {

/// Another user-interface thread of a host, which owns objects and fetches its messages.
class OtherApartment {
public:
    OtherApartment();
    OtherApartment(const OtherApartment&) = delete;
    OtherApartment& operator=(const OtherApartment&) = delete;
    /// Ends the thread. What it made must be released before.
    ~OtherApartment();

    /// Does something there and waits for it.
    void Do(const std::function<void()>& task);

    /// An object that is made there, in the way in which COM hands it to this thread.
    template <class Interface>
    Ref<Interface> Make(const std::function<Ref<Interface>()>& make) {
        IStream* stream = nullptr;
        Do([&] { CoMarshalInterThreadInterfaceInStream(__uuidof(Interface), make().Get(), &stream); });
        Ref<Interface> object;
        CoGetInterfaceAndReleaseStream(stream, __uuidof(Interface), object.PutVoid());
        return object;
    }

private:
    void Run();

    std::promise<void> ready_;
    DWORD id_ = 0;
    std::thread thread_; ///< last: it uses the others from its start
};

} // namespace support
