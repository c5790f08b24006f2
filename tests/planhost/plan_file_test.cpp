#include "plan_file.h"

#include "text.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

/// Plan files in a folder of the test's own.
class PlanFile : public testing::Test {
protected:
    PlanFile() : folder_(fs::temp_directory_path() / L"planhost_tests") {
        fs::remove_all(folder_);
        fs::create_directories(folder_);
    }
    ~PlanFile() override { fs::remove_all(folder_); }

    fs::path Write(const std::string& bytes) const {
        fs::path file = folder_ / L"Prüfung.plan";
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }
    static std::string Bytes(const fs::path& file) {
        std::ostringstream bytes;
        bytes << std::ifstream(file, std::ios::binary).rdbuf();
        return bytes.str();
    }
    /// What is said about a plan of these lines after the first.
    std::string FailureOf(const std::string& lines) const {
        try {
            ReadPlan(Write("PLAN;Haus;5000;4000\n" + lines));
        } catch (const Failure& failure) {
            return ToUtf8(failure.message);
        }
        return "read";
    }

    fs::path folder_;
};

constexpr char kPlan[] =
    "# Ein Haus\nPLAN;Haus;5000;4000\n\nFLOOR;255;0;0;5000;4000\n"
    "SYMBOL;Tür;1000;2000;90\n# Küche\nWALL;0;0;5000;0;240\nSYMBOL;Herd;-1.5;20.25;359.5\n"
    "ROOM;Küche;100;200\nSYMBOL;Tür;3000;2000;0\n";

} // namespace

TEST_F(PlanFile, SymbolsMayStandBetweenMillimetresAndDegrees) {
    const Plan plan = ReadPlan(Write(kPlan));
    ASSERT_EQ(plan.symbols.size(), 3u);
    EXPECT_EQ(plan.symbols[0], (PlacedSymbol{L"Tür", {100'000, 200'000}, 90, 5}));
    EXPECT_EQ(plan.symbols[1], (PlacedSymbol{L"Herd", {-150, 2025}, 359.5, 8}));
}

TEST_F(PlanFile, AnUnchangedPlanIsWrittenAsItWas) {
    WritePlan(ReadPlan(Write(kPlan)), folder_ / L"zwei.plan");
    EXPECT_EQ(Bytes(folder_ / L"zwei.plan"), kPlan);
}

TEST_F(PlanFile, OnlyTheLinesOfChangedSymbolsChange) {
    const fs::path file = Write(kPlan);
    Plan plan = ReadPlan(file);
    plan.symbols[1].at = {12'345, -5};
    plan.symbols[1].angle = 0.125;
    plan.symbols.push_back({L"Öltank", {0, 700}, 45});
    plan.symbols.erase(plan.symbols.begin());
    WritePlan(plan, file);
    EXPECT_EQ(Bytes(file), "# Ein Haus\nPLAN;Haus;5000;4000\n\nFLOOR;255;0;0;5000;4000\n# Küche\n"
                           "WALL;0;0;5000;0;240\nSYMBOL;Herd;123.45;-0.05;0.125\nROOM;Küche;100;200\n"
                           "SYMBOL;Tür;3000;2000;0\nSYMBOL;Öltank;0;7;45\n");
}

TEST_F(PlanFile, LineEndsStayAsTheyWere) {
    const fs::path file = Write("PLAN;Haus;5000;4000\r\nSYMBOL;Tür;1;2;3\r\n");
    Plan plan = ReadPlan(file);
    plan.symbols.push_back({L"Herd", {0, 0}, 0});
    WritePlan(plan, file);
    EXPECT_EQ(Bytes(file), "PLAN;Haus;5000;4000\r\nSYMBOL;Tür;1;2;3\r\nSYMBOL;Herd;0;0;0\r\n");
}

TEST_F(PlanFile, WhatIsWrittenReadsBackToTheHundredthAndTheMillionth) {
    const fs::path file = Write("PLAN;Haus;5000;4000\n");
    Plan plan = ReadPlan(file);
    plan.symbols.push_back({L"Herd", {-1'000'000'000, 999'999'999}, 123.456789});
    WritePlan(plan, file);
    const Plan again = ReadPlan(file);
    EXPECT_EQ(again.symbols[0].at.x, -1'000'000'000);
    EXPECT_EQ(again.symbols[0].at.y, 999'999'999);
    EXPECT_EQ(again.symbols[0].angle, 123.456789);
}

TEST_F(PlanFile, AFailedWriteLeavesTheOldFile) {
    const fs::path file = Write(kPlan);
    Plan plan = ReadPlan(file);
    plan.symbols.push_back({L"Zwei;Felder", {0, 0}, 0});
    EXPECT_THROW(WritePlan(plan, file), Failure);
    plan.symbols.pop_back();
    fs::create_directories(folder_ / L"Prüfung.plan.neu"); // in the way of the new file
    EXPECT_THROW(WritePlan(plan, file), Failure);
    EXPECT_EQ(Bytes(file), kPlan);
    EXPECT_TRUE(fs::exists(folder_ / L"Prüfung.plan.neu"));
    EXPECT_THROW(WritePlan(plan, folder_ / L"fehlt" / L"Plan.plan"), Failure);
}

TEST_F(PlanFile, WhatIsWrongIsSaidWithItsLine) {
    EXPECT_THAT(FailureOf("SYMBOL;Tür;1;2"), HasSubstr("Zeile 2: SYMBOL verlangt 4 Felder."));
    EXPECT_THAT(FailureOf("SYMBOL;Tür;1,5;2;3"), HasSubstr("\"1,5\" ist keine Länge in Millimetern"));
    EXPECT_THAT(FailureOf("SYMBOL;Tür;10000001;2;3"), HasSubstr("\"10000001\" ist keine Länge"));
    for (const char* angle : {"", "schief", "1,5", "nan", "inf", "9e999"})
        EXPECT_THAT(FailureOf("SYMBOL;Tür;1;2;" + std::string(angle)), HasSubstr("ist kein Winkel in Grad"))
            << angle;
    EXPECT_EQ(FailureOf("SYMBOL;Tür;1;2;-3.75"), "read");
}
