#include "support/jpeg_picture.h"

#include <objbase.h>
#include <objidl.h>

#include <gdiplus.h>

#include <algorithm>
#include <memory>

namespace support {

namespace {

class GdiPlus {
public:
    GdiPlus() {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;
    ~GdiPlus() { Gdiplus::GdiplusShutdown(token_); }

private:
    ULONG_PTR token_ = 0;
};

constexpr CLSID kJpegEncoder = {0x557cf401, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
constexpr GUID kJpegFormat = {0xb96b3cae, 0x0728, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

} // namespace

int JpegPicture::DarkestGrey() const {
    int darkest = 255;
    for (const std::uint32_t pixel : pixels)
        darkest = std::min(darkest, static_cast<int>(pixel >> 8 & 0xFF));
    return darkest;
}

JpegPicture ReadJpeg(const std::wstring& path) {
    const GdiPlus session;
    JpegPicture picture;
    Gdiplus::Bitmap bitmap(path.c_str());
    picture.status = bitmap.GetLastStatus();
    if (picture.status != Gdiplus::Ok)
        return picture;
    GUID format{};
    bitmap.GetRawFormat(&format);
    picture.isJpeg = format == kJpegFormat;
    picture.width = static_cast<int>(bitmap.GetWidth());
    picture.height = static_cast<int>(bitmap.GetHeight());
    Gdiplus::BitmapData data{};
    const Gdiplus::Rect whole(0, 0, picture.width, picture.height);
    picture.status = bitmap.LockBits(&whole, Gdiplus::ImageLockModeRead, PixelFormat32bppRGB, &data);
    if (picture.status != Gdiplus::Ok)
        return picture;
    for (int y = 0; y < picture.height; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(
            static_cast<const std::uint8_t*>(data.Scan0) + y * data.Stride);
        picture.pixels.insert(picture.pixels.end(), row, row + picture.width);
    }
    bitmap.UnlockBits(&data);
    for (std::uint32_t& pixel : picture.pixels)
        pixel &= 0xFFFFFF;
    return picture;
}

int StatusOfSavingTo(const std::wstring& path) {
    const GdiPlus session;
    Gdiplus::Bitmap bitmap(8, 8, PixelFormat24bppRGB);
    return bitmap.Save(path.c_str(), &kJpegEncoder, nullptr);
}

} // namespace support
