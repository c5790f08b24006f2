#include "platform/win32/memory_bitmap.h"

#include "base/error.h"
#include "platform/win32/gdi_object.h"
#include "platform/win32/gdi_plus.h"

#include <objbase.h>

#include <cstring>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

namespace platform {

namespace {

using base::RunTimeError;
namespace flat = Gdiplus::DllExports;

constexpr int kBitsPerPixel = 24;
constexpr std::int64_t kMostBytes = std::numeric_limits<std::int32_t>::max();

/// Rows of a device-independent bitmap are padded to four bytes.
std::int64_t RowBytes(std::int64_t width) {
    return (width * (kBitsPerPixel / 8) + 3) / 4 * 4;
}

BITMAPINFO DescribeRows(std::int32_t width, std::int32_t height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = kBitsPerPixel;
    info.bmiHeader.biSizeImage = static_cast<DWORD>(RowBytes(width) * (height < 0 ? -height : height));
    return info;
}

[[noreturn]] void RaiseGdiPlus(Gdiplus::GpStatus status) {
    if (status == Gdiplus::OutOfMemory)
        base::Raise(RunTimeError::OutOfMemory);
    const std::string number = std::to_string(static_cast<int>(status));
    throw base::Error(static_cast<std::int32_t>(RunTimeError::InvalidCall), {},
                      u"Speicherung des Bildes fehlgeschlagen. GDI+ Error:" +
                          std::u16string(number.begin(), number.end()));
}

/// A stream in memory.
class MemoryStream {
public:
    MemoryStream() {
        if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, &stream_)))
            base::Raise(RunTimeError::OutOfMemory);
    }
    MemoryStream(const MemoryStream&) = delete;
    MemoryStream& operator=(const MemoryStream&) = delete;
    ~MemoryStream() { stream_->Release(); }

    IStream* Get() const { return stream_; }
    std::string Content() const {
        STATSTG state{};
        HGLOBAL memory = nullptr;
        if (FAILED(stream_->Stat(&state, STATFLAG_NONAME)) || FAILED(GetHGlobalFromStream(stream_, &memory)))
            base::Raise(RunTimeError::DeviceIo);
        const auto* const bytes = static_cast<const char*>(GlobalLock(memory));
        const std::unique_ptr<void, decltype(&GlobalUnlock)> locked(memory, &GlobalUnlock);
        return {bytes, static_cast<std::size_t>(state.cbSize.QuadPart)};
    }

private:
    IStream* stream_ = nullptr;
};

} // namespace

MemoryBitmap::MemoryBitmap(std::int32_t width, std::int32_t height, COLORREF background)
    : width_(width), height_(height), background_(background) {
    if (width < 1 || height < 1)
        base::Raise(RunTimeError::InvalidCall);
    if (RowBytes(width) > kMostBytes / height)
        base::Raise(RunTimeError::OutOfMemory);
    const BITMAPINFO info = Info();
    context_ = CreateCompatibleDC(nullptr);
    bitmap_ = CreateDIBSection(context_, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&bits_), nullptr, 0);
    if (context_ == nullptr || bitmap_ == nullptr) {
        DeleteDC(context_);
        DeleteObject(bitmap_);
        base::Raise(RunTimeError::OutOfMemory);
    }
    previous_ = SelectObject(context_, bitmap_);
    Clear();
}

MemoryBitmap::~MemoryBitmap() {
    SelectObject(context_, previous_);
    DeleteDC(context_);
    DeleteObject(bitmap_);
}

BITMAPINFO MemoryBitmap::Info() const {
    return DescribeRows(width_, -height_);
}

void MemoryBitmap::Clear() const {
    const RECT all{0, 0, width_, height_};
    const GdiObject brush(CreateSolidBrush(background_));
    FillRect(context_, &all, static_cast<HBRUSH>(brush.Get()));
}

HBITMAP MemoryBitmap::Copy() const {
    GdiFlush(); // what was drawn is in the bits only then
    const BITMAPINFO info = Info();
    void* bits = nullptr;
    const HBITMAP copy = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (copy == nullptr)
        base::Raise(RunTimeError::OutOfMemory);
    std::memcpy(bits, bits_, info.bmiHeader.biSizeImage);
    return copy;
}

