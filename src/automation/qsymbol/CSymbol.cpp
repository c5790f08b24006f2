#include "automation/qsymbol/CSymbol.h"

#include "automation/objects/element_access.h"
#include "automation/objects/host_surface.h"
#include "automation/objects/host_transformation.h"
#include "automation/objects/math_objects.h"
#include "automation/qsymbol/CSymElement.h"
#include "automation/qsymbol/CSymElementColl.h"
#include "automation/qsymbol/last_factors.h"
#include "automation/qsymbol/library.h"
#include "automation/qsymbol/symbol_access.h"
#include "automation/qsymbol/symbol_value.h"
#include "automation/shared/library_values.h"
#include "automation/shared/point_access.h"
#include "com/bstr.h"
#include "platform/win32/gdi_text_measure.h"
#include "qsymbol/draw/bounds.h"
#include "qsymbol/draw/fitted_drawing.h"
#include "qsymbol/draw/hit_test.h"
#include "qsymbol/draw/snapping.h"
#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/export/colour_table.h"
#include "qsymbol/export/dxf_export.h"
#include "qsymbol/files/symbol_file.h"

#include <atomic>
#include <utility>

namespace {

std::atomic<std::uint64_t> g_lastEdition = 0;

/// The records of elements that make a symbol. Error 9 for an empty collection.
qsymbol::ElementList Records(_CSymElementColl& elements) {
    qsymbol::ElementList records = ToRecords(elements);
    if (records.empty())
        base::Raise(base::RunTimeError::SubscriptOutOfRange);
    return records;
}

/// Answers a question about a placed symbol in pixels. A symbol without elements is never hit, also when
/// there is no transformation.
template <class Question>
VARIANT_BOOL Ask(const qsymbol::Symbol& symbol, _CTrans* trans, Question&& question) {
    if (qsymbol::IsEmpty(symbol))
        return VARIANT_FALSE;
    return question(HostTransformation(com::Required(trans))) ? VARIANT_TRUE : VARIANT_FALSE;
}

} // namespace

CSymbol::CSymbol() {
    library::EnsureResources();
}

com::ComPtr<CSymbol> CSymbol::CreateFrom(qsymbol::Symbol&& symbol) {
    com::ComPtr<CSymbol> object = Create();
    *object->symbol_ = std::move(symbol);
    return object;
}

qsymbol::Symbol& CSymbol::Edit() {
    if (symbol_.use_count() > 1)
        symbol_ = std::make_shared<qsymbol::Symbol>(*symbol_);
    NoteChange();
    return *symbol_;
}

void CSymbol::NoteChange() {
    edition_ = ++g_lastEdition;
}

std::uint64_t CSymbol::LastEdition() {
    return g_lastEdition;
}

HRESULT CSymbol::QueryMore(REFIID iid, void** object) {
    if (iid != __uuidof(ISymbolValue))
        return E_NOINTERFACE;
    *object = NewSymbolValue(*this);
    return *object == nullptr ? E_OUTOFMEMORY : S_OK;
}

STDMETHODIMP CSymbol::get_FilePath(BSTR* value) {
    return Return(value, [&] { return com::NewBstr(symbol_->filePath); });
}

STDMETHODIMP CSymbol::put_FilePath(BSTR value) {
    return Do([&] { Edit().filePath = com::Text(value); });
}

STDMETHODIMP CSymbol::get_Name(BSTR* value) {
    return Return(value, [&] { return com::NewBstr(qsymbol::Name(*symbol_)); });
}

STDMETHODIMP CSymbol::get_RefX(LONG* value) {
    return Return(value, [&] { return symbol_->refX; });
}

STDMETHODIMP CSymbol::get_RefY(LONG* value) {
    return Return(value, [&] { return symbol_->refY; });
}

STDMETHODIMP CSymbol::get_Width(LONG* value) {
    return Return(value, [&] { return symbol_->width; });
}

STDMETHODIMP CSymbol::get_Height(LONG* value) {
    return Return(value, [&] { return symbol_->height; });
}

STDMETHODIMP CSymbol::put_Width(LONG value) {
    return Do([&] { Edit().width = value; });
}

