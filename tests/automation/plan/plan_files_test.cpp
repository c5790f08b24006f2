#include "plan/plan_fixture.h"
#include "support/handle_count.h"
#include "support/import_patch.h"
#include "support/jpeg_picture.h"
#include "support/temp_folder.h"
#include "support/text.h"

#include <gmock/gmock.h>

#include <functional>

/// What a plan reads and writes.

namespace {

using namespace plan;
using support::Dispatch;
using support::Outcome;
using support::ReadBytes;
using support::Value;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr char kPlan[] = "# Ein Zimmer\r\n"
                         "PLAN;Zimmer \xC3\x9C;300;200\r\n"
                         "FLOOR;12632256;10;10;290;190\r\n"
                         "WALL;10;10;290;10;6\r\n"
                         "ROOM;K;150;100\r\n"
                         "SYMBOL;A;50.25;60;90\r\n"
                         "# zwei\r\n"
                         "SYMBOL;B;100;80;0\r\n";

std::size_t Occurrences(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

class PlanFiles : public PlanTest {
protected:
    PlanFiles() { support::WriteBytes(folder / L"ein.plan", kPlan); }
    std::string Written(const std::function<HRESULT(BSTR)>& write, const wchar_t* name) const {
        EXPECT_OK(write(Bstr(folder / name)));
        return ReadBytes(folder / name);
    }
    std::string Dxf(PlanUnitConstants unit = planMillimetres) const {
        return Written([&](BSTR path) { return plan->WriteDxf(path, unit); }, L"p.dxf");
    }
    std::string Svg() const {
        return Written([&](BSTR path) { return plan->WriteSvg(path); }, L"p.svg");
    }
    support::JpegPicture Picture(const wchar_t* name, LONG width) const {
        EXPECT_OK(plan->WritePicture(Bstr(folder / name), width));
        return support::ReadJpeg(folder / name);
    }
    Ref<_CPicture> Blank(int width, int height) const {
        auto picture = support::Create<CPicture, _CPicture>();
        EXPECT_OK(picture->Create(width, height, 0xFFFFFF));
        return picture;
    }
    static HDC DcOf(const Ref<_CPicture>& picture) {
        LONG handle = 0;
        EXPECT_OK(picture->get_hDC(&handle));
        return reinterpret_cast<HDC>(static_cast<LONG_PTR>(handle));
    }

    support::TempFolder folder;
};

TEST_F(PlanFiles, AreReadAndWrittenBack) {
    Add(L"C", 0, 0);
    ASSERT_OK(Dispatch(plan).Call(L"ReadFromFile", {folder / L"ein.plan"}).status);
    EXPECT_THAT(Ids(), ElementsAre(2, 3)) << "ids go on";
    const Dispatch first(ById(2));
    EXPECT_EQ(first.Get(L"SymbolName").value.Text(), L"A");
    EXPECT_EQ(first.Get(L"LogX").value.Long(), 5025);
    EXPECT_DOUBLE_EQ(first.Get(L"Angle").value.Double(), 1.5707963267948966);
    EXPECT_EQ(Written([&](BSTR path) { return plan->Write2File(path); }, L"zwei.plan"), kPlan);
    EXPECT_OK(first.Put(L"LogX", 6000).status);
    EXPECT_OK(plan->RemoveById(3));
    Add(L"c", 100, -250);
    const std::string changed = Written([&](BSTR path) { return plan->Write2File(path); }, L"zwei.plan");
    EXPECT_THAT(changed, HasSubstr("SYMBOL;A;60;60;90\r\n# zwei\r\n"));
    EXPECT_THAT(changed, HasSubstr("SYMBOL;c;1;-2.5;0\r\n"));
    EXPECT_EQ(Occurrences(changed, "SYMBOL"), 2U);
}

TEST_F(PlanFiles, ThatCannotBeReadLeaveThePlan) {
    Add(L"A", 0, 0);
    const auto read = [&](const wchar_t* name, const std::string& content) {
        support::WriteBytes(folder / name, content);
        return Outcome(plan->ReadFromFile(Bstr(folder / name)));
    };
    EXPECT_EQ(Outcome(plan->ReadFromFile(Bstr(folder / L"fehlt.plan"))), Error(53));
    EXPECT_EQ(Outcome(plan->ReadFromFile(Bstr(folder / L"fehlt\\a.plan"))), Error(76));
    EXPECT_EQ(read(L"a.plan", "PLAN;x;10;10\nSYMBOL;D;1;1;0\n").status, support::Numbered(5));
    const support::Failure broken = read(L"b.plan", "PLAN;x;10;10\nWALL;1\n");
    EXPECT_EQ(broken.status, support::Numbered(321));
    EXPECT_EQ(broken.source, L"QPlan");
    EXPECT_THAT(support::Narrow(broken.description), HasSubstr("Zeile 2"));
    EXPECT_EQ(read(L"c.plan", std::string(5000, '\xFF')).status, support::Numbered(321));
    EXPECT_THAT(Ids(), ElementsAre(1));
    const auto fresh = support::Create<CPlan, _CPlan>();
    EXPECT_EQ(Outcome(fresh->ReadFromFile(Bstr(folder / L"ein.plan"))).status, support::Numbered(91));
}

TEST_F(PlanFiles, DrawingsHaveABlockForEachSymbolInAnyUnit) {
    for (int i = 0; i < 4; ++i)
        Add(i < 3 ? L"A" : L"C", 1000 * i, 500);
    const std::string millimetres = Dxf();
    EXPECT_EQ(Occurrences(millimetres, "\nINSERT\r\n") + Occurrences(millimetres, "\nINSERT\n"), 4U);
    EXPECT_EQ(Dispatch(plan).Call(L"WriteDxf", {folder / L"q.dxf"}).status, S_OK);
    EXPECT_EQ(ReadBytes(folder / L"q.dxf"), millimetres) << "without the argument";
    const auto unitOf = [](const std::string& drawing) {
        const std::size_t at = drawing.find("$INSUNITS");
        return drawing.at(drawing.find_first_of("456", at));
    };
    EXPECT_EQ(unitOf(millimetres), '4');
    EXPECT_EQ(unitOf(Dxf(planCentimetres)), '5');
    EXPECT_EQ(unitOf(Dxf(planMetres)), '6');
    EXPECT_EQ(Dispatch(plan).Call(L"WriteDxf", {folder / L"r.dxf", 3}).failure, Error(5));
    EXPECT_FALSE(support::FileExists(folder / L"r.dxf"));
}

TEST_F(PlanFiles, AHostsOwnSymbolsAreWrittenByTheirElements) {
    const auto host = HostCatalogue::Create();
    for (const wchar_t* name : {L"A", L"B", L"C"})
        host->symbols[name] = Ref<_CSymbol>(HostSymbol::Create(symbols[name[0] - L'A']).Get());
    for (const wchar_t* name : {L"A", L"B", L"C", L"A"})
        Add(name, 700 * (name[0] - L'A'), 0, 0.3);
    const std::string dxf = Dxf();
    const std::string svg = Svg();
    const support::JpegPicture picture = Picture(L"p.png", 150);
    EXPECT_OK(symbols[0]->Draw(0, 0, 0, nullptr, nullptr, 1, 2.5, nullptr)); // whatever was drawn last
    EXPECT_EQ(Occurrences(svg, "<use"), 4U);
    ASSERT_OK(plan->putref_Symbols(host.Get()));
    EXPECT_EQ(Dxf(), dxf);
    EXPECT_EQ(Svg(), svg);
    EXPECT_EQ(Picture(L"p.png", 150).pixels, picture.pixels);
}

TEST_F(PlanFiles, APictureShowsTheWholeSheet) {
    ASSERT_OK(plan->ReadFromFile(Bstr(folder / L"ein.plan")));
    const support::JpegPicture picture = Picture(L"p.png", 600);
    ASSERT_EQ(picture.width, 600);
    ASSERT_EQ(picture.height, 400);
    const auto at = [&](int x, int y) { return picture.pixels[static_cast<std::size_t>(y * 600 + x)]; };
    EXPECT_EQ(at(5, 5), 0xFFFFFFU) << "paper";
    EXPECT_EQ(at(40, 370), 0xC0C0C0U) << "a floor";
    EXPECT_EQ(at(300, 20), 0x4A4A4EU) << "a wall";
    EXPECT_EQ(Occurrences(std::string(reinterpret_cast<const char*>(picture.pixels.data()),
                                      picture.pixels.size() * 4),
                          std::string("\xF0\xC0\x60", 3)) +
                      Occurrences(std::string(reinterpret_cast<const char*>(picture.pixels.data()),
                                              picture.pixels.size() * 4),
                                  std::string("\x60\xC0\xF0", 3)) >
                  0,
              true)
        << "a symbol's fill";
}

TEST_F(PlanFiles, WithoutASheetAPictureShowsWhatIsDrawn) {
    Add(L"B", 5000, -3000); // a line and a thick arc, both out of its box
    const support::JpegPicture picture = Picture(L"p.bmp", 325);
    EXPECT_EQ(picture.height, 265) << "650 by 530 units";
    const auto drawn = Blank(picture.width, picture.height);
    EXPECT_OK(plan->Draw(drawn.Get(), support::NewTrans(2, 5000 - 310, -3000 - 245).Get()));
    EXPECT_OK(drawn->Write2File(Bstr(folder / L"d.bmp")));
    EXPECT_EQ(ReadBytes(folder / L"d.bmp"), ReadBytes(folder / L"p.bmp"));
    // Whatever the factor of the last drawing was, and turned.
    EXPECT_OK(ById(1)->put_Angle(1.5707963267948966));
    EXPECT_OK(symbols[0]->Draw(0, 0, 0, nullptr, nullptr, 1, 3, nullptr));
    EXPECT_EQ(Picture(L"p.bmp", 265).height, 325);
}

int CALLBACK CountFigures(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM counts) {
    auto& [lines, bitmaps] = *reinterpret_cast<std::pair<int, int>*>(counts);
    lines += record->iType == EMR_POLYGON16 || record->iType == EMR_ELLIPSE || record->iType == EMR_ARC ||
             record->iType == EMR_POLYLINE16;
    bitmaps += record->iType == EMR_STRETCHDIBITS || record->iType == EMR_BITBLT;
    return TRUE;
}

TEST_F(PlanFiles, AMetafileKeepsLines) {
    ASSERT_OK(plan->ReadFromFile(Bstr(folder / L"ein.plan")));
    const support::JpegPicture picture = Picture(L"p.png", 300);
    const long before = support::HandleCount::Gdi();
    for (int i = 0; i < 30; ++i)
        EXPECT_OK(plan->WritePicture(Bstr(folder / L"p.emf"), 300));
    EXPECT_LE(support::HandleCount::Gdi(), before + 24);
    const HENHMETAFILE file = GetEnhMetaFileW((folder / L"p.emf").c_str());
    ASSERT_NE(file, nullptr);
    std::pair<int, int> counts;
    EnumEnhMetaFile(nullptr, file, CountFigures, &counts, nullptr);
    EXPECT_GE(counts.first, 6);
    EXPECT_EQ(counts.second, 0);
    const auto played = Blank(picture.width, picture.height);
    const RECT all{0, 0, picture.width, picture.height};
    EXPECT_NE(PlayEnhMetaFile(DcOf(played), file, &all), FALSE);
    DeleteEnhMetaFile(file);
    EXPECT_OK(played->Write2File(Bstr(folder / L"e.png")));
    const std::vector<std::uint32_t> shown = support::ReadJpeg(folder / L"e.png").pixels;
    ASSERT_EQ(shown.size(), picture.pixels.size());
    std::size_t others = 0;
    for (std::size_t i = 0; i < shown.size(); ++i)
        others += shown[i] != picture.pixels[i];
    EXPECT_LE(others, shown.size() / 50);
}

TEST_F(PlanFiles, APictureNeedsAWidthAFormatAndSomethingToShow) {
    const auto write = [&](const wchar_t* name, LONG width) {
        return Outcome(plan->WritePicture(Bstr(folder / name), width));
    };
    EXPECT_EQ(write(L"leer.png", 100), Error(5));
    Add(L"A", 0, 0);
    EXPECT_EQ(write(L"a.png", 0), Error(5));
    EXPECT_EQ(write(L"a.tif", 100), Error(5));
    EXPECT_EQ(write(L"a.bmp", 0x7FFFFFFF), Error(7));
    support::WriteBytes(folder / L"ein.plan", "PLAN;Turm;1;9000000\n");
    ASSERT_OK(plan->ReadFromFile(Bstr(folder / L"ein.plan")));
    EXPECT_EQ(write(L"a.bmp", 100000), Error(7));
    EXPECT_EQ(folder.Files().size(), 1U) << "the plan alone";
    ASSERT_OK(plan->Clear());
    Add(L"C", 0, 0); // flat
    EXPECT_EQ(write(L"flach.png", 100), support::Failure{});
}

BOOL WINAPI NoRoom(HANDLE, LPCVOID, DWORD, LPDWORD written, LPOVERLAPPED) {
    *written = 0;
    SetLastError(ERROR_DISK_FULL);
    return FALSE;
}

TEST_F(PlanFiles, ThatCannotBeWrittenStay) {
    Add(L"A", 0, 0);
    const std::pair<const wchar_t*, std::function<HRESULT(BSTR)>> kWriters[] = {
        {L"a.plan", [&](BSTR path) { return plan->Write2File(path); }},
        {L"a.dxf", [&](BSTR path) { return plan->WriteDxf(path, planMetres); }},
        {L"a.svg", [&](BSTR path) { return plan->WriteSvg(path); }},
        {L"a.png", [&](BSTR path) { return plan->WritePicture(path, 50); }},
        {L"a.emf", [&](BSTR path) { return plan->WritePicture(path, 50); }}};
    for (const auto& [name, write] : kWriters) {
        SCOPED_TRACE(support::Narrow(name));
        const std::wstring path = folder / name;
        support::WriteBytes(path, "alt");
        EXPECT_EQ(Outcome(write(Bstr(folder / (std::wstring(L"fehlt\\") + name)))), Error(76));
        {
            const support::ImportPatch full(L"QPlan.dll", "WriteFile", reinterpret_cast<void*>(NoRoom));
            EXPECT_EQ(Outcome(write(Bstr(path))), Error(61));
        }
        const HANDLE held =
            CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_EQ(Outcome(write(Bstr(path))), Error(70));
        CloseHandle(held);
        EXPECT_EQ(ReadBytes(path), "alt");
        EXPECT_OK(write(Bstr(path)));
        EXPECT_NE(ReadBytes(path), "alt");
        EXPECT_NE(DeleteFileW(path.c_str()), FALSE);
        EXPECT_EQ(folder.Files().size(), 1U) << "nothing is left beside it";
    }
}

} // namespace
