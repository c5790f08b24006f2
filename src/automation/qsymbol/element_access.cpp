#include "automation/qsymbol/element_access.h"

#include "automation/qsymbol/CSymElement.h"
#include "automation/qsymbol/font_access.h"
#include "automation/qsymbol/math_objects.h"
#include "automation/shared/point_access.h"
#include "base/error.h"
#include "com/bstr.h"

namespace {

using qsymbol::ElementType;

/// Reads one property of an element through its accessor.
template <class T>
T Get(_CSymElement& element, HRESULT (STDMETHODCALLTYPE _CSymElement::*accessor)(T*)) {
    T value{};
    com::Check((element.*accessor)(&value));
    return value;
}

} // namespace

qsymbol::ElementRecord GetElementValues(_CSymElement& element) {
    qsymbol::ElementRecord record;
    record.type = static_cast<ElementType>(Get(element, &_CSymElement::get_ElementType));
    record.lineClosed = Get(element, &_CSymElement::get_LineClosed) != VARIANT_FALSE;
    record.textAngle = Get(element, &_CSymElement::get_TxtAngle);
    record.fillColor = Get(element, &_CSymElement::get_FillColor);
    record.lineWidth = Get(element, &_CSymElement::get_LineWidth);
    record.mainColor = Get(element, &_CSymElement::get_MainColor);
    record.radius = Get(element, &_CSymElement::get_Radius);
    record.textAlign = Get(element, &_CSymElement::get_TxtAlign);
    record.textBkMode = Get(element, &_CSymElement::get_TxtBkMode);
    com::Bstr text;
    com::Check(element.get_Text(text.Put()));
    record.text = text.View();
    return record;
}

com::ComPtr<_CPtList> ElementPoints(_CSymElement& element) {
    com::ComPtr<_CPtList> list;
    com::Check(element.get_PtList(list.Put()));
    return list;
}

com::ComPtr<IFontDisp> ElementFont(_CSymElement& element) {
    com::ComPtr<IFontDisp> font;
    com::Check(element.get_TxtFont(font.Put()));
    return font;
}

qsymbol::ElementRecord ToDrawing(_CSymElement& element) {
    qsymbol::ElementRecord record = GetElementValues(element);
    if (const com::ComPtr<_CPtList> points = ElementPoints(element))
        record.points = GetPoints(points.Get());
    if (const com::ComPtr<IFontDisp> font = ElementFont(element))
        record.font = GetFont(font.Get());
    return record;
}

qsymbol::ElementRecord ToRecord(_CSymElement& element) {
    qsymbol::ElementRecord record = GetElementValues(element);
    if (record.type == ElementType::Undefined)
        return {};
    record.points = GetPoints(ElementPoints(element).Get());
    if (record.points.empty())
        base::Raise(base::RunTimeError::SubscriptOutOfRange);
    if (record.type == ElementType::Text) {
        const com::ComPtr<IFontDisp> font = ElementFont(element);
        record.font = font ? GetFont(font.Get()) : qsymbol::FontRecord{};
    }
    return record;
}

com::ComPtr<_CSymElement> NewElement(const qsymbol::ElementRecord& record) {
    com::ComPtr<_CSymElement> element(CSymElement::Create().Get());
    com::Check(element->put_ElementType(static_cast<SymElementTypeConstants>(record.type)));
    com::Check(element->put_LineClosed(record.lineClosed ? VARIANT_TRUE : VARIANT_FALSE));
    com::Check(element->put_TxtAngle(record.textAngle));
    com::Check(element->put_FillColor(record.fillColor));
    com::Check(element->put_LineWidth(record.lineWidth));
    com::Check(element->put_MainColor(record.mainColor));
    com::Check(element->put_Radius(record.radius));
    com::Check(element->put_TxtAlign(record.textAlign));
    com::Check(element->put_TxtBkMode(record.textBkMode));
    com::Check(element->put_Text(com::Bstr(record.text).Get()));
    com::Check(element->putref_PtList(math_objects::NewPointList(record.points).Get()));
    if (record.type == ElementType::Text)
        com::Check(element->putref_TxtFont(NewStdFont(record.font.value_or(qsymbol::FontRecord{})).Get()));
    return element;
}
