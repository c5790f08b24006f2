#pragma once

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace platform {

/// GDI+ between start-up and shut-down.
class GdiPlus {
public:
    GdiPlus() {
        Gdiplus::GdiplusStartupInput input;
        input.GdiplusVersion = 1;
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

constexpr const wchar_t* kJpegEncoder = L"{557CF401-1A04-11D3-9A73-0000F81EF32E}";
constexpr const wchar_t* kPngEncoder = L"{557CF406-1A04-11D3-9A73-0000F81EF32E}";

/// The one parameter of the JPEG encoder. `quality` is 0 to 100 and outlives the result.
inline Gdiplus::EncoderParameters JpegQuality(LONG& quality) {
    constexpr const wchar_t* kQuality = L"{1D5BE4B5-FA4A-452D-9CDD-5DB35105E7EB}";
    Gdiplus::EncoderParameters parameters{};
    CLSIDFromString(kQuality, &parameters.Parameter[0].Guid);
    parameters.Count = 1;
    parameters.Parameter[0].NumberOfValues = 1;
    parameters.Parameter[0].Type = Gdiplus::EncoderParameterValueTypeLong;
    parameters.Parameter[0].Value = &quality;
    return parameters;
}

} // namespace platform
