#include "dialog/dialog_fixture.h"
#include "support/servers.h"

#include <optional>

/// The size of the selected symbol, in the user's unit and in the user's way of writing numbers.

namespace {

using namespace dialog;
using namespace support;

/// The unit factor that all components share, for as long as this object lives.
class UnitFactor {
public:
    explicit UnitFactor(double factor) {
        EXPECT_OK(settings_->get_UnitFactor(&before_));
        EXPECT_OK(settings_->put_UnitFactor(factor));
    }
    UnitFactor(const UnitFactor&) = delete;
    UnitFactor& operator=(const UnitFactor&) = delete;
    ~UnitFactor() { EXPECT_OK(settings_->put_UnitFactor(before_)); }

private:
    Ref<_CSettings> settings_ = Create<CSettings, _CSettings>();
    double before_ = 0;
};

class SizeLabels : public DialogTest {
protected:
    void ExpectSizes(LONG width, LONG height, const std::wstring& widthText, const std::wstring& heightText) {
        EXPECT_OK(catalogue->Clear());
        AddForeign(L"Fremd", width, height);
        user.Do([=](const SelectionDialog& dialog) {
            EXPECT_EQ(dialog.Text(kWidth), widthText);
            EXPECT_EQ(dialog.Text(kHeight), heightText);
        });
        user.Press(IDCANCEL);
        EXPECT_EQ(Choose(), L"");
    }

    MessageBoxes none;
};

TEST_F(SizeLabels, AreDividedByTheUnitFactor) {
    ExpectSizes(12345, 90000, L"123.45", L"900.00");
    const UnitFactor metres(100000);
    ExpectSizes(12345, 90000, L"0.12", L"0.90");
}

TEST_F(SizeLabels, HaveTheUsersDecimalSeparator) {
    const NumberSettings german = NumberSettings::German();
    ExpectSizes(123456789, 5, L"1234567,89", L"0,05");
}

TEST_F(SizeLabels, HalvesGoAwayFromZero) {
    const UnitFactor thousand(1000);
    ExpectSizes(1125, -1125, L"1.13", L"-1.13");
    ExpectSizes(1124, 0, L"1.12", L"0.00");
    ExpectSizes(-1, 4, L"0.00", L"0.00");
}

TEST_F(SizeLabels, TheWholeRange) {
    const UnitFactor hundredth(0.01);
    ExpectSizes(2147483647, -2147483647 - 1, L"214748364700.00", L"-214748364800.00");
}

TEST_F(SizeLabels, FollowTheHostsSettingsWhileTheDialogIsOpen) {
    Add({L"Bett", L"Tisch"});
    std::optional<UnitFactor> one;
    user.Do([&](const SelectionDialog& dialog) {
        EXPECT_EQ(dialog.Text(kWidth), L"20.00");
        one.emplace(1.0);
        dialog.Key(VK_DOWN);
    });
    user.Do([](const SelectionDialog& dialog) { EXPECT_EQ(dialog.Text(kWidth), L"2000.00"); });
    user.Press(IDCANCEL);
    EXPECT_EQ(Choose(), L"");
}

TEST_F(SizeLabels, NeedNoRegistrationOfTheOtherLibrary) {
    const UnitFactor ten(10);
    ASSERT_OK(QMathServer().Unregister());
    ExpectSizes(12345, 90000, L"1234.50", L"9000.00");
    EXPECT_OK(QMathServer().Register());
}

} // namespace
