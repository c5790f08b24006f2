#pragma once

#include <windows.h>

/// A memory DC with a bitmap of its own.
class MemoryContext {
public:
    MemoryContext() : context_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), kSide, -kSide, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        bitmap_ = CreateDIBSection(context_, &info, DIB_RGB_COLORS, nullptr, nullptr, 0);
        previous_ = SelectObject(context_, bitmap_);
    }
    MemoryContext(const MemoryContext&) = delete;
    MemoryContext& operator=(const MemoryContext&) = delete;
    ~MemoryContext() {
        SelectObject(context_, previous_);
        DeleteObject(bitmap_);
        DeleteDC(context_);
    }
    HDC Get() const { return context_; }

private:
    static constexpr int kSide = 1000;

    HDC context_;
    HBITMAP bitmap_;
    HGDIOBJ previous_;
};
