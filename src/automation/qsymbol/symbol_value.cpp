#include "automation/qsymbol/symbol_value.h"

#include "automation/qsymbol/last_factors.h"
#include "automation/shared/library_values.h"
#include "com/error_info.h"
#include "com/unknown_object.h"
#include "qsymbol/model/symbol_content.h"

#include <objbase.h>

#include <cstring>
#include <new>

namespace {

class SymbolLibrary final : public com::UnknownObject<ISymbolLibrary> {
public:
    const void* STDMETHODCALLTYPE Id() override { return &com::TheModule(); }
    ULONGLONG STDMETHODCALLTYPE Edition() override { return CSymbol::LastEdition(); }
    double STDMETHODCALLTYPE ScreenFactor() override { return last_factors::Screen(); }
    void STDMETHODCALLTYPE KeepFactors(double printer, double screen) override {
        last_factors::Keep({.printer = printer, .screen = screen});
    }
};

class SymbolValue final : public com::UnknownObject<ISymbolValue> {
public:
    explicit SymbolValue(CSymbol& symbol) : symbol_(&symbol) {}

    void* STDMETHODCALLTYPE Object() override { return static_cast<_CSymbol*>(symbol_.Get()); }
    HRESULT STDMETHODCALLTYPE Library(ISymbolLibrary** library) override {
        *library = new (std::nothrow) SymbolLibrary();
        return *library == nullptr ? E_OUTOFMEMORY : S_OK;
    }
    ULONGLONG STDMETHODCALLTYPE Edition() override { return symbol_->Edition(); }
    HRESULT STDMETHODCALLTYPE Content(BYTE** bytes, ULONG* count) override {
        return com::Guard(__uuidof(ISymbolValue), [&] {
            const std::string packed = qsymbol::PackSymbol(*symbol_->Value());
            *bytes = static_cast<BYTE*>(CoTaskMemAlloc(packed.size()));
            if (*bytes == nullptr)
                base::Raise(base::RunTimeError::OutOfMemory);
            std::memcpy(*bytes, packed.data(), packed.size());
            *count = static_cast<ULONG>(packed.size());
        });
    }

private:
    com::ComPtr<CSymbol> symbol_;
};

} // namespace

void* NewSymbolValue(CSymbol& symbol) noexcept {
    return static_cast<ISymbolValue*>(new (std::nothrow) SymbolValue(symbol));
}
