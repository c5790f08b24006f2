#include "drawing/drawing_fixture.h"
#include "support/handle_count.h"
#include "support/import_patch.h"
#include "support/jpeg_picture.h"
#include "support/temp_folder.h"
#include "support/text.h"

#include <gmock/gmock.h>
#include <olectl.h>

/// CPicture: a surface that hosts without windows can make.

namespace {

using support::Bstr;
using support::Canvas;
using support::Dispatch;
using support::Outcome;
using support::Ref;
using support::Value;

support::Failure Error(int number) {
    return support::RunTimeError(number, L"QPlan");
}

const std::vector<support::ElementSpec> kElements = {
    {.type = symPoly,
     .points = {{0, 0}, {90, 5}, {70, 90}},
     .lineWidth = 4,
     .closed = true,
     .fillColor = 0x00AAFF},
    {.type = symPoly, .points = {{5, 80}, {60, 10}}, .mainColor = 0xFF},
    {.type = symArc, .points = {{40, 40}, {70, 40}, {40, 10}}, .mainColor = 0xAA0000, .radius = 30},
    {.type = symText,
     .points = {{5, 6}},
     .mainColor = 0x123456,
     .text = L"Tür",
     .font = support::FontSpec{.size = 14}}};

class Picture : public support::AutomationTest {
protected:
    static constexpr int kWidth = 121; // rows that need padding
    static constexpr int kHeight = 97;

    static HDC DcOf(const Ref<_CPicture>& picture) {
        LONG handle = 0;
        EXPECT_OK(picture->get_hDC(&handle));
        return reinterpret_cast<HDC>(static_cast<LONG_PTR>(handle));
    }
    static Ref<_CPicture> NewPicture(LONG background = 0xFFFFFF) {
        Ref<_CPicture> picture = support::Create<CPicture, _CPicture>();
        EXPECT_OK(picture->Create(kWidth, kHeight, background));
        return picture;
    }
    static void DrawOn(IDispatch* surface) {
        LONG noMark = -1;
        const auto symbol = support::NewSymbol(10, 20, 90, 90, kElements);
        EXPECT_OK(symbol->Draw(20, 30, 0.2, surface, support::NewTrans().Get(), 1, 1, &noMark));
    }
    /// The picture on a canvas of its size.
    static void Show(const Ref<_CPicture>& picture, Canvas& canvas) {
        BitBlt(canvas.Dc(), 0, 0, kWidth, kHeight, DcOf(picture), 0, 0, SRCCOPY);
    }
    static std::vector<std::uint32_t> PixelsOf(const Ref<_CPicture>& picture) {
        Canvas canvas(kWidth, kHeight);
        Show(picture, canvas);
        std::vector<std::uint32_t> pixels = canvas.Pixels();
        for (std::uint32_t& pixel : pixels)
            pixel &= 0xFFFFFF;
        return pixels;
    }

