#include "support/automation_test.h"
#include "support/message_boxes.h"
#include "support/number_settings.h"
#include "support/picture_box.h"

#include <oleauto.h>

// The other tests are worth what these tools are worth.

namespace {

using support::Box;
using support::MessageBoxes;

TEST(Harness, MessageBoxesAreSeenAndAnswered) {
    MessageBoxes boxes{IDNO, IDRETRY, IDOK};
    EXPECT_EQ(MessageBoxW(nullptr, L"Größe?", L"Titel", MB_YESNO), IDNO);
    EXPECT_EQ(MessageBoxW(nullptr, L"a\r\nb", L"Zwei", MB_ABORTRETRYIGNORE | MB_ICONERROR), IDRETRY);
    EXPECT_EQ(MessageBoxW(nullptr, L"c", L"Drei", MB_ICONINFORMATION), IDOK);
    ASSERT_EQ(boxes.Seen().size(), 3U);
    EXPECT_EQ(boxes.Seen()[0], (Box{L"Titel", L"Größe?", {IDYES, IDNO}, support::BoxIcon::None}));
    EXPECT_EQ(boxes.Seen()[1],
              (Box{L"Zwei", L"a\r\nb", {IDABORT, IDRETRY, IDIGNORE}, support::BoxIcon::Stop}));
    EXPECT_EQ(boxes.Seen()[2].icon, support::BoxIcon::Information);
}

double Parsed(std::wstring text) {
    double value = -1;
    EXPECT_OK(VarR8FromStr(text.data(), LOCALE_USER_DEFAULT, 0, &value));
    return value;
}

TEST(Harness, NumberSettingsActInTheRunningProcess) {
    const auto english = support::NumberSettings::English();
    EXPECT_EQ(Parsed(L"1.50"), 1.5);
    {
        const auto german = support::NumberSettings::German();
        EXPECT_EQ(Parsed(L"1,50"), 1.5);
        EXPECT_EQ(Parsed(L"1.50"), 150);
    }
    EXPECT_EQ(Parsed(L"1.50"), 1.5);
}

TEST(Harness, ThePictureBoxActsOnItsContext) {
    support::Canvas canvas(20, 20);
    const auto box = support::PictureBox::Create(canvas, L"Drucker", L"Printer");
    const support::Dispatch late(box);
    EXPECT_OK(late.Put(L"forecolor", 0x0000FF).status);
    EXPECT_OK(late.Put(L"DrawWidth", 3).status);
    MoveToEx(canvas.Dc(), 2, 10, nullptr);
    LineTo(canvas.Dc(), 18, 10);
    EXPECT_EQ(GetPixel(canvas.Dc(), 10, 9), 0x0000FFU);
    EXPECT_EQ(GetPixel(canvas.Dc(), 10, 11), 0x0000FFU);
    EXPECT_NE(GetPixel(canvas.Dc(), 10, 13), 0x0000FFU);
    EXPECT_EQ(late.Get(L"DrawWidth").value.Long(), 3);
    EXPECT_EQ(box->Log(),
              (std::vector<std::string>{"put ForeColor 255", "put DrawWidth 3", "get DrawWidth"}));
    box->Fail("put DrawWidth", {support::Numbered(1234), L"Form1", L"kaputt"});
    EXPECT_EQ(late.Put(L"DrawWidth", 1).failure,
              (support::Failure{support::Numbered(1234), L"Form1", L"kaputt"}));
    EXPECT_EQ(late.Get(L"Caption").status, DISP_E_UNKNOWNNAME);
}

TEST(Harness, ThePictureBoxDrawsALineInBothForms) {
    support::Canvas canvas(20, 20);
    const auto box = support::PictureBox::Create(canvas);
    box->SetProperty(L"ForeColor", 0x0000FF);
    const support::Dispatch late(box);
    const support::Value flags = static_cast<SHORT>(0);
    EXPECT_OK(late.Call(L"Line", {2.0F, 5.0F, 18.0F, 5.0F}).status);
    EXPECT_EQ(GetPixel(canvas.Dc(), 10, 5), 0x0000FFU);
    EXPECT_EQ(late.Call(L"Line", {flags, 2.0F, 9.0F, 18.0F, 9.0F, 0x0000FF}).status, DISP_E_BADPARAMCOUNT);
    EXPECT_NE(GetPixel(canvas.Dc(), 10, 9), 0x0000FFU);
    box->SetLineArguments(6);
    EXPECT_OK(late.Call(L"Line", {flags, 2.0F, 9.0F, 18.0F, 9.0F, 0x0000FF}).status);
    EXPECT_EQ(GetPixel(canvas.Dc(), 10, 9), 0x0000FFU);
    EXPECT_EQ(late.Call(L"Line", {2.0F, 5.0F, 18.0F, 5.0F}).status, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(box->Log().back(), "call Line 2 5 18 5");
}

TEST(Harness, ThePictureBoxHasATypeName) {
    support::Canvas canvas(2, 2);
    const auto box = support::PictureBox::Create(canvas, L"Drucker", L"Printer");
    support::Ref<ITypeInfo> type;
    ASSERT_OK(box->GetTypeInfo(0, 0, type.Put()));
    support::Bstr name;
    ASSERT_OK(type->GetDocumentation(MEMBERID_NIL, name.Put(), nullptr, nullptr, nullptr));
    EXPECT_EQ(name.Text(), L"Printer");
}

} // namespace