STDMETHODIMP CSymbol::put_Height(LONG value) {
    return Do([&] { Edit().height = value; });
}

STDMETHODIMP CSymbol::CreateNew(LONG lRefX, LONG lRefY, LONG lWidth, LONG lHeight,
                                _CSymElementColl* SymElements) {
    return Do([&] {
        const com::ComPtr<_CSymElementColl> held(SymElements);
        Edit().refX = lRefX;
        Edit().refY = lRefY;
        Edit().width = lWidth;
        Edit().height = lHeight;
        // The records are complete before the old ones go: the elements are objects of the host and may fail.
        Edit().elements = SymElements == nullptr ? qsymbol::ElementList() : Records(*SymElements);
    });
}

STDMETHODIMP CSymbol::Draw(LONG lLogX, LONG lLogY, double dAngle, IDispatch* ctrl, _CTrans* Trans,
                           double dSymPrinterFaktor, double dSymBSFaktor, LONG* lMarkColor) {
    return Do([&] {
        const qsymbol::DrawFactors factors{.printer = dSymPrinterFaktor, .screen = dSymBSFaktor};
        last_factors::Keep(factors);
        if (ctrl == nullptr || Trans == nullptr)
            return;
        const std::shared_ptr<const qsymbol::Symbol> symbol = Value();
        const HostTransformation transformation(*Trans);
        HostSurface surface(*ctrl);
        qsymbol::DrawSymbol(*symbol, {.at = {lLogX, lLogY}, .angle = dAngle}, surface, transformation,
                            factors, lMarkColor == nullptr ? -1 : *lMarkColor);
    });
}

STDMETHODIMP CSymbol::DxfExport(LONG /*lLogX*/, LONG /*lLogY*/, double /*dAngle*/, LONG* /*lMarkColor*/) {
    return S_OK; // reserved
}

STDMETHODIMP CSymbol::CatchPt(float* x, float* y, LONG* XKoord, LONG* YKoord, LONG lLogX, LONG lLogY,
                              double dAngle, _CTrans* Trans, SHORT iFangbereich, VARIANT_BOOL* value) {
    return Return(value, [&] {
        float& cursorX = com::Out(x);
        float& cursorY = com::Out(y);
        LONG& worldX = com::Out(XKoord);
        LONG& worldY = com::Out(YKoord);
        const std::shared_ptr<const qsymbol::Symbol> symbol = Value();
        return Ask(*symbol, Trans, [&](const HostTransformation& transformation) {
            const auto caught =
                qsymbol::CatchPt(*symbol, {.at = {lLogX, lLogY}, .angle = dAngle}, last_factors::Screen(),
                                 transformation, cursorX, cursorY, iFangbereich);
            if (!caught)
                return false;
            cursorX = static_cast<float>(caught->screen.x);
            cursorY = static_cast<float>(caught->screen.y);
            worldX = caught->world.x;
            worldY = caught->world.y;
            return true;
        });
    });
}

STDMETHODIMP CSymbol::Draw2PBox(IDispatch* PBox) {
    return Do(library::ReportAndSwallow(u"CSymbol.Draw2PBox", [&] {
        if (PBox == nullptr)
            return;
        const com::ComPtr<IDispatch> held(PBox);
        const std::shared_ptr<const qsymbol::Symbol> symbol = Value();
        const double width = com::LateBoundMember(*PBox, L"ScaleWidth").GetDouble();
        const double height = com::LateBoundMember(*PBox, L"ScaleHeight").GetDouble();
        HostSurface surface(*PBox);
        last_factors::Keep(qsymbol::kUnscaled);
        const platform::GdiTextMeasure texts;
        qsymbol::DrawFitted(*symbol, surface, width, height, &texts);
    }));
}

STDMETHODIMP CSymbol::GetBoundingRect(LONG lLogX, LONG lLogY, double dAngle, _CRect** r) {
    return Do([&] {
        _CRect*& place = com::Out(r);
        const qmath::Rect bounds = qsymbol::GetBoundingRect(*symbol_, {.at = {lLogX, lLogY}, .angle = dAngle},
                                                            last_factors::Screen());
        com::ComPtr<_CRect> rect = math_objects::NewRect(bounds);
        const com::ComPtr<_CRect> old = com::ComPtr<_CRect>::Attach(std::exchange(place, rect.Detach()));
    });
}

