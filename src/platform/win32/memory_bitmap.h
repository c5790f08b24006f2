#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace platform {

/// A bitmap in memory, 24 bits a pixel, top row first, with a device context that draws on it.
class MemoryBitmap {
public:
    /// Filled with a colour. Error 5 for a side below 1, 7 when memory does not suffice.
    MemoryBitmap(std::int32_t width, std::int32_t height, COLORREF background);
    MemoryBitmap(const MemoryBitmap&) = delete;
    MemoryBitmap& operator=(const MemoryBitmap&) = delete;
    ~MemoryBitmap();

    HDC Context() const { return context_; }
    std::int32_t Width() const { return width_; }
    std::int32_t Height() const { return height_; }
    /// Everything in the background's colour again.
    void Clear() const;

    /// A copy that belongs to the caller. Error 7.
    HBITMAP Copy() const;

    // The picture as the content of a file. Error 7 when memory does not suffice, 5 with GDI+'s status when that fails.
    std::string ToPng() const;
    std::string ToJpeg(LONG quality) const;
    std::string ToBmp() const;
    /// One record with the whole bitmap; as large as the screen shows it.
    std::string ToEmf() const;

private:
    std::string Encode(const wchar_t* encoder, const void* parameters) const;
    BITMAPINFO Info() const;

    std::int32_t width_;
    std::int32_t height_;
    COLORREF background_;
    HDC context_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ previous_ = nullptr;
    BYTE* bits_ = nullptr;
};

/// The content of a metafile, which is deleted. Error 7.
std::string TakeMetafile(HENHMETAFILE file);

/// A device context that records a picture of this size in pixels of the screen; nullptr when the system has no memory.
HDC NewMetafile(std::int32_t width, std::int32_t height);

} // namespace platform
