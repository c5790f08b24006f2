#include "qsymbol/files/wsc_reader.h"

#include "base/error.h"

namespace qsymbol {

void ReadFromWSCFile(Symbol& symbol, const FileEnvironment& /*environment*/) {
    constexpr std::uint32_t kNotImplemented = 0x80004001U;
    ResetContent(symbol);
    throw base::Error::FromStatus(kNotImplemented, u"CSymbol.ReadFromWSCFile",
                                  u"Das WSC-Format kann noch nicht gelesen werden.");
}

} // namespace qsymbol
