#include "automation/qsymbol/symbol_selection.h"

#include "automation/dialog/select_symbol.h"
#include "automation/objects/math_objects.h"
#include "automation/qsymbol/library.h"
#include "com/module.h"
#include "com/object_call.h"

namespace {

/// The unit factor as it is when it is asked for, from one settings object.
class UnitFactor {
public:
    double operator()() {
        if (!settings_)
            settings_ = math_objects::Settings();
        return com::Get(*settings_, &_CSettings::get_UnitFactor);
    }

private:
    com::ComPtr<_CSettings> settings_;
};

std::u16string DecimalSeparator() {
    return library::CodePage().Decode(library::FileEnvironmentNow().regional.decimal);
}

} // namespace

std::u16string SelectSymbolName(_CSymbolColl& catalogue, std::u16string_view request) {
    return dialog::SelectSymbol(catalogue, request,
                                {.instance = com::TheModule().Instance(),
                                 .strings = library::FileEnvironmentNow().strings,
                                 .report = library::ReportCurrentError,
                                 .unitFactor = UnitFactor(),
                                 .decimal = DecimalSeparator});
}
