#pragma once

#include "com.h"

#include <array>

/// A picture box as drawing libraries know it from Basic: an object with late-bound properties, each of
/// which takes effect on the device context at once, because the library goes on with plain GDI calls
/// there; and with a method that draws a line. The device context must outlive the box; the box leaves it
/// as it found it.
class PictureBox : public IDispatch {
public:
    /// A box of this size in pixels, from the origin of the device context on. thinnest: no line is thinner, in pixels.
    static Ptr<PictureBox> Create(HDC dc, int width, int height, std::wstring name, int thinnest = 1);

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    /// No type information: the type name tells a picture box from a printer, and ours is not a printer.
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO* exception, UINT* badArgument) override;

protected:
    PictureBox(HDC dc, int width, int height, std::wstring name, int thinnest);
    virtual ~PictureBox();

private:
    /// The properties and the method in the order of their dispatch ids; those up to DrawWidth can be put.
    enum Property {
        DrawMode,
        ForeColor,
        FillColor,
        FillStyle,
        DrawStyle,
        DrawWidth,
        HDc,
        ScaleWidth,
        ScaleHeight,
        Name,
        Line
    };

    HRESULT Get(DISPID id, VARIANT& result) const;
    HRESULT Put(DISPID id, VARIANT& value);
    HRESULT DrawLine(const DISPPARAMS& arguments) const;
    void Apply(DISPID id);
    void UsePen();
    void UseBrush();
    COLORREF Colour(Property property) const;
    void Select(HGDIOBJ& current, HGDIOBJ next);

    ULONG references_ = 1;
    HDC dc_;
    int savedState_;
    int width_;
    int height_;
    std::wstring name_;
    int thinnest_;
    std::array<LONG, DrawWidth + 1> values_{R2_COPYPEN, 0, 0, 1, 0, 1};
    HGDIOBJ pen_ = nullptr;
    HGDIOBJ brush_ = nullptr;
};
