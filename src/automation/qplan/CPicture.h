#pragma once

#include "automation/qplan/drawing_tools.h"
#include "com/dual_object.h"
#include "platform/win32/memory_bitmap.h"

#include <QPlan.h>

#include <memory>
#include <string>

/// Public class CPicture: a surface in memory, for hosts that have none.
class CPicture final : public com::DualObject<CPicture, _CPicture> {
public:
    /// A white picture. Errors of platform::MemoryBitmap.
    static com::ComPtr<CPicture> CreateBlank(LONG width, LONG height);
    /// A picture of this size whose drawings are recorded by a device context. It has no pixels: members that want
    /// them are error 5.
    static com::ComPtr<CPicture> CreateRecording(HDC recorder, LONG width, LONG height);
    /// Lets the device context go; members are error 91 from then on.
    void Finish() { sheet_.reset(); }
    /// Error 91 before Create, 5 for a recording.
    const platform::MemoryBitmap& Bitmap() const;

    STDMETHODIMP Create(LONG lWidth, LONG lHeight, LONG lBackColor) override;
    STDMETHODIMP get_hDC(LONG* value) override;
    STDMETHODIMP get_ScaleWidth(float* value) override;
    STDMETHODIMP get_ScaleHeight(float* value) override;
    STDMETHODIMP get_Name(BSTR* value) override;
    STDMETHODIMP put_Name(BSTR value) override;
    STDMETHODIMP get_DrawMode(LONG* value) override;
    STDMETHODIMP put_DrawMode(LONG value) override;
    STDMETHODIMP get_ForeColor(LONG* value) override;
    STDMETHODIMP put_ForeColor(LONG value) override;
    STDMETHODIMP get_FillColor(LONG* value) override;
    STDMETHODIMP put_FillColor(LONG value) override;
    STDMETHODIMP get_FillStyle(LONG* value) override;
    STDMETHODIMP put_FillStyle(LONG value) override;
    STDMETHODIMP get_DrawStyle(LONG* value) override;
    STDMETHODIMP put_DrawStyle(LONG value) override;
    STDMETHODIMP get_DrawWidth(LONG* value) override;
    STDMETHODIMP put_DrawWidth(LONG value) override;
    STDMETHODIMP Line(float sX1, float sY1, float sX2, float sY2) override;
    STDMETHODIMP Clear() override;
    STDMETHODIMP get_Pixel(LONG lX, LONG lY, LONG* value) override;
    STDMETHODIMP get_Picture(IPictureDisp** value) override;
    STDMETHODIMP Write2File(BSTR stFilename) override;

private:
    /// What is drawn on.
    struct Sheet {
        Sheet(HDC recorder, LONG sheetWidth, LONG sheetHeight)
            : context(recorder), width(sheetWidth), height(sheetHeight), tools(recorder) {}
        explicit Sheet(std::unique_ptr<platform::MemoryBitmap> pixels)
            : Sheet(pixels->Context(), pixels->Width(), pixels->Height()) {
            bitmap = std::move(pixels);
        }

        std::unique_ptr<platform::MemoryBitmap> bitmap; ///< outlives the tools; missing in a recording
        HDC context;
        LONG width;
        LONG height;
        DrawingTools tools;
        std::u16string name = u"CPicture";
    };

    /// Error 91 before Create.
    Sheet& Made() const;
    HRESULT Get(DrawingTools::Property property, LONG* value);
    HRESULT Put(DrawingTools::Property property, LONG value);

    std::unique_ptr<Sheet> sheet_;
};
