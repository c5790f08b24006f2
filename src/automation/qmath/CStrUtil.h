#pragma once

#include "com/dual_object.h"

#include <QMath.h>

/// Public class CStrUtil: fields of a line, parts of a path.
class CStrUtil final : public com::DualObject<CStrUtil, _CStrUtil> {
public:
    STDMETHODIMP TokenCount(BSTR line, BSTR separator, LONG* value) override;
    STDMETHODIMP GetToken(BSTR line, BSTR separator, LONG index, BSTR* value) override;
    STDMETHODIMP GetExtension(BSTR path, BSTR* value) override;
    STDMETHODIMP GetFileName(BSTR path, BSTR* value) override;
    STDMETHODIMP GetName(BSTR fileName, BSTR* value) override;
    STDMETHODIMP GetField(BSTR text, BSTR separator, LONG number, BSTR* value) override;
};
