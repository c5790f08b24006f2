#include "automation/objects/element_access.h"

#include "automation/objects/font_access.h"
#include "automation/shared/point_access.h"
#include "base/error.h"
#include "com/object_call.h"

using qsymbol::ElementType;

qsymbol::ElementRecord GetElementValues(_CSymElement& element) {
    qsymbol::ElementRecord record;
    record.type = static_cast<ElementType>(com::Get(element, &_CSymElement::get_ElementType));
    record.lineClosed = com::Get(element, &_CSymElement::get_LineClosed) != VARIANT_FALSE;
    record.textAngle = com::Get(element, &_CSymElement::get_TxtAngle);
    record.fillColor = com::Get(element, &_CSymElement::get_FillColor);
    record.lineWidth = com::Get(element, &_CSymElement::get_LineWidth);
    record.mainColor = com::Get(element, &_CSymElement::get_MainColor);
    record.radius = com::Get(element, &_CSymElement::get_Radius);
    record.textAlign = com::Get(element, &_CSymElement::get_TxtAlign);
    record.textBkMode = com::Get(element, &_CSymElement::get_TxtBkMode);
    record.text = com::GetText(element, &_CSymElement::get_Text);
    return record;
}

com::ComPtr<_CPtList> ElementPoints(_CSymElement& element) {
    return com::Get(element, &_CSymElement::get_PtList);
}

com::ComPtr<IFontDisp> ElementFont(_CSymElement& element) {
    return com::Get(element, &_CSymElement::get_TxtFont);
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
