#pragma once

#include "automation/dialog/drawing_tools.h"
#include "automation/dialog/memory_picture.h"
#include "com/com_ptr.h"
#include "com/unknown_object.h"

#include <oaidl.h>

namespace dialog {

/// The preview's drawing surface: a late-bound picture box that draws into a picture in memory. It needs no
/// window, so a symbol that keeps it beyond the dialog's life does no harm.
class SymPict final : public com::UnknownObject<IDispatch> {
public:
    static com::ComPtr<SymPict> Create() { return com::ComPtr<SymPict>::Attach(new SymPict); }

    const MemoryPicture& Picture() const { return picture_; }
    /// A new empty picture. Not while something is drawn, when the bitmap is in use.
    void Resize(SIZE size, int margin);
    void Clear() { picture_.Clear(); }
    /// What ScaleWidth and ScaleHeight tell: the picture without its margins and without one pixel, because
    /// a drawing of that size covers the pixel at its end as well.
    SIZE Scale() const;

    /// The time in which a symbol is drawn. Coordinates begin inside the margin, moved by an offset; at the
    /// end the context is again as it was.
    class Drawing {
    public:
        Drawing(SymPict& box, SIZE offset);
        Drawing(const Drawing&) = delete;
        Drawing& operator=(const Drawing&) = delete;
        ~Drawing();

    private:
        explicit Drawing(SymPict& box);

        SymPict& box_;
        int saved_;
    };
    bool IsBeingDrawnOn() const { return drawings_ > 0; }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                        VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override;

private:
    SymPict() = default;
    ~SymPict() override;

    /// After a drawing inside another one, as by a symbol that lets the user go on.
    void SelectAgain() noexcept;
    HRESULT Put(DISPID id, const DISPPARAMS& arguments);
    HRESULT Get(DISPID id, const DISPPARAMS& arguments, VARIANT& result);
    HRESULT Line(const DISPPARAMS& arguments);

    MemoryPicture picture_;
    DrawingTools tools_;
    DrawingStyle style_;
    int margin_ = 0;
    int drawings_ = 0;
};

} // namespace dialog
