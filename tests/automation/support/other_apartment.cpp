#include "support/other_apartment.h"

namespace support {

namespace {

constexpr UINT kTask = WM_APP;

struct Task {
    const std::function<void()>& body;
    std::promise<void> done;
};

} // namespace

OtherApartment::OtherApartment() : thread_([this] { Run(); }) {
    ready_.get_future().wait();
}

OtherApartment::~OtherApartment() {
    PostThreadMessageW(id_, WM_QUIT, 0, 0);
    thread_.join();
}

void OtherApartment::Do(const std::function<void()>& task) {
    Task posted{task, {}};
    PostThreadMessageW(id_, kTask, 0, reinterpret_cast<LPARAM>(&posted));
    posted.done.get_future().wait();
}

void OtherApartment::Run() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE); // makes the queue
    id_ = GetCurrentThreadId();
    ready_.set_value();
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == kTask && message.hwnd == nullptr) {
            auto& task = *reinterpret_cast<Task*>(message.lParam);
            task.body();
            task.done.set_value();
        } else {
            DispatchMessageW(&message);
        }
    }
    CoUninitialize();
}

} // namespace support
