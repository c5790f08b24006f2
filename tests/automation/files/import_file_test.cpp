#include "support/automation_test.h"
#include "support/message_boxes.h"
#include "support/number_settings.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

namespace {

using support::Box;
using support::Failure;
using support::LibraryError;
using support::Outcome;
using support::Ref;

class ImportFile : public support::AutomationTest {
protected:
    support::TempFolder folder;
    support::NumberSettings german{L",", L"."};
    Ref<_CSymbol> symbol = support::NewSymbolAt(folder / L"x.WSC");

    Failure Read(const std::vector<std::string>& lines) const {
        support::WriteLines(folder / L"x.WSC", lines);
        return Outcome(symbol->ReadFromFile());
    }
    LONG Elements() const {
        Ref<_CSymElementColl> elements;
        LONG count = -1;
        EXPECT_OK(symbol->GetSymElements(elements.Put()));
        EXPECT_OK(elements->get_Count(&count));
        return count;
    }
    static Box Notice(const std::wstring& text) {
        return {support::ProgramTitle(), text, {IDOK}, support::BoxIcon::None};
    }
};

TEST_F(ImportFile, HasItsSizeAndAFixedReferencePoint) {
    EXPECT_OK(symbol->put_Width(1));
    EXPECT_EQ(Read({"BLT 120.5 80 0 0 0", "STR F=255 D=1 A=0 B=0 C=0 10 20 30 40", "END"}), Failure());
    const support::Dispatch late(symbol);
    EXPECT_EQ(late.Get(L"Width").value.Long(), 120) << "half to even";
    EXPECT_EQ(late.Get(L"Height").value.Long(), 80);
    EXPECT_EQ(late.Get(L"RefX").value.Long(), 5000);
    EXPECT_EQ(late.Get(L"RefY").value.Long(), 5000);
    EXPECT_EQ(Elements(), 1);
}

TEST_F(ImportFile, MirrorsItsHeights) {
    EXPECT_EQ(Read({"BLT 100 80 0 0 0", "STR F=255 D=1 A=0 B=0 C=0 10 0 30 80"}), Failure());
    Ref<_CSymElementColl> elements;
    Ref<_CSymElement> line;
    Ref<_CPtList> points;
    Ref<_CPt> first;
    LONG y = -1;
    EXPECT_OK(symbol->GetSymElements(elements.Put()));
    EXPECT_OK(elements->get_ItemByPos(1, line.Put()));
    EXPECT_OK(line->get_PtList(points.Put()));
    EXPECT_OK(points->get_Item(1, first.Put()));
    EXPECT_OK(first->get_Y(&y));
    EXPECT_EQ(y, 80);
}

TEST_F(ImportFile, WithAnUnknownLineImportsNothingAndSaysSoOnce) {
    const support::MessageBoxes boxes{IDOK};
    EXPECT_EQ(Read({"BLT 100 80 0 0 0", "STR F=1 D=1 A=0 B=0 C=0 1 2 3 4", "XYZ 1 2", "ABC"}), Failure());
    EXPECT_EQ(boxes.Seen(),
              std::vector<Box>{Notice(L"Folgende Zeile kann nicht verarbeitet werden: XYZ 1 2 --> Abbruch")});
    EXPECT_EQ(Elements(), 0);
}

TEST_F(ImportFile, WithAnEllipticArcEndsWithANotice) {
    const support::MessageBoxes boxes{IDOK};
    EXPECT_EQ(Read({"BLT 100 80 0 0 0", "EBO F=1 D=1 A=0 B=0 C=0 0 0 50 20"}), Failure());
    EXPECT_EQ(boxes.Seen(),
              std::vector<Box>{Notice(L"Ellipsenbögen können nicht verarbeitet werden --> Abbruch")});
}

TEST_F(ImportFile, WithoutItsHeaderIsNoSymbolFile) {
    EXPECT_EQ(Read({"BLT 100 80 0 0", "END"}), LibraryError(3501, L"CSymbol.ReadFromWSCFile"));
}

TEST_F(ImportFile, CannotBeWritten) {
    EXPECT_EQ(Outcome(symbol->Write2File()), LibraryError(3503, L"CSymbol.Write2File"));
    EXPECT_FALSE(support::FileExists(folder / L"x.WSC"));
}

} // namespace
