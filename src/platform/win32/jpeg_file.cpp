#include "platform/win32/jpeg_file.h"

#include "base/error.h"
#include "platform/wide/wide_text.h"

#include <objbase.h>
#include <objidl.h>

#include <gdiplus.h>

namespace platform {

namespace {

namespace flat = Gdiplus::DllExports;

constexpr const wchar_t* kJpegEncoder = L"{557CF401-1A04-11D3-9A73-0000F81EF32E}";
constexpr const wchar_t* kQualityParameter = L"{1D5BE4B5-FA4A-452D-9CDD-5DB35105E7EB}";
constexpr UINT32 kInputVersion = 1;

/// GDI+ between start-up and shut-down.
class GdiPlus {
public:
    GdiPlus() {
        Gdiplus::GdiplusStartupInput input;
        input.GdiplusVersion = kInputVersion;
        status_ = Gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;
    ~GdiPlus() {
        if (status_ == Gdiplus::Ok)
            Gdiplus::GdiplusShutdown(token_);
    }
    Gdiplus::GpStatus Status() const { return status_; }

private:
    ULONG_PTR token_ = 0;
    Gdiplus::GpStatus status_;
};

Gdiplus::GpStatus SaveImage(Gdiplus::GpImage* image, const std::u16string& fileName, LONG quality) {
    CLSID encoder;
    Gdiplus::EncoderParameters parameters{};
    CLSIDFromString(kJpegEncoder, &encoder);
    CLSIDFromString(kQualityParameter, &parameters.Parameter[0].Guid);
    parameters.Count = 1;
    parameters.Parameter[0].NumberOfValues = 1;
    parameters.Parameter[0].Type = Gdiplus::EncoderParameterValueTypeLong;
    parameters.Parameter[0].Value = &quality;
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