STDMETHODIMP CSymbol::GetSymElements(_CSymElementColl** value) {
    return Return(value, [&] {
        const std::shared_ptr<const qsymbol::Symbol> symbol = Value();
        com::ComPtr<CSymElementColl> elements = CSymElementColl::Create();
        for (const qsymbol::ElementRecord& record : symbol->elements)
            elements->Append(com::ComPtr<_CSymElement>(CSymElement::CreateFrom(record).Get()));
        return elements.Detach();
    });
}

STDMETHODIMP CSymbol::ObjIdentByPt(LONG lLogObjX, LONG lLogObjY, double dAngle, _CTrans* Trans,
                                   LONG lScreenIdentX, LONG lScreenIdentY, VARIANT_BOOL* value) {
    return Return(value, [&] {
        const std::shared_ptr<const qsymbol::Symbol> symbol = Value();
        return Ask(*symbol, Trans, [&](const HostTransformation& transformation) {
            return qsymbol::ObjIdentByPt(*symbol, {.at = {lLogObjX, lLogObjY}, .angle = dAngle},
                                         last_factors::Screen(), transformation,
                                         {lScreenIdentX, lScreenIdentY});
        });
    });
}

STDMETHODIMP CSymbol::ObjIdentByRect(LONG lLogObjX, LONG lLogObjY, double dAngle, _CTrans* Trans,
                                     _CRect* ScreenIdentRect, VARIANT_BOOL* value) {
    return Return(value, [&] {
        const std::shared_ptr<const qsymbol::Symbol> symbol = Value();
        const com::ComPtr<_CRect> held(ScreenIdentRect);
        return Ask(*symbol, Trans, [&](const HostTransformation& transformation) {
            return qsymbol::ObjIdentByRect(*symbol, {.at = {lLogObjX, lLogObjY}, .angle = dAngle},
                                           last_factors::Screen(), transformation, GetRect(ScreenIdentRect));
        });
    });
}

STDMETHODIMP CSymbol::ReadFromFile() {
    return Do([&] {
        Edit();
        const std::shared_ptr<qsymbol::Symbol> target =
            symbol_; // held: a notice lets the host's messages through
        try {
            qsymbol::ReadFromFile(*target, library::FileEnvironmentNow());
        } catch (...) {
            symbol_ = target;
            NoteChange(); // who looked meanwhile saw a part of it
            throw;
        }
        symbol_ = target;
        NoteChange();
    });
}

STDMETHODIMP CSymbol::Write2File() {
    return Do([&] {
        // Held, because the overwrite question lets the host's window messages through.
        const std::shared_ptr<const qsymbol::Symbol> symbol = Value();
        qsymbol::Write2File(*symbol, library::FileEnvironmentNow());
    });
}

STDMETHODIMP CSymbol::put_Etagenbreite(LONG value) {
    return Do(
        library::ReportAndSwallow(u"CDrawGebObjColl.Etagenbreite", [&] { Edit().etagenbreite = value; }));
}

STDMETHODIMP CSymbol::DxfExportSym(LONG lLogX, LONG lLogY, double dAngle, BSTR stFilename) {
    return Do([&] {
        openDxfFile_.reset();
        openDxfFile_ = qsymbol::AppendToDxfFile(*symbol_, {.at = {lLogX, lLogY}, .angle = dAngle},
                                                last_factors::Screen(), com::Text(stFilename),
                                                library::Files(), library::CodePage());
    });
}

STDMETHODIMP CSymbol::GetColor2ColNr(SHORT iColNr, VARIANT_BOOL bSymEdit, LONG* value) {
    return Return(value, [&] {
        return qsymbol::ColourOfNumber(iColNr, bSymEdit != VARIANT_FALSE ? qsymbol::ColourUse::SymbolEditor
                                                                         : qsymbol::ColourUse::Plan);
    });
}
