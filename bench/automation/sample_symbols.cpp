#include "automation/sample_symbols.h"

#include "com/bstr.h"
#include "com/error_info.h"

std::vector<com::ComPtr<_CSymbol>> LoadSymbols(const std::wstring& folder) {
    std::vector<com::ComPtr<_CSymbol>> symbols;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder + L"\\*.syt").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return symbols;
    do {
        com::ComPtr<_CSymbol> symbol;
        com::Check(CoCreateInstance(__uuidof(CSymbol), nullptr, CLSCTX_INPROC_SERVER, __uuidof(_CSymbol),
                                    symbol.PutVoid()));
        const std::wstring path = folder + L"\\" + found.cFileName;
        com::Check(symbol->put_FilePath(
            com::Bstr({reinterpret_cast<const char16_t*>(path.data()), path.size()}).Get()));
        com::Check(symbol->ReadFromFile());
        symbols.push_back(symbol);
    } while (FindNextFileW(search, &found) != FALSE);
    FindClose(search);
    return symbols;
}
