#include "automation/qsymbol/symbol_selection.h"

#include "automation/dialog/select_symbol.h"
#include "automation/qsymbol/library.h"
#include "automation/qsymbol/math_objects.h"
#include "com/module.h"

namespace {

std::u16string DecimalSeparator() {
    return library::CodePage().Decode(library::FileEnvironmentNow().regional.decimal);
}

} // namespace

std::u16string SelectSymbolName(_CSymbolColl& catalogue, std::u16string_view request) {
    return dialog::SelectSymbol(catalogue, request,
                                {.instance = com::TheModule().Instance(),
                                 .strings = library::FileEnvironmentNow().strings,
                                 .report = library::ReportCurrentError,
                                 .unitFactor = math_objects::UnitFactor,
                                 .decimal = DecimalSeparator});
}
