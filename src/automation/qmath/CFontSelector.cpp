#include "automation/qmath/CFontSelector.h"

#include "com/bstr.h"

// The surface kind changes nothing: height and escapement already are the surface's own.
STDMETHODIMP CFontSelector::SelectFont(BSTR /*surfaceKind*/, LONG hDC, LONG height, LONG escapement,
                                       VARIANT_BOOL bold, VARIANT_BOOL italic, VARIANT_BOOL underline,
                                       VARIANT_BOOL strikethrough, BSTR name) {
    return Do([&] {
        font_.Select(platform::DeviceContext(hDC), {.height = height,
                                                    .escapement = escapement,
                                                    .bold = bold != VARIANT_FALSE,
                                                    .italic = italic != VARIANT_FALSE,
                                                    .underline = underline != VARIANT_FALSE,
                                                    .strikethrough = strikethrough != VARIANT_FALSE,
                                                    .name = com::Text(name)});
    });
}

STDMETHODIMP CFontSelector::ReleaseFont() {
    return Do([&] { font_.Release(); });
}
