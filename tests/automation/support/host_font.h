#pragma once

#include "support/foreign_object.h"
#include "support/shapes.h"

#include <olectl.h>

namespace support {

/// A font object of a host's own making: it has a font's properties by name, nothing else.
class HostFont final : public ForeignObject<IFontDisp> {
public:
    static Ref<IFontDisp> Create(const FontSpec& spec) { return Ref<IFontDisp>::Attach(new HostFont(spec)); }

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                        UINT*) override;

private:
    explicit HostFont(const FontSpec& spec) : spec_(spec) {}

    FontSpec spec_;
};

} // namespace support
