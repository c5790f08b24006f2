#include "platform/win32/jpeg_file.h"

#include "base/error.h"
#include "platform/wide/wide_text.h"
#include "platform/win32/gdi_plus.h"

#include <objbase.h>

namespace platform {

namespace {

namespace flat = Gdiplus::DllExports;

Gdiplus::GpStatus SaveImage(Gdiplus::GpImage* image, const std::u16string& fileName, LONG quality) {
    CLSID encoder;
    CLSIDFromString(kJpegEncoder, &encoder);
    const Gdiplus::EncoderParameters parameters = JpegQuality(quality);
    return flat::GdipSaveImageToFile(image, Wide(fileName), &encoder, &parameters);
}

Gdiplus::GpStatus SaveBitmap(HBITMAP picture, const std::u16string& fileName, LONG quality) {
    const GdiPlus session;
    if (session.Status() != Gdiplus::Ok)
        return session.Status();
    Gdiplus::GpBitmap* bitmap = nullptr;
    if (const auto status = flat::GdipCreateBitmapFromHBITMAP(picture, nullptr, &bitmap);
        status != Gdiplus::Ok)
        return status;
    const Gdiplus::GpStatus saved = SaveImage(bitmap, fileName, quality);
    const Gdiplus::GpStatus disposed = flat::GdipDisposeImage(bitmap);
    return saved != Gdiplus::Ok ? saved : disposed;
}

} // namespace

void SaveJpeg(HBITMAP picture, const std::u16string& fileName, LONG quality) {
    const Gdiplus::GpStatus status = SaveBitmap(picture, fileName, quality);
    if (status == Gdiplus::Ok)
        return;
    const std::string number = std::to_string(static_cast<int>(status));
    throw base::Error(static_cast<std::int32_t>(base::RunTimeError::InvalidCall), {},
                      u"Speicherung des Bildes fehlgeschlagen. GDI+ Error:" +
                          std::u16string(number.begin(), number.end()));
}

} // namespace platform
