#include "support/automation_test.h"
#include "support/shapes.h"

#include <cmath>
#include <limits>

namespace {

using support::Bstr;
using support::Outcome;
using support::Ref;
using support::RunTimeError;

constexpr double kPi = 3.14159265358979323846;

class MathUtil : public support::AutomationTest {
protected:
    Ref<_CMathUtil> math = support::Create<CMathUtil, _CMathUtil>();

    LONG Round(double value) const {
        LONG result = 0;
        EXPECT_OK(math->RoundToLong(value, &result));
        return result;
    }
    double Normalize(double value) const {
        double result = -1;
        EXPECT_OK(math->NormalizeAngle(value, &result));
        return result;
    }
    double Direction(double dx, double dy) const {
        double result = -1;
        EXPECT_OK(math->VectorAngle(dx, dy, &result));
        return result;
    }
};

TEST_F(MathUtil, RoundsHalvesToEven) {
    EXPECT_EQ(Round(76.5), 76);
    EXPECT_EQ(Round(77.5), 78);
    EXPECT_EQ(Round(-0.5), 0);
    EXPECT_EQ(Round(-1.5), -2);
    EXPECT_EQ(Round(2.4999999999999996), 2);
    EXPECT_EQ(Round(0.50000000000000011), 1);
    EXPECT_EQ(Round(2147483647.4), 2147483647);
    EXPECT_EQ(Round(-2147483648.5), std::numeric_limits<LONG>::min());
}

TEST_F(MathUtil, RoundingOverflows) {
    for (const double value : {2147483647.5, -2147483648.6, 1e300, -1e300, HUGE_VAL, std::nan("")}) {
        LONG result = 5;
        EXPECT_EQ(Outcome(math->RoundToLong(value, &result)), RunTimeError(6, L"QMath")) << value;
        EXPECT_EQ(result, 0) << "a result's place is emptied first";
    }
}

TEST_F(MathUtil, ConvertsAnglesPlainly) {
    double value = 0;
    EXPECT_OK(math->RadToDeg(5 * kPi, &value));
    EXPECT_DOUBLE_EQ(value, 900) << "not brought into one turn";
    EXPECT_OK(math->DegToRad(-540, &value));
    EXPECT_DOUBLE_EQ(value, -3 * kPi);
}

TEST_F(MathUtil, HasItsConstants) {
    double pi = 0;
    LONG highest = 0;
    EXPECT_OK(math->Pi(&pi));
    EXPECT_OK(math->MaxLong(&highest));
    EXPECT_EQ(pi, kPi);
    EXPECT_EQ(highest, 2147483647);
}

TEST_F(MathUtil, NormalizesIntoOneTurn) {
    EXPECT_EQ(Normalize(0), 0);
    EXPECT_NEAR(Normalize(2 * kPi), 0, 1e-15);
    EXPECT_NEAR(Normalize(-kPi / 2), 1.5 * kPi, 1e-15);
    EXPECT_NEAR(Normalize(7 * kPi), kPi, 1e-14);
    EXPECT_EQ(Normalize(-1e-20), 0) << "never a full turn";
    EXPECT_FALSE(std::signbit(Normalize(-0.0)));
    double result = 0;
    EXPECT_EQ(Outcome(math->NormalizeAngle(HUGE_VAL, &result)), RunTimeError(5, L"QMath"));
}

TEST_F(MathUtil, DirectionsOfVectors) {
    EXPECT_EQ(Direction(1, 0), 0);
    EXPECT_NEAR(Direction(0, 5), kPi / 2, 1e-15);
    EXPECT_NEAR(Direction(-3, 0), kPi, 1e-15);
    EXPECT_NEAR(Direction(1, -1), 1.75 * kPi, 1e-15);
    EXPECT_EQ(Direction(0, 0), 0);
}

TEST_F(MathUtil, Distances) {
    double result = 0;
    EXPECT_OK(math->Distance(support::NewPt(1, 2).Get(), support::NewPt(4, 6).Get(), &result));
    EXPECT_EQ(result, 5);
    constexpr LONG kHighest = std::numeric_limits<LONG>::max();
    constexpr LONG kLowest = std::numeric_limits<LONG>::min();
    EXPECT_OK(math->Distance(support::NewPt(kLowest, 0).Get(), support::NewPt(kHighest, 0).Get(), &result));
    EXPECT_EQ(result, 4294967295.0);
    EXPECT_EQ(Outcome(math->Distance(nullptr, support::NewPt(0, 0).Get(), &result)),
              RunTimeError(91, L"QMath"));
}

TEST_F(MathUtil, TurnsAVector) {
    double x = 3;
    double y = 4;
    EXPECT_OK(math->RotatePoint(&x, &y, kPi / 2));
    EXPECT_NEAR(x, -4, 1e-15);
    EXPECT_NEAR(y, 3, 1e-15);
    EXPECT_EQ(Outcome(math->RotatePoint(&x, nullptr, 1)).status, E_POINTER);
}

class Matrix : public support::AutomationTest {
protected:
    Ref<_CMatrix> matrix = support::Create<CMatrix, _CMatrix>();

