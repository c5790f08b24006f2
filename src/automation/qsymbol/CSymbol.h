#pragma once

#include "base/file.h"
#include "com/dual_object.h"
#include "qsymbol/model/symbol.h"

#include <QSymbol.h>

#include <cstdint>
#include <memory>

/// Public class CSymbol: one symbol.
class CSymbol final : public com::DualObject<CSymbol, _CSymbol> {
public:
    CSymbol();

    /// A symbol object over a value, for use inside the library.
    static com::ComPtr<CSymbol> CreateFrom(qsymbol::Symbol&& symbol);
    /// The symbol as it is now; changes of this object do not reach it.
    std::shared_ptr<const qsymbol::Symbol> Value() const { return symbol_; }
    /// Another number after every change, and no other symbol's; 0 at first.
    std::uint64_t Edition() const { return edition_; }
    /// The highest edition of all symbols.
    static std::uint64_t LastEdition();

    STDMETHODIMP get_FilePath(BSTR* value) override;
    STDMETHODIMP put_FilePath(BSTR value) override;
    STDMETHODIMP get_Name(BSTR* value) override;
    STDMETHODIMP get_RefX(LONG* value) override;
    STDMETHODIMP get_RefY(LONG* value) override;
    STDMETHODIMP get_Width(LONG* value) override;
    STDMETHODIMP get_Height(LONG* value) override;
    STDMETHODIMP put_Width(LONG value) override;
    STDMETHODIMP put_Height(LONG value) override;
    STDMETHODIMP CreateNew(LONG lRefX, LONG lRefY, LONG lWidth, LONG lHeight,
                           _CSymElementColl* SymElements) override;
    STDMETHODIMP Draw(LONG lLogX, LONG lLogY, double dAngle, IDispatch* ctrl, _CTrans* Trans,
                      double dSymPrinterFaktor, double dSymBSFaktor, LONG* lMarkColor) override;
    STDMETHODIMP DxfExport(LONG lLogX, LONG lLogY, double dAngle, LONG* lMarkColor) override;
    STDMETHODIMP CatchPt(float* x, float* y, LONG* XKoord, LONG* YKoord, LONG lLogX, LONG lLogY,
                         double dAngle, _CTrans* Trans, SHORT iFangbereich, VARIANT_BOOL* value) override;
    STDMETHODIMP Draw2PBox(IDispatch* PBox) override;
    STDMETHODIMP GetBoundingRect(LONG lLogX, LONG lLogY, double dAngle, _CRect** r) override;
    STDMETHODIMP GetSymElements(_CSymElementColl** value) override;
    STDMETHODIMP ObjIdentByPt(LONG lLogObjX, LONG lLogObjY, double dAngle, _CTrans* Trans, LONG lScreenIdentX,
                              LONG lScreenIdentY, VARIANT_BOOL* value) override;
    STDMETHODIMP ObjIdentByRect(LONG lLogObjX, LONG lLogObjY, double dAngle, _CTrans* Trans,
                                _CRect* ScreenIdentRect, VARIANT_BOOL* value) override;
    STDMETHODIMP ReadFromFile() override;
    STDMETHODIMP Write2File() override;
    STDMETHODIMP put_Etagenbreite(LONG value) override;
    STDMETHODIMP DxfExportSym(LONG lLogX, LONG lLogY, double dAngle, BSTR stFilename) override;
    STDMETHODIMP GetColor2ColNr(SHORT iColNr, VARIANT_BOOL bSymEdit, LONG* value) override;

private:
    /// The value for a change: a copy of its own while somebody else still holds the present one. A host's
    /// surface may call back into the symbol that is just being drawn on it.
    qsymbol::Symbol& Edit();
    void NoteChange();
    HRESULT QueryMore(REFIID iid, void** object) override;

    /// What an export without elements left open; closed by the next export or with the object.
    std::unique_ptr<base::File> openDxfFile_;
    std::shared_ptr<qsymbol::Symbol> symbol_ = std::make_shared<qsymbol::Symbol>();
    std::uint64_t edition_ = 0;
};
