#pragma once

#include "picture_box.h"

/// The printer as the libraries know it: a surface like a picture box whose type is called "Printer".
class PrinterSurface final : public PictureBox {
public:
    /// dc: of a printer, or of a metafile that stands in for one. The size is in its pixels.
    static Ptr<PrinterSurface> Create(HDC dc, int width, int height);

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;

private:
    PrinterSurface(HDC dc, int width, int height) : PictureBox(dc, width, height, L"Drucker", 1) {}
};