std::string MemoryBitmap::Encode(const wchar_t* encoder, const void* parameters) const {
    GdiFlush();
    const GdiPlus running;
    if (running.Status() != Gdiplus::Ok)
        RaiseGdiPlus(running.Status());
    const MemoryStream stream;
    Gdiplus::GpBitmap* image = nullptr;
    if (const auto status = flat::GdipCreateBitmapFromScan0(
            width_, height_, static_cast<INT>(RowBytes(width_)), PixelFormat24bppRGB, bits_, &image);
        status != Gdiplus::Ok)
        RaiseGdiPlus(status);
    CLSID id;
    CLSIDFromString(encoder, &id);
    const Gdiplus::GpStatus saved = flat::GdipSaveImageToStream(
        image, stream.Get(), &id, static_cast<const Gdiplus::EncoderParameters*>(parameters));
    flat::GdipDisposeImage(image);
    if (saved != Gdiplus::Ok)
        RaiseGdiPlus(saved);
    return stream.Content();
}

std::string MemoryBitmap::ToPng() const {
    return Encode(kPngEncoder, nullptr);
}

std::string MemoryBitmap::ToJpeg(LONG quality) const {
    const Gdiplus::EncoderParameters parameters = JpegQuality(quality);
    return Encode(kJpegEncoder, &parameters);
}

std::string MemoryBitmap::ToBmp() const {
    GdiFlush();
    // Readers expect the bottom row first.
    const BITMAPINFO info = DescribeRows(width_, height_);
    const auto row = static_cast<std::size_t>(RowBytes(width_));
    BITMAPFILEHEADER head{};
    head.bfType = 0x4D42; // "BM"
    head.bfOffBits = sizeof head + sizeof info.bmiHeader;
    head.bfSize = head.bfOffBits + info.bmiHeader.biSizeImage;
    std::string file;
    file.reserve(head.bfSize);
    file.append(reinterpret_cast<const char*>(&head), sizeof head);
    file.append(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
    for (std::size_t y = static_cast<std::size_t>(height_); y-- > 0;)
        file.append(reinterpret_cast<const char*>(bits_) + y * row, row);
    return file;
}

std::string MemoryBitmap::ToEmf() const {
    GdiFlush();
    const HDC recorder = NewMetafile(width_, height_);
    const BITMAPINFO info = Info();
    StretchDIBits(recorder, 0, 0, width_, height_, 0, 0, width_, height_, bits_, &info, DIB_RGB_COLORS,
                  SRCCOPY);
    return TakeMetafile(CloseEnhMetaFile(recorder));
}

HDC NewMetafile(std::int32_t width, std::int32_t height) {
    // The frame is in hundredths of a millimetre of the device that is recorded for.
    const HDC screen = CreateCompatibleDC(nullptr);
    const auto hundredths = [&](std::int32_t pixels, int millimetres, int resolution) {
        return MulDiv(pixels, GetDeviceCaps(screen, millimetres) * 100, GetDeviceCaps(screen, resolution));
    };
    const RECT frame{0, 0, hundredths(width, HORZSIZE, HORZRES), hundredths(height, VERTSIZE, VERTRES)};
    const HDC recorder = CreateEnhMetaFileW(screen, nullptr, &frame, nullptr);
    DeleteDC(screen);
    return recorder;
}

std::string TakeMetafile(HENHMETAFILE file) {
    if (file == nullptr)
        base::Raise(RunTimeError::OutOfMemory);
    const std::unique_ptr<std::remove_pointer_t<HENHMETAFILE>, decltype(&DeleteEnhMetaFile)> owner(
        file, &DeleteEnhMetaFile);
    std::string content(GetEnhMetaFileBits(file, 0, nullptr), '\0');
    GetEnhMetaFileBits(file, static_cast<UINT>(content.size()), reinterpret_cast<BYTE*>(content.data()));
    return content;
}

} // namespace platform
