#pragma once

#include "com/dual_object.h"
#include "platform/win32/selected_font.h"

#include <QMath.h>

/// Public class CFontSelector: a font of its own on a device context, until it is released.
class CFontSelector final : public com::DualObject<CFontSelector, _CFontSelector> {
public:
    STDMETHODIMP SelectFont(BSTR surfaceKind, LONG hDC, LONG height, LONG escapement, VARIANT_BOOL bold,
                            VARIANT_BOOL italic, VARIANT_BOOL underline, VARIANT_BOOL strikethrough,
                            BSTR name) override;
    STDMETHODIMP ReleaseFont() override;

private:
    platform::SelectedFont font_;
};
