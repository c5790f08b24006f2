#include "automation/dialog/memory_picture.h"

#include "base/error.h"

#include <algorithm>

namespace dialog {

namespace {

/// 24 bits: no alpha channel for drawing to leave half set.
constexpr WORD kBits = 24;

HBITMAP CreateBitmap24(SIZE size) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), size.cx, -size.cy, 1, kBits, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

} // namespace

MemoryPicture::MemoryPicture() : context_(CreateCompatibleDC(nullptr)) {
    if (context_ == nullptr)
        base::Raise(base::RunTimeError::OutOfMemory);
}

MemoryPicture::~MemoryPicture() {
    if (bitmap_ != nullptr)
        SelectObject(context_, original_);
    DeleteDC(context_);
    DeleteObject(bitmap_);
}

void MemoryPicture::Resize(SIZE size) {
    size = {std::max(size.cx, 1L), std::max(size.cy, 1L)};
    const HBITMAP fresh = CreateBitmap24(size);
    if (fresh == nullptr)
        base::Raise(base::RunTimeError::OutOfMemory);
    const HGDIOBJ previous = SelectObject(context_, fresh);
    if (bitmap_ == nullptr)
        original_ = previous;
    DeleteObject(bitmap_);
    bitmap_ = fresh;
    size_ = size;
    Clear();
}

void MemoryPicture::Clear() {
    PatBlt(context_, 0, 0, size_.cx, size_.cy, WHITENESS);
}

void MemoryPicture::Show(HDC target, POINT corner) const {
    BitBlt(target, corner.x, corner.y, size_.cx, size_.cy, context_, 0, 0, SRCCOPY);
}

MemoryPicture::Bitmap::Bitmap(const MemoryPicture& picture)
    : context_(picture.context_), bitmap_(picture.bitmap_) {
    GdiFlush();
    SelectObject(context_, picture.original_);
}

MemoryPicture::Bitmap::~Bitmap() {
    SelectObject(context_, bitmap_);
}

} // namespace dialog
