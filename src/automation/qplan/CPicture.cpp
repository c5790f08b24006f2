#include "automation/qplan/CPicture.h"

#include "automation/qplan/ole_colour.h"
#include "automation/qplan/picture_file.h"
#include "base/checked.h"
#include "com/bstr.h"

#include <olectl.h>

namespace {

constexpr COLORREF kNoColour = CLR_INVALID;

COLORREF BackgroundOf(LONG colour) {
    const COLORREF resolved = ColourOr(colour, kNoColour);
    if (resolved == kNoColour)
        base::Raise(base::RunTimeError::InvalidCall);
    return resolved;
}

POINT PixelAt(float x, float y) {
    return {base::RoundToLong(x), base::RoundToLong(y)};
}

/// A picture object that owns the bitmap.
com::ComPtr<IPictureDisp> NewPicture(HBITMAP bitmap) {
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.picType = PICTYPE_BITMAP;
    description.bmp.hbitmap = bitmap;
    com::ComPtr<IPictureDisp> picture;
    const HRESULT status = OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE, picture.PutVoid());
    if (FAILED(status))
        DeleteObject(bitmap);
    com::Check(status);
    return picture;
}

} // namespace

CPicture::Sheet& CPicture::Made() const {
    return com::Required(sheet_.get());
}

com::ComPtr<CPicture> CPicture::CreateBlank(LONG width, LONG height) {
    constexpr COLORREF kWhite = RGB(255, 255, 255);
    com::ComPtr<CPicture> picture = DualObject::Create();
    picture->sheet_ =
        std::make_unique<Sheet>(std::make_unique<platform::MemoryBitmap>(width, height, kWhite));
    return picture;
}

com::ComPtr<CPicture> CPicture::CreateRecording(HDC recorder, LONG width, LONG height) {
    com::ComPtr<CPicture> picture = DualObject::Create();
    picture->sheet_ = std::make_unique<Sheet>(recorder, width, height);
    return picture;
}

const platform::MemoryBitmap& CPicture::Bitmap() const {
    const Sheet& sheet = Made();
    if (sheet.bitmap == nullptr)
        base::Raise(base::RunTimeError::InvalidCall);
    return *sheet.bitmap;
}

HRESULT CPicture::Get(DrawingTools::Property property, LONG* value) {
    return Return(value, [&] { return Made().tools.Get(property); });
}

HRESULT CPicture::Put(DrawingTools::Property property, LONG value) {
    return Compute([&] { Made().tools.Put(property, value); });
}

STDMETHODIMP CPicture::Create(LONG lWidth, LONG lHeight, LONG lBackColor) {
    return Compute([&] {
        auto made = std::make_unique<Sheet>(
            std::make_unique<platform::MemoryBitmap>(lWidth, lHeight, BackgroundOf(lBackColor)));
        sheet_.swap(made); // a failure leaves the old picture
    });
}

STDMETHODIMP CPicture::get_hDC(LONG* value) {
    // A handle has 32 significant bits in 64-bit programs as well.
    return Return(value, [&] { return static_cast<LONG>(reinterpret_cast<LONG_PTR>(Made().context)); });
}

STDMETHODIMP CPicture::get_ScaleWidth(float* value) {
    return Return(value, [&] { return static_cast<float>(Made().width); });
}

STDMETHODIMP CPicture::get_ScaleHeight(float* value) {
    return Return(value, [&] { return static_cast<float>(Made().height); });
}

STDMETHODIMP CPicture::get_Name(BSTR* value) {
    return Return(value, [&] { return com::NewBstr(Made().name); });
}

STDMETHODIMP CPicture::put_Name(BSTR value) {
    return Compute([&] { Made().name = com::Text(value); });
}

STDMETHODIMP CPicture::get_DrawMode(LONG* value) {
    return Get(DrawingTools::DrawMode, value);
}

STDMETHODIMP CPicture::put_DrawMode(LONG value) {
    return Put(DrawingTools::DrawMode, value);
}

STDMETHODIMP CPicture::get_ForeColor(LONG* value) {
    return Get(DrawingTools::ForeColor, value);
}

STDMETHODIMP CPicture::put_ForeColor(LONG value) {
    return Put(DrawingTools::ForeColor, value);
}

STDMETHODIMP CPicture::get_FillColor(LONG* value) {
    return Get(DrawingTools::FillColor, value);
}

STDMETHODIMP CPicture::put_FillColor(LONG value) {
    return Put(DrawingTools::FillColor, value);
}

STDMETHODIMP CPicture::get_FillStyle(LONG* value) {
    return Get(DrawingTools::FillStyle, value);
}

STDMETHODIMP CPicture::put_FillStyle(LONG value) {
    return Put(DrawingTools::FillStyle, value);
}

STDMETHODIMP CPicture::get_DrawStyle(LONG* value) {
    return Get(DrawingTools::DrawStyle, value);
}

STDMETHODIMP CPicture::put_DrawStyle(LONG value) {
    return Put(DrawingTools::DrawStyle, value);
}

STDMETHODIMP CPicture::get_DrawWidth(LONG* value) {
    return Get(DrawingTools::DrawWidth, value);
}

STDMETHODIMP CPicture::put_DrawWidth(LONG value) {
    return Put(DrawingTools::DrawWidth, value);
}

STDMETHODIMP CPicture::Line(float sX1, float sY1, float sX2, float sY2) {
    return Compute([&] { Made().tools.Line(PixelAt(sX1, sY1), PixelAt(sX2, sY2)); });
}

STDMETHODIMP CPicture::Clear() {
    return Compute([&] { Bitmap().Clear(); });
}

STDMETHODIMP CPicture::get_Pixel(LONG lX, LONG lY, LONG* value) {
    return Return(value, [&] { return static_cast<LONG>(GetPixel(Bitmap().Context(), lX, lY)); });
}

STDMETHODIMP CPicture::get_Picture(IPictureDisp** value) {
    return Return(value, [&] { return NewPicture(Bitmap().Copy()).Detach(); });
}

STDMETHODIMP CPicture::Write2File(BSTR stFilename) {
    return Compute([&] { WritePictureFile(Bitmap(), com::Text(stFilename)); });
}
