#include "support/automation_test.h"
#include "support/number_settings.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

#include <oleauto.h>

#include <cmath>
#include <random>

namespace {

using support::Failure;
using support::NumberSettings;
using support::Ref;

/// Reads texts as the width of a text file's header and holds what comes out against the automation run-time.
class NumberReading : public support::AutomationTest {
protected:
    support::TempFolder folder;
    Ref<_CSymbol> symbol = support::NewSymbolAt(folder / L"x.syt");

    /// "12345", or "error 13".
    std::string Read(const std::string& text) const {
        support::WriteLines(folder / L"x.syt", {"SYM;CNT=1;WID=" + text + ";HEI=1;RPX=0;RPY=0"});
        const Failure failure = support::Outcome(symbol->ReadFromFile());
        if (FAILED(failure.status))
            return "error " + std::to_string(failure.status & 0xFFFF);
        LONG width = 0;
        EXPECT_OK(symbol->get_Width(&width));
        return std::to_string(width);
    }
    static std::string Expected(const std::string& text) {
        std::wstring wide(text.begin(), text.end());
        double value = 0;
        const HRESULT status = VarR8FromStr(wide.data(), LOCALE_USER_DEFAULT, 0, &value);
        if (status == DISP_E_OVERFLOW)
            return "error 6";
        if (FAILED(status))
            return "error 13";
        const double rounded = std::nearbyint(value * 100.0); // halves to even
        if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0))
            return "error 6";
        return std::to_string(static_cast<long long>(rounded));
    }
    /// Texts that are numbers go into one file together; each of the others ends the read of a file of
    /// its own.
    void Compare(const std::vector<std::string>& texts) const;
    void CompareAll() const;
};

void NumberReading::Compare(const std::vector<std::string>& texts) const {
    std::vector<std::string> numbers;
    for (const std::string& text : texts) {
        if (Expected(text).starts_with("error"))
            EXPECT_EQ(Read(text), Expected(text)) << '"' << text << '"';
        else
            numbers.push_back(text);
    }
    const std::string count = std::to_string(numbers.size());
    std::vector<std::string> lines = {"SYM;CNT=1;WID=1;HEI=1;RPX=0;RPY=0", "POLY;CNT=" + count};
    for (const std::string& number : numbers)
        lines.push_back("POINT;" + number + ";0");
    support::WriteLines(folder / L"x.syt", lines);
    ASSERT_OK(symbol->ReadFromFile());
    const auto elements = support::ElementsOf(symbol.Get());
    ASSERT_EQ(elements.at(0).points.size(), numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i)
        EXPECT_EQ(std::to_string(elements[0].points[i].x), Expected(numbers[i])) << '"' << numbers[i] << '"';
}

/// Everything people and programs write, and what they do not.
const char* const kForms[] = {
    "0",
    "1",
    "-1",
    "+1",
    " 1",
    "1 ",
    "  1  ",
    "-0",
    "00012",
    "1.5",
    "1,5",
    "1.50",
    "1,50",
    ".5",
    ",5",
    "5.",
    "5,",
    "-.5",
    "-,5",
    "1.234",
    "1,234",
    "1.234,5",
    "1,234.5",
    "1.2.3",
    "1,2,3",
    "1..2",
    "1,,2",
    "1.,2",
    "1e2",
    "1E2",
    "1e+2",
    "1e-2",
    "1,5e1",
    "1.5e1",
    "1d2",
    "1e",
    "e1",
    "1e400",
    "1e-400",
    "1e2.5",
    "",
    " ",
    "-",
    "+",
    "--1",
    "+-1",
    "- 1",
    "1 -",
    "1-",
    "(1)",
    "(1,5)",
    "1%",
    "$1",
    "1 2",
    "1 000",
    "0x10",
    "&H10",
    "&h1F",
    "&O17",
    "1a",
    "a",
    "NaN",
    "inf",
    "1\t",
    "\t1",

    "0,125",
    "0.125",
    "0,375",
    "0.375",
    "2,005",
    "2.005",
    "-0,125",
    "-0.125",
    "1/2",
    "true",
    "Wahr",
    "21474836,47",
    "21474836.47",
    "21474836,48",
    "21474836.48",
    "-21474836,48",
    "-21474836.48",
    "99999999999999999999",
    "0,00000000000000000001",
    "0.00000000000000000001",
    "123456789012345678,9",
    "1,7976931348623157e308",
};

void NumberReading::CompareAll() const {
    for (const char* const form : kForms)
        EXPECT_EQ(Read(form), Expected(form)) << '"' << form << '"';
    std::vector<std::string> texts;
    // Plain numbers as the writer makes them, and texts of the same characters in any order.
    std::mt19937 random(20240); // the same texts in every run
    const std::string alphabet = "0123456789001122.,.,-+ eE";
    for (int i = 0; i < 250; ++i) {
        std::string text;
        const std::size_t length = 1 + random() % 7;
        for (std::size_t j = 0; j < length; ++j)
            text += alphabet[random() % alphabet.size()];
        texts.push_back(text);
    }
    for (int i = 0; i < 3000; ++i) {
        std::string text = random() % 4 == 0 ? "-" : "";
        text += std::to_string(random() % 300000);
        text += random() % 2 == 0 ? ',' : '.';
        for (std::size_t j = random() % 6; j > 0; --j)
            text += static_cast<char>('0' + random() % 10);
        texts.push_back(text);
    }
    Compare(texts);
}

TEST_F(NumberReading, ReadsWhatTheAutomationReadsInGerman) {
    const auto german = NumberSettings::German();
    EXPECT_EQ(Expected("1,50"), "150");
    EXPECT_EQ(Expected("1.50"), "15000");
    CompareAll();
}

TEST_F(NumberReading, ReadsWhatTheAutomationReadsInEnglish) {
    const auto english = NumberSettings::English();
    EXPECT_EQ(Expected("1.50"), "150");
    CompareAll();
}

TEST_F(NumberReading, ReadsWhatTheAutomationReadsWithOtherSeparators) {
    const NumberSettings swiss(L".", L"'");
    EXPECT_EQ(Expected("1'234.5"), "123450");
    CompareAll();
    Compare({"1'234.5", "'1", "1'", "1.2'3", "1.5"});
}

} // namespace
