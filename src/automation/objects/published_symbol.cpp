#include "automation/objects/published_symbol.h"

#include "automation/objects/element_access.h"
#include "com/error_info.h"
#include "com/object_call.h"

qsymbol::ElementList ToRecords(_CSymElementColl& elements) {
    const LONG count = com::Get(elements, &_CSymElementColl::get_Count);
    qsymbol::ElementList records;
    for (LONG i = 1; i <= count; ++i) {
        com::ComPtr<_CSymElement> element;
        com::Call(elements, &_CSymElementColl::get_ItemByPos, i, element.Put());
        records.push_back(ToRecord(com::Required(element.Get())));
    }
    return records;
}

qsymbol::Symbol ReadPublished(_CSymbol& symbol) {
    qsymbol::Symbol copy;
    copy.filePath = com::GetText(symbol, &_CSymbol::get_FilePath);
    copy.refY = com::Get(symbol, &_CSymbol::get_RefY);
    copy.refX = com::Get(symbol, &_CSymbol::get_RefX);
    if (const auto elements = com::Get(symbol, &_CSymbol::GetSymElements))
        copy.elements = ToRecords(*elements.Get());
    return copy;
}
