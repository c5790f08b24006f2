#pragma once

#include "support/automation_test.h"
#include "support/message_boxes.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

#include <algorithm>

namespace catalogue {

/// A catalogue and a folder of symbol files.
class CatalogueTest : public support::AutomationTest {
protected:
    support::TempFolder folder;
    support::Ref<_CSymbolColl> symbols = support::Create<CSymbolColl, _CSymbolColl>();

    void AddFile(const wchar_t* name) const {
        const auto symbol =
            support::NewSymbol(0, 0, 10, 10, {{.type = symCircle, .points = {{1, 2}}, .radius = 3}});
        EXPECT_OK(symbol->put_FilePath(support::Bstr(folder / name)));
        EXPECT_OK(symbol->Write2File());
    }
    void AddBrokenFile(const wchar_t* name) const {
        support::WriteBytes(folder / name, std::string("\x03\0xyz", 5));
    }
    HRESULT Load(const std::wstring& path) const { return symbols->ReadKatalog(support::Bstr(path)); }

    /// The names in the catalogue, sorted: the order of a folder is the file system's.
    std::vector<std::wstring> Names() const {
        std::vector<std::wstring> names;
        LONG count = 0;
        EXPECT_OK(symbols->get_Count(&count));
        for (LONG i = 1; i <= count; ++i) {
            support::Ref<_CSymbol> symbol;
            EXPECT_OK(symbols->get_ItemByPos(i, symbol.Put()));
            names.push_back(support::NameOf(symbol.Get()));
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    /// The question about a file that does not load.
    support::Box FailureBox(const wchar_t* name, const std::wstring& description) const {
        return {support::ProgramTitle(),
                L"Das Symbol \"" + folder / name + L"\" konnte nicht geladen werden.\r\n" + description,
                {IDABORT, IDRETRY, IDIGNORE},
                support::BoxIcon::Stop};
    }
};

using Texts = std::vector<std::wstring>;

} // namespace catalogue
