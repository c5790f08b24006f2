#include "support/automation_test.h"
#include "support/type_description.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

/// The members of the interfaces of plans, slot by slot from the eighth on.
class QPlanLayout : public support::AutomationTest {
protected:
    static std::vector<std::string> Layout(const wchar_t* name) {
        const auto library = support::RegisteredLibrary(LIBID_QPlan, 1, 0);
        const auto type = library ? support::TypeNamed(library.Get(), name) : support::Ref<ITypeInfo>();
        const auto vtable = type ? support::VtableOf(type.Get()) : support::Ref<ITypeInfo>();
        return vtable ? support::Members(vtable.Get()) : std::vector<std::string>();
    }
};

TEST_F(QPlanLayout, Picture) {
    EXPECT_THAT(
        Layout(L"_CPicture"),
        ElementsAre("1 Create(long lWidth, long lHeight, long lBackColor = 16777215)", "2 get hDC() As long",
                    "3 get ScaleWidth() As float", "4 get ScaleHeight() As float", "5 get Name() As BSTR",
                    "5 let Name(BSTR)", "6 get DrawMode() As long", "6 let DrawMode(long)",
                    "7 get ForeColor() As long", "7 let ForeColor(long)", "8 get FillColor() As long",
                    "8 let FillColor(long)", "9 get FillStyle() As long", "9 let FillStyle(long)",
                    "10 get DrawStyle() As long", "10 let DrawStyle(long)", "11 get DrawWidth() As long",
                    "11 let DrawWidth(long)", "12 Line(float sX1, float sY1, float sX2, float sY2)",
                    "13 Clear()", "14 get Pixel(long lX, long lY) As long",
                    "15 get Picture() As IPictureDisp", "16 Write2File(BSTR stFilename)"));
}

TEST_F(QPlanLayout, PlacedSymbols) {
    EXPECT_THAT(Layout(L"_CPlacement"),
                ElementsAre("1 get Id() As long", "2 get SymbolName() As BSTR", "3 get Symbol() As _CSymbol",
                            "4 get LogX() As long", "4 let LogX(long)", "5 get LogY() As long",
                            "5 let LogY(long)", "6 get Angle() As double", "6 let Angle(double)"));
    EXPECT_THAT(Layout(L"_CPlacementColl"),
                ElementsAre("1 get Count() As long", "0 get ItemByPos(long lPos) As _CPlacement",
                            "-4 get NewEnum() As IUnknown restricted"));
}

TEST_F(QPlanLayout, Plan) {
    EXPECT_THAT(
        Layout(L"_CPlan"),
        ElementsAre("1 get Symbols() As _CSymbolColl", "1 set Symbols(_CSymbolColl)", "2 get Count() As long",
                    "0 get ItemByPos(long lPos) As _CPlacement", "3 get ItemById(long lId) As _CPlacement",
                    "-4 get NewEnum() As IUnknown restricted", "4 Clear()",
                    "5 Add(BSTR stSymName, long lLogX, long lLogY, double dAngle) As _CPlacement",
                    "6 RemoveById(long lId)", "7 Extent(ref _CRect r) As bool",
                    "8 Draw(IDispatch ctrl, _CTrans Trans)",
                    "9 HitTest(_CTrans Trans, long lScreenX, long lScreenY) As _CPlacement",
                    "10 HitRect(_CTrans Trans, _CRect ScreenRect) As _CPlacementColl",
                    "11 CatchPt(ref float x, ref float y, ref long XKoord, ref long YKoord, _CTrans Trans, "
                    "short iFangbereich) As bool",
                    "12 ReadFromFile(BSTR stFilename)", "13 Write2File(BSTR stFilename)",
                    "14 WriteDxf(BSTR stFilename, PlanUnitConstants eUnits = 0)",
                    "15 WriteSvg(BSTR stFilename)", "16 WritePicture(BSTR stFilename, long lWidth)"));
}

} // namespace
