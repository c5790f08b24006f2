#include "support/automation_test.h"
#include "support/type_description.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

/// The members of a published interface, slot by slot from the eighth on.
class InterfaceLayout : public support::AutomationTest {
protected:
    static std::vector<std::string> Layout(const wchar_t* name) {
        const auto library = support::RegisteredLibrary(LIBID_QSymbol, 4, 1);
        const auto type = library ? support::TypeNamed(library.Get(), name) : support::Ref<ITypeInfo>();
        const auto vtable = type ? support::VtableOf(type.Get()) : support::Ref<ITypeInfo>();
        return vtable ? support::Members(vtable.Get()) : std::vector<std::string>();
    }
};

TEST_F(InterfaceLayout, Symbol) {
    EXPECT_THAT(
        Layout(L"_CSymbol"),
        ElementsAre(
            "1 get FilePath() As BSTR", "1 let FilePath(BSTR)", "2 get Name() As BSTR",
            "3 get RefX() As long", "4 get RefY() As long", "5 get Width() As long", "6 get Height() As long",
            "5 let Width(long)", "6 let Height(long)",
            "7 CreateNew(long lRefX, long lRefY, long lWidth, long lHeight, _CSymElementColl SymElements)",
            "8 Draw(long lLogX, long lLogY, double dAngle, IDispatch ctrl, _CTrans Trans, double "
            "dSymPrinterFaktor, "
            "double dSymBSFaktor, ref long lMarkColor = -1)",
            "9 DxfExport(long lLogX, long lLogY, double dAngle, ref long lMarkColor = -1)",
            "10 CatchPt(ref float x, ref float y, ref long XKoord, ref long YKoord, long lLogX, long lLogY, "
            "double dAngle, _CTrans Trans, short iFangbereich) As bool",
            "11 Draw2PBox(IDispatch PBox)",
            "12 GetBoundingRect(long lLogX, long lLogY, double dAngle, ref _CRect r)",
            "13 GetSymElements() As _CSymElementColl",
            "14 ObjIdentByPt(long lLogObjX, long lLogObjY, double dAngle, _CTrans Trans, long lScreenIdentX, "
            "long lScreenIdentY) As bool",
            "15 ObjIdentByRect(long lLogObjX, long lLogObjY, double dAngle, _CTrans Trans, _CRect "
            "ScreenIdentRect) "
            "As bool",
            "16 ReadFromFile()", "17 Write2File()", "18 let Etagenbreite(long)",
            "19 DxfExportSym(long lLogX, long lLogY, double dAngle, BSTR stFilename)",
            "20 GetColor2ColNr(short iColNr, bool bSymEdit) As long"));
}

TEST_F(InterfaceLayout, Catalogue) {
    EXPECT_THAT(
        Layout(L"_CSymbolColl"),
        ElementsAre("1 get Count() As long", "0 get ItemByPos(long lPos) As _CSymbol",
                    "2 get ItemByIndex(BSTR stName) As _CSymbol", "-4 get NewEnum() As IUnknown restricted",
                    "3 Clear()", "4 ItemDa(BSTR stName) As bool", "5 Append(_CSymbol o)",
                    "6 AppendRef(ref _CSymbol o)", "7 RemoveOnPos(long lPos)", "8 RemoveOnIndex(BSTR stName)",
                    "9 ReadListe(BSTR stFolderPath, IDispatch collSym) As bool",
                    "10 ReadKatalog(BSTR stFolderPath)", "11 GetSymInput(BSTR stSymName) As _CSymInput",
                    "12 SelectSymNameDlg(BSTR stOldName) As BSTR"));
}

