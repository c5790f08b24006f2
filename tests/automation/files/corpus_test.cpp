#include "support/automation_test.h"
#include "support/no_boxes.h"
#include "support/number_settings.h"
#include "support/servers.h"
#include "support/shapes.h"
#include "support/temp_folder.h"
#include "support/text.h"

#include <regex>
#include <set>

namespace {

using support::NewSymbolAt;
using support::Outcome;
using support::Ref;

/// What the fuzzers start from and what they found worth keeping, read by the delivered library: with the
/// system's code page and its way to read numbers.
class Corpus : public support::AutomationTest,
               public testing::WithParamInterface<std::pair<const wchar_t*, const wchar_t*>> {
protected:
    static constexpr LONG kOldWidth = 1234567891;
    support::TempFolder folder;
    support::NumberSettings german = support::NumberSettings::German();
    support::NoBoxes nobody;

    /// Every file of a folder beside the tests.
    static std::vector<std::wstring> Files(const std::wstring& path) {
        std::vector<std::wstring> files;
        WIN32_FIND_DATAW found{};
        const HANDLE search = FindFirstFileW((path + L"\\*").c_str(), &found);
        for (BOOL more = search != INVALID_HANDLE_VALUE; more != FALSE; more = FindNextFileW(search, &found))
            if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
                files.push_back(path + L'\\' + found.cFileName);
        FindClose(search);
        return files;
    }

    /// Writes the symbol to a new file and reads it back; the file's bytes, "" when writing refuses it.
    std::string WrittenAndRead(_CSymbol& symbol, const wchar_t* name) const {
        EXPECT_OK(symbol.put_FilePath(support::Bstr(folder / name)));
        if (FAILED(Outcome(symbol.Write2File()).status))
            return {}; // native tests tell when
        std::string bytes = support::ReadBytes(folder / name);
        EXPECT_OK(symbol.ReadFromFile());
        DeleteFileW((folder / name).c_str());
        return bytes;
    }

    /// What reads can be written, and reads again as what it was.
    void ExpectRoundTrips(_CSymbol& symbol) const {
        Ref<_CSymElementColl> elements;
        LONG count = 0;
        EXPECT_OK(symbol.GetSymElements(elements.Put()));
        EXPECT_OK(elements->get_Count(&count));
        if (count == 0)
            return; // is written, but reading wants an element
        if (WrittenAndRead(symbol, L"again.syb").size() > 1000000)
            return; // a count of many empty elements
        // From now on each element has a font.
        const std::string bytes = WrittenAndRead(symbol, L"again.syb");
        EXPECT_TRUE(!bytes.empty() && WrittenAndRead(symbol, L"again.syb") == bytes);
        // What text has no place for is gone after the first time; angles of many turns go on losing digits.
        if (WrittenAndRead(symbol, L"again.syt").empty())
            return;
        const std::string text = WrittenAndRead(symbol, L"again.syt");
        static const std::regex manyTurns("ANG=-?[0-9.]{9}");
        EXPECT_TRUE(std::regex_search(text, manyTurns) || WrittenAndRead(symbol, L"again.syt") == text);
    }
};

INSTANTIATE_TEST_SUITE_P(Formats, Corpus,
                         testing::Values(std::pair{L"text_reader", L"x.syt"},
                                         std::pair{L"binary_reader", L"x.syb"},
                                         std::pair{L"import_reader", L"x.wsc"}),
                         [](const auto& tested) { return std::string(support::Narrow(tested.param.first)); });

TEST_P(Corpus, ReadsOrFailsAsTheFormatSays) {
    const std::set<int> errors = {6, 7, 9, 13, 62, 3501, 3502};
    const std::wstring path = folder / GetParam().second;
    int count = 0;
    for (const wchar_t* const kind : {L"seeds\\", L"corpus\\"}) {
        for (const std::wstring& file :
             Files(support::ProgramFolder() + L"fuzz\\" + kind + GetParam().first)) {
            ++count;
            ASSERT_NE(CopyFileW(file.c_str(), path.c_str(), FALSE), FALSE);
            const Ref<_CSymbol> symbol = support::NewSymbol(
                1, 2, kOldWidth, 4, {{.type = symText, .points = {{1, 2}}, .text = L"\xE000"}});
            EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
            const HRESULT status = Outcome(symbol->ReadFromFile()).status;
            EXPECT_TRUE(status == S_OK || errors.contains(status & 0xFFFF)) << support::Narrow(file);
            LONG width = 0;
            EXPECT_OK(symbol->get_Width(&width));
            EXPECT_NE(width, kOldWidth) << "old content: " << support::Narrow(file);
            if (status == S_OK)
                ExpectRoundTrips(*symbol.Get());
        }
    }
    EXPECT_GE(count, 12);
}

} // namespace
