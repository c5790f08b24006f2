#include "support/automation_test.h"
#include "support/type_description.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

/// The members of the geometry interfaces, slot by slot from the eighth on.
class QMathLayout : public support::AutomationTest {
protected:
    static std::vector<std::string> Layout(const wchar_t* name) {
        const auto library = support::RegisteredLibrary(
            {0x921c6a60, 0xaf38, 0x4f8e, {0xb4, 0x38, 0x0b, 0x5c, 0x3c, 0x9b, 0x43, 0x14}}, 1, 0);
        const auto type = library ? support::TypeNamed(library.Get(), name) : support::Ref<ITypeInfo>();
        const auto vtable = type ? support::VtableOf(type.Get()) : support::Ref<ITypeInfo>();
        return vtable ? support::Members(vtable.Get()) : std::vector<std::string>();
    }
};

TEST_F(QMathLayout, Transformation) {
    EXPECT_THAT(Layout(L"_CTrans"),
                ElementsAre("1 SetScale(double Scale)", "2 SetOffsetX(long value)",
                            "3 SetOffsetY(long value)", "4 WorldToScreen(ref long X, ref long Y)",
                            "5 PtWorldToScreen(ref _CPt pt)", "6 LengthToScreen(ref long length)",
                            "7 FontSizeToScreen(double factor, short size) As long",
                            "8 PtScreenToWorld(ref _CPt pt)", "9 get Scale() As double",
                            "10 get OffsetX() As long", "11 get OffsetY() As long"));
}

TEST_F(QMathLayout, PointAndList) {
    EXPECT_THAT(Layout(L"_CPt"),
                ElementsAre("1 get X() As long", "1 let X(long)", "2 get Y() As long", "2 let Y(long)"));
    EXPECT_THAT(Layout(L"_CPtList"),
                ElementsAre("1 get Count() As long", "-4 get NewEnum() As IUnknown restricted",
                            "0 get Item(long index) As _CPt", "2 AddPoint(_CPt pt)",
                            "3 CopyPoints(_CPtList list)", "4 Clear()"));
}

TEST_F(QMathLayout, RectangleAndPolygon) {
    EXPECT_THAT(Layout(L"_CRect"),
                ElementsAre("1 get Left() As long", "1 let Left(long)", "2 get Top() As long",
                            "2 let Top(long)", "3 get Right() As long", "3 let Right(long)",
                            "4 get Bottom() As long", "4 let Bottom(long)"));
    EXPECT_THAT(Layout(L"_CPolygon"),
                ElementsAre("1 SetPoints(_CPtList list)", "2 PtInside(long X, long Y) As bool",
                            "3 RectTouches(long Left, long Top, long Right, long Bottom) As bool"));
}

TEST_F(QMathLayout, Matrix) {
    EXPECT_THAT(Layout(L"_CMatrix"),
                ElementsAre("1 Reset()", "2 Rotate(double sine, double cosine)",
                            "3 Scale(double sx, double sy)", "4 Translate(double dx, double dy)",
                            "5 ApplyX(double X, double Y) As double",
                            "6 ApplyY(double X, double Y) As double"));
}

TEST_F(QMathLayout, Utilities) {
    EXPECT_THAT(Layout(L"_CMathUtil"),
                ElementsAre("1 RoundToLong(double value) As long", "2 RadToDeg(double angle) As double",
                            "3 MaxLong() As long", "4 DegToRad(double angle) As double", "5 Pi() As double",
                            "6 NormalizeAngle(double angle) As double",
                            "7 VectorAngle(double dx, double dy) As double",
                            "8 Distance(_CPt pt1, _CPt pt2) As double",
                            "9 RotatePoint(ref double X, ref double Y, double angle)"));
    EXPECT_THAT(Layout(L"_CStrUtil"),
                ElementsAre("1 TokenCount(BSTR line, BSTR separator) As long",
                            "2 GetToken(BSTR line, BSTR separator, long index) As BSTR",
                            "3 GetExtension(BSTR path) As BSTR", "4 GetFileName(BSTR path) As BSTR",
                            "5 GetName(BSTR fileName) As BSTR",
                            "6 GetField(BSTR text, BSTR separator, long number) As BSTR"));
    EXPECT_THAT(
        Layout(L"_CFontSelector"),
        ElementsAre("1 SelectFont(BSTR surfaceKind, long hDC, long height, long escapement, bool bold, "
                    "bool italic, bool underline, bool strikethrough, BSTR name)",
                    "2 ReleaseFont()"));
    EXPECT_THAT(Layout(L"_CSettings"),
                ElementsAre("1 get UnitFactor() As double", "1 let UnitFactor(double)"));
}

} // namespace
