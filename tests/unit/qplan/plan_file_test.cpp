#include "qplan/files/plan_file.h"

#include "base/utf8.h"
#include "qplan/files/plan_numbers.h"
#include "qplan/model/own_catalogue.h"
#include "support/caught.h"
#include "support/memory_file_system.h"
#include "support/sample_symbols.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>
#include <random>

namespace {

using namespace qplan;
using support::Caught;
using support::CaughtFrom;

constexpr char kPlan[] =
    "# Ein Haus\nPLAN;Haus;5000;4000\n\nFLOOR;255;0;0;5000;4000\n"
    "SYMBOL;Tür;1000;2000;90\n# Küche\nWALL;0;0;5000;0;240\nSYMBOL;Herd;-1.5;20.25;359.5\n"
    "ROOM;Küche;100;200\nSYMBOL;Tür;3000;2000;0\n";

Plan WithSymbols() {
    const auto catalogue = std::make_shared<OwnCatalogue>();
    for (const char16_t* const name : {u"Tür", u"Herd", u"Zwei;Felder"})
        catalogue->Put(name, support::WashRoom());
    Plan plan;
    plan.SetSymbols(catalogue);
    return plan;
}

Plan Read(std::string_view bytes) {
    Plan plan = WithSymbols();
    DecodePlan(plan, bytes);
    return plan;
}

TEST(PlanFile, HasTheSheetAndItsSymbols) {
    const Plan plan = Read(kPlan);
    const qplan::Sheet& sheet = plan.Sheet();
    EXPECT_EQ(sheet.title, u"Haus");
    EXPECT_EQ(sheet.width, 5000);
    EXPECT_EQ(sheet.height, 4000);
    ASSERT_EQ(sheet.floors.size() + sheet.walls.size() + sheet.rooms.size(), 3U);
    EXPECT_EQ(sheet.floors[0].colour, 255);
    EXPECT_EQ(sheet.floors[0].area, (qmath::Rect{0, 0, 5000, 4000}));
    EXPECT_EQ(sheet.walls[0].to, (qmath::Point{5000, 0}));
    EXPECT_EQ(sheet.walls[0].thickness, 240);
    EXPECT_EQ(sheet.rooms[0].name, u"Küche");
    ASSERT_EQ(plan.Count(), 3);
    const Placement& stove = *plan.ByPos(2);
    EXPECT_EQ(plan.NameOf(stove), u"Herd");
    EXPECT_EQ(stove.position.at, (qmath::Point{-150, 2025}));
    EXPECT_EQ(stove.position.angle, 359.5 * std::numbers::pi / 180);
}

TEST(PlanFile, KeepsWhatIsNoSymbolAsItWas) {
    Plan plan = Read(kPlan);
    EXPECT_EQ(EncodePlan(plan), kPlan);
    EXPECT_EQ(EncodePlan(Read("\xEF\xBB\xBF# x\r\nPLAN;H;1;1\r\n\r\nSYMBOL;Tür;1;2;3\r\n# y")),
              "\xEF\xBB\xBF# x\r\nPLAN;H;1;1\r\n\r\nSYMBOL;Tür;1;2;3\r\n# y\r\n");
    EXPECT_EQ(EncodePlan(Read("PLAN;H;1;1\r")), "PLAN;H;1;1\r\n");
    EXPECT_EQ(EncodePlan(Read("PLAN;H\rH;1;1\nROOM;a\rb;0;0\n")), "PLAN;H\rH;1;1\nROOM;a\rb;0;0\n");
    const std::int32_t stove = plan.ByPos(2)->id;
    plan.Move(stove, {{12345, -5}, 0.125 * std::numbers::pi / 180});
    plan.RemoveById(plan.ByPos(1)->id);
    plan.Add(u"tür", {{0, 70000}, std::numbers::pi / 4});
    EXPECT_EQ(EncodePlan(plan), "# Ein Haus\nPLAN;Haus;5000;4000\n\nFLOOR;255;0;0;5000;4000\n# Küche\n"
                                "WALL;0;0;5000;0;240\nSYMBOL;Herd;123.45;-0.05;0.125\nROOM;Küche;100;200\n"
                                "SYMBOL;Tür;3000;2000;0\nSYMBOL;tür;0;700;45\n");
}

TEST(PlanFile, APlanWithoutAFileIsWrittenFromItsValues) {
    Plan plan = WithSymbols();
    EXPECT_EQ(EncodePlan(plan), "PLAN;;1;1\n");
    plan.Add(u"Tür", {{2147483647 - 500, -2147483647 - 1}, -1});
    plan.RemoveById(plan.Add(u"Zwei;Felder", {}));
    EXPECT_EQ(EncodePlan(Read(EncodePlan(plan))), EncodePlan(plan)) << "every place and name that can be";
    qplan::Sheet sheet = Read(kPlan).Sheet();
    sheet.kept.clear();
    plan.Clear();
    plan.SetSheet(sheet);
    EXPECT_EQ(EncodePlan(plan),
              "PLAN;Haus;5000;4000\nFLOOR;255;0;0;5000;4000\nWALL;0;0;5000;0;240\nROOM;Küche;100;200\n");
}

TEST(PlanFile, SaysWhatIsWrongWithItsLine) {
    const auto failure = [](std::string_view line) {
        const Caught caught = CaughtFrom([&] { Read("PLAN;Haus;5000;4000\n" + std::string(line)); });
        return std::to_string(caught.number) + " " + base::ToUtf8(caught.description);
    };
    const std::vector<std::pair<std::string_view, std::string_view>> cases{
        {"SYMBOL;Tür;1;2;-3.75", "0 "},
        {"SYMBOL;Tür; +1 ;2;+3e1", "0 "},
        {"FLOOR;16777215;0;0;0;0", "0 "},
        {"SYMBOL;Fenster;1;2;3", "5 Zeile 2: Das Symbol \"Fenster\" ist nicht im Katalog."},
        {"SYMBOL;;1;2;3", "5 Zeile 2: Das Symbol \"\" ist nicht im Katalog."},
        {"SYMBOL;Tür;1;2", "321 Zeile 2: SYMBOL verlangt 4 Felder."},
        {"SYMBOL;", "321 Zeile 2: SYMBOL verlangt 4 Felder."},
        {"SYMBOL", "321 Zeile 2: Unbekannte Zeilenart \"SYMBOL\"."},
        {"ROOM", "321 Zeile 2: ROOM verlangt 3 Felder."},
        {"WALL;0;0;5000;0;240;", "321 Zeile 2: WALL verlangt 5 Felder."},
        {"SYMBOL;Tür;1,5;2;3",
         "321 Zeile 2: \"1,5\" ist keine Länge in Millimetern, die auf ein Blatt passt."},
        {"SYMBOL;Tür;1;21474836.48;3",
         "321 Zeile 2: \"21474836.48\" ist keine Länge in Millimetern, die auf ein Blatt passt."},
        {"SYMBOL;Tür;1.234;2;3",
         "321 Zeile 2: \"1.234\" ist keine Länge in Millimetern, die auf ein Blatt passt."},
        {"SYMBOL;Tür;1.x;2;3",
         "321 Zeile 2: \"1.x\" ist keine Länge in Millimetern, die auf ein Blatt passt."},
        {"SYMBOL;Tür;1;2;nan", "321 Zeile 2: \"nan\" ist kein Winkel in Grad."},
        {"SYMBOL;Tür;1;2;9e999", "321 Zeile 2: \"9e999\" ist kein Winkel in Grad."},
        {"SYMBOL;Tür;1;2;", "321 Zeile 2: \"\" ist kein Winkel in Grad."},
        {"SYMBOL;Tür;1;2;+-3", "321 Zeile 2: \"+-3\" ist kein Winkel in Grad."},
        {"FLOOR;16777216;0;0;0;0", "321 Zeile 2: \"16777216\" ist keine Farbe."},
        {"FLOOR;1x;0;0;0;0", "321 Zeile 2: \"1x\" ist keine ganze Zahl."},
        {"ROOM;x;10000001;0", "321 Zeile 2: \"10000001\" mm liegt außerhalb des Blattes."},
        {"ROOM;x;99999999999;0", "321 Zeile 2: \"99999999999\" ist keine ganze Zahl."},
        {"WALL;1;2;1;2;3", "321 Zeile 2: Die Wand hat keine Länge."},
        {"WALL;1;2;1;3;-3", "321 Zeile 2: \"-3\" mm liegt außerhalb des Blattes."},
        {"\n\nTISCH;1", "321 Zeile 4: Unbekannte Zeilenart \"TISCH\"."},
        {"PLAN;x;1;1", "321 Zeile 2: Der Plan hat schon eine Zeile PLAN."},
    };
    for (const auto& [line, expected] : cases)
        EXPECT_EQ(failure(line), expected) << line;
    for (const std::string_view bytes : {"", "# nur\n", "SYMBOL;Tür;1;2;3\n"})
        EXPECT_EQ(CaughtFrom([&] { Read(bytes); }).description, u"Im Plan fehlt die Zeile PLAN.");
    for (const std::string_view bytes : {"PLAN;x;0;1", "PLAN;x;1;-1"})
        EXPECT_EQ(CaughtFrom([&] { Read(bytes); }).description, u"Zeile 1: Das Blatt hat keine Fläche.");
    Plan bare;
    EXPECT_EQ(CaughtFrom([&] { DecodePlan(bare, kPlan); }).number, 91);
    DecodePlan(bare, "PLAN;x;1;1\n");
}

TEST(PlanFile, AFailureLeavesPlanAndFileAsTheyWere) {
    support::MemoryFileSystem files;
    files.folders = {u"/d"};
    Plan plan = Read(kPlan);
    const std::int32_t last = plan.LastId();
    files.files[u"/d/alt.plan"] = "PLAN;x;1;1\nSYMBOL;Tür;1;1;1\nSYMBOL;nie;1;1;1\n";
    EXPECT_EQ(CaughtFrom([&] { ReadPlan(plan, files, u"/d/alt.plan"); }).number, 5);
    EXPECT_EQ(CaughtFrom([&] { ReadPlan(plan, files, u"/d/fehlt.plan"); }).number, 53);
    EXPECT_EQ(EncodePlan(plan), kPlan);
    plan.Add(u"Zwei;Felder", {});
    EXPECT_EQ(CaughtFrom([&] { WritePlan(plan, files, u"/d/alt.plan"); }).number, 5);
    plan.RemoveById(plan.LastId());
    const auto before = files.files;
    for (int step = 0;; ++step) {
        files.steps = 0;
        files.failingStep = step;
        if (CaughtFrom([&] { WritePlan(plan, files, u"/d/alt.plan"); }).number == 0)
            break;
        ASSERT_LT(step, 20);
        EXPECT_EQ(files.files, before) << step;
    }
    files.failingStep.reset();
    ReadPlan(plan, files, u"/d/alt.plan");
    EXPECT_EQ(EncodePlan(plan), kPlan);
    EXPECT_GT(plan.ByPos(1)->id, last) << "ids go on";
}

TEST(PlanFile, ANameThatIsNoTextIsNotWritten) {
    const auto catalogue = std::make_shared<OwnCatalogue>();
    const std::u16string half = u"\xD83D";
    catalogue->Put(half, support::WashRoom());
    Plan plan;
    plan.SetSymbols(catalogue);
    plan.Add(half, {});
    EXPECT_EQ(CaughtFrom([&] { EncodePlan(plan); }).number, 5);
}

TEST(PlanFile, AnglesReadBackAsTheyWereOrAsTheirNeighbours) {
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> turn(-10, 10);
    int exact = 0;
    for (int i = 0; i < 2000; ++i) {
        const double angle = i % 4 == 0 ? std::bit_cast<double>(random()) : turn(random);
        if (!std::isfinite(angle * 180))
            continue;
        std::string text;
        AppendDegrees(text, angle);
        const double again = RadiansFromDegrees(text).value();
        exact += again == angle ? 1 : 0;
        // Not every number of radians is one that some degrees stand for.
        EXPECT_TRUE(again == angle || again == std::nextafter(angle, again)) << text;
    }
    EXPECT_GT(exact, 1400);
}

} // namespace
