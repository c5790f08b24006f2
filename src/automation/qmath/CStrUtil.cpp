#include "automation/qmath/CStrUtil.h"

#include "com/bstr.h"
#include "qmath/str_util.h"

STDMETHODIMP CStrUtil::TokenCount(BSTR line, BSTR separator, LONG* value) {
    return Return(value, [&] { return qmath::TokenCount(com::View(line), com::View(separator)); });
}

STDMETHODIMP CStrUtil::GetToken(BSTR line, BSTR separator, LONG index, BSTR* value) {
    return Return(
        value, [&] { return com::NewBstr(qmath::GetToken(com::View(line), com::View(separator), index)); });
}

STDMETHODIMP CStrUtil::GetExtension(BSTR path, BSTR* value) {
    return Return(value, [&] { return com::NewBstr(qmath::GetExtension(com::View(path))); });
}

STDMETHODIMP CStrUtil::GetFileName(BSTR path, BSTR* value) {
    return Return(value, [&] { return com::NewBstr(qmath::FileNamePart(com::View(path))); });
}

STDMETHODIMP CStrUtil::GetName(BSTR fileName, BSTR* value) {
    return Return(value, [&] { return com::NewBstr(qmath::NameWithoutExtension(com::View(fileName))); });
}

STDMETHODIMP CStrUtil::GetField(BSTR text, BSTR separator, LONG number, BSTR* value) {
    return Return(
        value, [&] { return com::NewBstr(qmath::GetToken(com::View(text), com::View(separator), number)); });
}
