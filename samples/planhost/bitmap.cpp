#include "bitmap.h"

#include "text.h"

#include <algorithm>

// The GDI+ headers were written for the macros.
using std::max;
using std::min;

#include <objidl.h>

#include <gdiplus.h>

namespace {

constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

/// Rows of a device-independent bitmap are padded to four bytes.
int RowBytes(int width) {
    return (width * 3 + 3) / 4 * 4;
}

/// GDI+ from here to the end of the block.
class GdiPlus {
public:
    GdiPlus() {
        Gdiplus::GdiplusStartupInput input;
        if (Gdiplus::GdiplusStartup(&token_, &input, nullptr) != Gdiplus::Ok)
            throw Failure{L"GDI+ ist nicht verfügbar."};
    }
    ~GdiPlus() { Gdiplus::GdiplusShutdown(token_); }
    GdiPlus(const GdiPlus&) = delete;

private:
    ULONG_PTR token_ = 0;
};

} // namespace

Bitmap::Bitmap(int width, int height) : width_(width), height_(height), dc_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&bits_), nullptr, 0);
    if (bitmap_ == nullptr) {
        DeleteDC(dc_);
        throw Failure{L"Für das Bild reicht der Speicher nicht."};
    }
    previous_ = SelectObject(dc_, bitmap_);
    PatBlt(dc_, 0, 0, width, height, WHITENESS);
}

Bitmap::~Bitmap() {
    SelectObject(dc_, previous_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
}

void Bitmap::SavePng(const std::wstring& path) const {
    GdiFlush(); // what was drawn is in the bits only then
    const GdiPlus running;
    Gdiplus::Bitmap image(width_, height_, RowBytes(width_), PixelFormat24bppRGB, bits_);
    if (image.Save(path.c_str(), &kPngEncoder, nullptr) != Gdiplus::Ok)
        throw Failure{L"Das Bild kann nicht geschrieben werden: " + path};
}
