#include "automation/qsymbol/symbol_access.h"

#include "automation/qsymbol/CSymbol.h"
#include "automation/qsymbol/element_access.h"
#include "com/error_info.h"

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

qsymbol::Symbol CopyOf(_CSymbol& symbol) {
    qsymbol::Symbol copy;
    if (const com::ComPtr<CSymbol> own = com::Own<CSymbol>(symbol)) {
        qsymbol::CopySymbol(copy, *own->Value());
        return copy;
    }
    copy.filePath = com::GetText(symbol, &_CSymbol::get_FilePath);
    copy.refY = com::Get(symbol, &_CSymbol::get_RefY);
    copy.refX = com::Get(symbol, &_CSymbol::get_RefX);
    if (const auto elements = com::Get(symbol, &_CSymbol::GetSymElements))
        copy.elements = ToRecords(*elements.Get());
    return copy;
}