    void ExpectMaps(double x, double y, double toX, double toY) const {
        double gotX = 0;
        double gotY = 0;
        EXPECT_OK(matrix->ApplyX(x, y, &gotX));
        EXPECT_OK(matrix->ApplyY(x, y, &gotY));
        EXPECT_DOUBLE_EQ(gotX, toX);
        EXPECT_DOUBLE_EQ(gotY, toY);
    }
};

TEST_F(Matrix, StartsAsTheIdentity) {
    ExpectMaps(3, -4, 3, -4);
}

TEST_F(Matrix, OperationsActInCallOrder) {
    EXPECT_OK(matrix->Translate(10, 20));
    EXPECT_OK(matrix->Scale(2, 3));
    ExpectMaps(1, 1, 22, 63);
    EXPECT_OK(matrix->Reset());
    EXPECT_OK(matrix->Scale(2, 3));
    EXPECT_OK(matrix->Translate(10, 20));
    ExpectMaps(1, 1, 12, 23);
}

TEST_F(Matrix, TurnsFromXTowardsY) {
    EXPECT_OK(matrix->Rotate(1, 0)); // a quarter turn
    ExpectMaps(1, 0, 0, 1);
    ExpectMaps(0, 1, -1, 0);
    EXPECT_OK(matrix->Translate(5, 0));
    EXPECT_OK(matrix->Rotate(1, 0));
    ExpectMaps(1, 0, -1, 5);
    EXPECT_OK(matrix->Reset());
    ExpectMaps(7, 8, 7, 8);
}

class StrUtil : public support::AutomationTest {
protected:
    Ref<_CStrUtil> text = support::Create<CStrUtil, _CStrUtil>();

    LONG Count(const wchar_t* line, const wchar_t* separator) const {
        LONG count = -1;
        EXPECT_OK(text->TokenCount(Bstr(line), Bstr(separator), &count));
        return count;
    }
    std::wstring Token(const wchar_t* line, const wchar_t* separator, LONG index) const {
        Bstr token;
        EXPECT_OK(text->GetToken(Bstr(line), Bstr(separator), index, token.Put()));
        Bstr field;
        EXPECT_OK(text->GetField(Bstr(line), Bstr(separator), index, field.Put()));
        EXPECT_EQ(field.Text(), token.Text());
        return token.Text();
    }
    using PartOf = HRESULT (STDMETHODCALLTYPE _CStrUtil::*)(BSTR, BSTR*);
    std::wstring Part(PartOf part, const wchar_t* path) const {
        Bstr result;
        EXPECT_OK((text.Get()->*part)(Bstr(path), result.Put()));
        return result.Text();
    }
};

TEST_F(StrUtil, CountsAndTakesFields) {
    EXPECT_EQ(Count(L"a;b;c", L";"), 3);
    EXPECT_EQ(Count(L"", L";"), 1);
    EXPECT_EQ(Count(L"a;", L";"), 2);
    EXPECT_EQ(Count(L"a::b", L"::"), 2);
    EXPECT_EQ(Token(L"a;b;c", L";", 1), L"a");
    EXPECT_EQ(Token(L"a;;c", L";", 2), L"");
    EXPECT_EQ(Token(L"a;b;c", L";", 3), L"c");
    EXPECT_EQ(Token(L"a;b;c", L";", 4), L"") << "missing";
    EXPECT_EQ(Token(L"a;b;c", L";", 0), L"");
    EXPECT_EQ(Token(L"a;b;c", L";", -1), L"");
}

TEST_F(StrUtil, TakesPathsApart) {
    EXPECT_EQ(Part(&_CStrUtil::GetExtension, L"C:\\plan.alt\\Tür links.syb"), L"syb");
    EXPECT_EQ(Part(&_CStrUtil::GetExtension, L"C:\\plan.alt\\tuer"), L"")
        << "the folder's dot is no extension";
    EXPECT_EQ(Part(&_CStrUtil::GetExtension, L"a.b.SYT"), L"SYT");
    EXPECT_EQ(Part(&_CStrUtil::GetExtension, L""), L"");
    EXPECT_EQ(Part(&_CStrUtil::GetFileName, L"C:\\plan\\Tür links.syb"), L"Tür links.syb");
    EXPECT_EQ(Part(&_CStrUtil::GetFileName, L"C:tuer.syb"), L"tuer.syb");
    EXPECT_EQ(Part(&_CStrUtil::GetFileName, L"plan/tuer.syb"), L"tuer.syb");
    EXPECT_EQ(Part(&_CStrUtil::GetName, L"Tür links.syb"), L"Tür links");
    EXPECT_EQ(Part(&_CStrUtil::GetName, L"a.b.syb"), L"a.b");
    EXPECT_EQ(Part(&_CStrUtil::GetName, L"ohne"), L"ohne");
}

TEST_F(StrUtil, ANullTextIsEmpty) {
    LONG count = 0;
    EXPECT_OK(text->TokenCount(nullptr, nullptr, &count));
    EXPECT_EQ(count, 1);
    EXPECT_EQ(Outcome(text->GetExtension(nullptr, nullptr)).status, E_POINTER);
}

class Settings : public support::AutomationTest {};

TEST_F(Settings, ShareOneUnitFactor) {
    const auto settings = support::Create<CSettings, _CSettings>();
    const auto other = support::Create<CSettings, _CSettings>();
    double factor = 0;
    EXPECT_OK(settings->get_UnitFactor(&factor));
    EXPECT_EQ(factor, 100);
    EXPECT_OK(settings->put_UnitFactor(25.4));
    EXPECT_OK(other->get_UnitFactor(&factor));
    EXPECT_EQ(factor, 25.4);
    for (const double wrong : {0.0, -1.0, HUGE_VAL, std::nan("")})
        EXPECT_EQ(Outcome(settings->put_UnitFactor(wrong)), RunTimeError(5, L"QMath"));
    EXPECT_OK(other->get_UnitFactor(&factor));
    EXPECT_EQ(factor, 25.4);
    EXPECT_OK(settings->put_UnitFactor(100));
}

} // namespace