    support::TempFolder folder;
};

TEST_F(Picture, HasNothingBeforeItIsMade) {
    const Dispatch picture = Dispatch::Create(L"QPlan.CPicture");
    ASSERT_TRUE(picture);
    for (const wchar_t* name : {L"hDC", L"ScaleWidth", L"ScaleHeight", L"Name", L"DrawMode", L"ForeColor",
                                L"FillColor", L"FillStyle", L"DrawStyle", L"DrawWidth", L"Picture"})
        EXPECT_EQ(picture.Get(name).failure, Error(91)) << support::Narrow(name);
    for (const wchar_t* name :
         {L"DrawMode", L"ForeColor", L"FillColor", L"FillStyle", L"DrawStyle", L"DrawWidth", L"Name"})
        EXPECT_EQ(picture.Put(name, 1).failure, Error(91)) << support::Narrow(name);
    EXPECT_EQ(picture.Get(L"Pixel", {0, 0}).failure, Error(91));
    EXPECT_EQ(picture.Call(L"Line", {0, 0, 1, 1}).failure, Error(91));
    EXPECT_EQ(picture.Call(L"Clear").failure, Error(91));
    EXPECT_EQ(picture.Call(L"Write2File", {folder / L"a.png"}).failure, Error(91));
    EXPECT_TRUE(folder.Files().empty());
}

TEST_F(Picture, IsMadeInItsColour) {
    const Dispatch picture = Dispatch::Create(L"QPlan.CPicture");
    ASSERT_OK(picture.Call(L"Create", {7, 5}).status);
    EXPECT_EQ(picture.Get(L"ScaleWidth").value.Single(), 7);
    EXPECT_EQ(picture.Get(L"ScaleHeight").value.Single(), 5);
    EXPECT_EQ(picture.Get(L"Pixel", {6, 4}).value.Long(), 0xFFFFFF) << "white without the argument";
    for (const auto& [x, y] : {std::pair{7, 0}, {0, 5}, {-1, 0}, {0, -1}})
        EXPECT_EQ(picture.Get(L"Pixel", {x, y}).value.Long(), -1) << x << " " << y;
    ASSERT_OK(picture.Call(L"Create", {3, 4}, {{L"lBackColor", 0x332211}}).status);
    EXPECT_EQ(picture.Get(L"ScaleWidth").value.Single(), 3);
    EXPECT_EQ(picture.Get(L"Pixel", {1, 1}).value.Long(), 0x332211);
    EXPECT_OK(picture.Call(L"Line", {0, 1, 3, 1}).status);
    EXPECT_EQ(picture.Get(L"Pixel", {1, 1}).value.Long(), 0);
    EXPECT_OK(picture.Call(L"Clear").status);
    EXPECT_EQ(picture.Get(L"Pixel", {1, 1}).value.Long(), 0x332211);
    const std::pair<std::vector<Value>, int> refused[] = {
        {{0, 5}, 5}, {{5, -1}, 5}, {{5, 5, 0x05000000}, 5}, {{100000, 100000}, 7}, {{0x7FFFFFFF, 1}, 7}};
    for (const auto& [arguments, number] : refused)
        EXPECT_EQ(picture.Call(L"Create", arguments).failure, Error(number));
    EXPECT_EQ(picture.Get(L"ScaleWidth").value.Single(), 3) << "the picture before is still there";
}

TEST_F(Picture, HasThePropertiesOfAPictureBox) {
    const Dispatch picture(NewPicture());
    struct Property {
        const wchar_t* name;
        LONG start, other;
        std::vector<LONG> refused;
    };
    const Property kProperties[] = {{L"DrawMode", 13, 6, {0, 17}}, {L"ForeColor", 0, 0xFF00FF, {}},
                                    {L"FillColor", 0, 0x1234, {}}, {L"FillStyle", 1, 7, {-1, 8}},
                                    {L"DrawStyle", 0, 6, {-1, 7}}, {L"DrawWidth", 1, 30, {0, 0x8000}}};
    for (const Property& property : kProperties) {
        SCOPED_TRACE(support::Narrow(property.name));
        EXPECT_EQ(picture.Get(property.name).value.Long(), property.start);
        EXPECT_OK(picture.Put(property.name, property.other).status);
        EXPECT_EQ(picture.Get(property.name).value.Long(), property.other);
        for (const LONG value : property.refused)
            EXPECT_EQ(picture.Put(property.name, value).failure, Error(5)) << value;
        EXPECT_EQ(picture.Get(property.name).value.Long(), property.other);
    }
    EXPECT_EQ(picture.Get(L"Name").value.Text(), L"CPicture");
    EXPECT_OK(picture.Put(L"Name", L"GraphicBox").status);
    EXPECT_EQ(picture.Get(L"Name").value.Text(), L"GraphicBox");
}

TEST_F(Picture, ShowsWhatAPictureBoxShows) {
    struct Style {
        LONG mode, style, width, fill;
    };
    for (const Style& style :
         {Style{13, 0, 1, 1}, {13, 2, 1, 0}, {7, 6, 9, 4}, {6, 5, 1, 0}, {13, 1, 3, 3}}) {
        const Ref<_CPicture> picture = NewPicture();
        Canvas expected(kWidth, kHeight);
        Canvas drawn(kWidth, kHeight);
        PatBlt(expected.Dc(), 0, 0, kWidth, kHeight, WHITENESS);
        const Ref<support::PictureBox> box = support::PictureBox::Create(expected);
        for (const auto& [surface, dc] :
             {std::pair<IDispatch*, HDC>{box.Get(), expected.Dc()}, {picture.Get(), DcOf(picture)}}) {
            const Dispatch late(surface);
            EXPECT_OK(late.Put(L"DrawMode", style.mode).status);
            EXPECT_OK(late.Put(L"DrawStyle", style.style).status);
            EXPECT_OK(late.Put(L"DrawWidth", style.width).status);
            EXPECT_OK(late.Put(L"FillStyle", style.fill).status);
            EXPECT_OK(late.Put(L"FillColor", 0x0080FF).status);
            EXPECT_OK(late.Put(L"ForeColor", 0xC00030).status);
            Rectangle(dc, 60, 50, 110, 90);
            EXPECT_OK(late.Call(L"Line", {2.0f, 3.0f, 118.0f, 64.0f}).status);
            DrawOn(surface);
        }
        Show(picture, drawn);
        EXPECT_TRUE(support::SamePicture(drawn, expected)) << style.mode << " " << style.style;
    }
}

TEST_F(Picture, ServesPreviewsAndPlacingTools) {
    const Ref<_CPicture> picture = NewPicture();
    const auto symbol = support::NewSymbol(0, 0, 1210, 970, kElements);
    EXPECT_OK(symbol->Draw2PBox(picture.Get()));
    LONG colour = 0;
    EXPECT_OK(picture->get_Pixel(5, 3, &colour));
    EXPECT_EQ(colour, 0x00AAFF);
    EXPECT_OK(picture->Clear());
    const auto blank = PixelsOf(picture);
    const auto catalogue = support::Create<CSymbolColl, _CSymbolColl>();
    EXPECT_OK(symbol->put_FilePath(Bstr(L"Vorschau.syb")));
    EXPECT_OK(catalogue->Append(symbol.Get()));
    Ref<_CSymInput> input;
    ASSERT_OK(catalogue->GetSymInput(Bstr(L"Vorschau"), input.Put()));
    const auto trans = support::NewTrans(2);
    EXPECT_OK(input->SetOldLogPos(0, 0));
    EXPECT_OK(input->MouseMove(30, 40, picture.Get(), trans.Get()));
    EXPECT_NE(PixelsOf(picture), blank);
    EXPECT_OK(input->Draw(picture.Get(), trans.Get()));
    EXPECT_EQ(PixelsOf(picture), blank) << "the image is taken away whole, the guide line too";
}

TEST_F(Picture, IsAPictureObject) {
    const Ref<_CPicture> picture = NewPicture();
    DrawOn(picture.Get());
    Ref<IPictureDisp> copy;
    ASSERT_OK(picture->get_Picture(copy.Put()));
    const std::vector<std::uint32_t> before = PixelsOf(picture);
    EXPECT_OK(picture->Clear());
    const auto shown = copy.As<IPicture>();
    ASSERT_TRUE(shown);
    SHORT type = 0;
    EXPECT_OK(shown->get_Type(&type));
    EXPECT_EQ(type, PICTYPE_BITMAP);
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    EXPECT_OK(shown->get_Width(&width));
    EXPECT_OK(shown->get_Height(&height));
    const Ref<_CPicture> target = NewPicture(0x808080);
    EXPECT_OK(shown->Render(DcOf(target), 0, 0, kWidth, kHeight, 0, height, width, -height, nullptr));
    EXPECT_EQ(PixelsOf(target), before) << "a copy, whatever became of the picture";
}

TEST_F(Picture, IsWrittenByTheExtension) {
    const Ref<_CPicture> picture = NewPicture(0xD0E0F0);
    DrawOn(picture.Get());
    const std::vector<std::uint32_t> pixels = PixelsOf(picture);
    const std::pair<const wchar_t*, const char*> kFormats[] = {{L"a.png", "\x89PNG"},
                                                               {L"b.jpg", "\xFF\xD8\xFF"},
                                                               {L"c.x.JPEG", "\xFF\xD8\xFF"},
                                                               {L"Tür.BMP", "BM"},
                                                               {L"d.emf", "\x01"}};
    for (const auto& [name, beginning] : kFormats) {
        SCOPED_TRACE(support::Narrow(name));
        ASSERT_OK(picture->Write2File(Bstr(folder / name)));
        EXPECT_TRUE(support::ReadBytes(folder / name).starts_with(beginning));
        if (std::wstring(name) == L"d.emf") {
            const HENHMETAFILE file = GetEnhMetaFileW((folder / name).c_str());
            ASSERT_NE(file, nullptr);
            const Ref<_CPicture> target = NewPicture();
            const RECT all{0, 0, kWidth, kHeight};
            EXPECT_NE(PlayEnhMetaFile(DcOf(target), file, &all), FALSE);
            DeleteEnhMetaFile(file);
            EXPECT_EQ(PixelsOf(target), pixels);
            continue;
        }
        const support::JpegPicture read = support::ReadJpeg(folder / name);
        EXPECT_EQ(read.status, 0);
        EXPECT_EQ(read.width, kWidth);
        ASSERT_EQ(read.pixels.size(), pixels.size());
        if (!read.isJpeg) {
            EXPECT_EQ(read.pixels, pixels);
            continue;
        }
        double difference = 0;
        for (std::size_t i = 0; i < pixels.size(); ++i)
            difference += std::abs(static_cast<int>(read.pixels[i] >> 8 & 0xFF) -
                                   static_cast<int>(pixels[i] >> 8 & 0xFF));
        EXPECT_LT(difference / static_cast<double>(pixels.size()), 6);
    }
    EXPECT_EQ(folder.Files().size(), std::size(kFormats));
}

BOOL WINAPI RefuseToWrite(HANDLE, LPCVOID, DWORD, LPDWORD written, LPOVERLAPPED) {
    *written = 0;
    SetLastError(ERROR_DISK_FULL);
    return FALSE;
}

TEST_F(Picture, AFileThatCannotBeWrittenStays) {
    const Ref<_CPicture> picture = NewPicture();
    const std::wstring path = folder / L"alt.png";
    support::WriteBytes(path, "alt");
    const auto write = [&](const std::wstring& file) { return Outcome(picture->Write2File(Bstr(file))); };
    for (const wchar_t* name : {L"a.gif", L"png", L"a.", L"a.png.bak", L""})
        EXPECT_EQ(write(folder / name), Error(5)) << support::Narrow(name);
    EXPECT_EQ(Outcome(picture->Write2File(nullptr)), Error(5));
    EXPECT_EQ(write(folder / L"fehlt\\a.png"), Error(76));
    {
        const support::ImportPatch full(L"QPlan.dll", "WriteFile", reinterpret_cast<void*>(RefuseToWrite));
        EXPECT_EQ(write(path), Error(61));
        EXPECT_EQ(write(folder / L"neu.png"), Error(61));
    }
    const HANDLE held =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(write(path), Error(70));
    CloseHandle(held);
    EXPECT_EQ(support::ReadBytes(path), "alt");
    EXPECT_THAT(folder.Files(), testing::SizeIs(1)) << "nothing is left beside it";
    EXPECT_OK(picture->Write2File(Bstr(path)));
}

TEST_F(Picture, LeavesNoObjectsOfTheGdi) {
    const auto use = [&] {
        const Ref<_CPicture> picture = NewPicture();
        EXPECT_OK(picture->put_FillStyle(3));
        DrawOn(picture.Get());
        Ref<IPictureDisp> copy;
        EXPECT_OK(picture->get_Picture(copy.Put()));
        EXPECT_OK(picture->Create(5, 5, 0));
        EXPECT_NE(picture->Create(5, 0, 0), S_OK);
        EXPECT_OK(picture->Write2File(Bstr(folder / L"a.emf")));
        EXPECT_OK(picture->Write2File(Bstr(folder / L"a.png")));
    };
    use();
    const long before = support::HandleCount::Gdi();
    for (int i = 0; i < 40; ++i)
        use();
    EXPECT_LE(support::HandleCount::Gdi(), before + 24);
}

} // namespace
