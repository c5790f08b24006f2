#include "automation/sample_symbols.h"

#include "com/bstr.h"
#include "com/error_info.h"

#include <filesystem>

std::vector<com::ComPtr<_CSymbol>> LoadSymbols(const std::wstring& folder) {
    std::vector<com::ComPtr<_CSymbol>> symbols;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != L".syt")
            continue;
        com::ComPtr<_CSymbol> symbol;
        com::Check(CoCreateInstance(__uuidof(CSymbol), nullptr, CLSCTX_INPROC_SERVER, __uuidof(_CSymbol),
                                    symbol.PutVoid()));
        const std::wstring path = entry.path().wstring();
        com::Check(symbol->put_FilePath(
            com::Bstr({reinterpret_cast<const char16_t*>(path.data()), path.size()}).Get()));
        com::Check(symbol->ReadFromFile());
        symbols.push_back(symbol);
    }
    return symbols;
}