TEST_F(InterfaceLayout, Element) {
    EXPECT_THAT(Layout(L"_CSymElement"),
                ElementsAre("1 get Text() As BSTR", "1 let Text(BSTR)", "2 get PtList() As _CPtList",
                            "2 set PtList(_CPtList)", "3 get FillColor() As long", "3 let FillColor(long)",
                            "4 get MainColor() As long", "4 let MainColor(long)", "5 get Radius() As long",
                            "5 let Radius(long)", "6 get TxtAngle() As double", "6 let TxtAngle(double)",
                            "7 get TxtBkMode() As long", "7 let TxtBkMode(long)", "8 get TxtAlign() As long",
                            "8 let TxtAlign(long)", "9 get TxtFont() As IFontDisp",
                            "9 set TxtFont(IFontDisp)", "10 get LineWidth() As long",
                            "10 let LineWidth(long)", "11 get LineClosed() As bool",
                            "11 let LineClosed(bool)", "12 get ElementType() As SymElementTypeConstants",
                            "12 let ElementType(SymElementTypeConstants)", "13 Init()",
                            "14 CopyFrom(_CSymElement obj)", "15 Draw(IDispatch ctrl, _CTrans Trans)",
                            "16 DrawTracker(IDispatch ctrl, _CTrans Trans)",
                            "17 ObjIdentByPt(_CTrans Trans, long lScreenX, long lScreenY) As bool",
                            "18 ObjIdentByRect(_CTrans Trans, ref _CRect ScreenIdentRect) As bool",
                            "19 PtIdent(_CTrans Trans, long lScreenX, long lScreenY) As _CPt"));
}

TEST_F(InterfaceLayout, ElementCollection) {
    EXPECT_THAT(
        Layout(L"_CSymElementColl"),
        ElementsAre("1 get Count() As long", "0 get ItemByPos(long lPos) As _CSymElement",
                    "-4 get NewEnum() As IUnknown restricted", "2 Clear()", "3 AppendRef(ref _CSymElement o)",
                    "4 RemoveOnPos(long lPos)", "5 Draw(IDispatch ctrl, _CTrans Trans)",
                    "6 DrawTracker(IDispatch ctrl, _CTrans Trans)",
                    "7 ObjIdentByPt(_CTrans Trans, long lScreenX, long lScreenY) As _CSymElement",
                    "8 ObjIdentByRect(_CTrans Trans, ref _CRect ScreenIdentRect) As _CSymElementColl",
                    "9 PtIdent(_CTrans Trans, long lScreenX, long lScreenY, ref _CSymElement SymElem, "
                    "ref _CPt Pt) As bool"));
}

TEST_F(InterfaceLayout, SymbolInput) {
    EXPECT_THAT(Layout(L"_CSymInput"),
                ElementsAre("1 get Angle() As double", "1 let Angle(double)", "2 get PosX() As long",
                            "3 get PosY() As long", "4 get Ready() As bool",
                            "5 Draw(IDispatch pb, _CTrans Trans)",
                            "6 KeyUp(short iKeyCode, short iShift, IDispatch pb, _CTrans Trans)",
                            "7 MouseDown(float sScreenX, float sScreenY, IDispatch pb, _CTrans Trans)",
                            "8 MouseMove(float sScreenX, float sScreenY, IDispatch pb, _CTrans Trans)",
                            "9 SetOldLogPos(long lX, long lY)"));
}

TEST_F(InterfaceLayout, SymbolTool) {
    EXPECT_THAT(
        Layout(L"_CSymTool"),
        ElementsAre(
            "1 get Ready() As bool", "2 get SymRefCount() As long",
            "3 AddSymref(long lObjId, long lDeltaX, long lDeltaY, double dAngle, _CSymbol Sym)",
            "4 Draw(IDispatch pb, _CTrans Trans)", "5 GetObjIdByPos(long lPos) As long",
            "6 GetSymrefDataById(long lObjId, ref long lX, ref long lY, ref double dAngle)",
            "7 GetSymrefDataByPos(long lPos, ref long lObjId, ref long lX, ref long lY, ref double dAngle)",
            "8 KeyUp(short iKeyCode, short iShift, IDispatch pb, _CTrans Trans)",
            "9 MouseDown(float sX, float sY, IDispatch pb, _CTrans Trans)",
            "10 MouseDownReal(long lX, long lY, IDispatch pb, _CTrans Trans, ref bool bSymRelativ = 0)",
            "11 MouseMove(float sScreenX, float sScreenY, IDispatch pb, _CTrans Trans)",
            "12 SetMoveStartPos(long lX, long lY)"));
}

} // namespace
