#include "host/scenarios.h"
#include "support/automation_test.h"
#include "support/dialog_user.h"
#include "support/message_boxes.h"
#include "support/shapes.h"
#include "support/temp_folder.h"
#include "support/text.h"

#include <objbase.h>

#include <cstdio>
#include <map>

// A host program for what the library does once in a process. It works in its current folder or in one
// that it is told, writes what it sees to the standard output, and ends with 0 when nothing failed that
// should not.

namespace {

using support::Narrow;
using support::NewSymbolAt;
using support::Outcome;

std::wstring Here(const wchar_t* name) {
    wchar_t folder[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, folder);
    return std::wstring(folder) + L'\\' + name;
}

void Tell(const std::wstring& text) {
    std::printf("%s\n", Narrow(text).c_str());
}

/// The library's own three errors.
void TellMessages() {
    support::WriteLines(Here(L"kopf.syt"), {"SYM;CNT=1;WID=1;HEI=1;RPX=0;XYZ=0"});
    Tell(Outcome(NewSymbolAt(L"ohne")->ReadFromFile()).description);
    Tell(Outcome(NewSymbolAt(Here(L"kopf.syt"))->ReadFromFile()).description);
    Tell(Outcome(NewSymbolAt(L"ohne")->Write2File()).description);
}

/// The box that a catalogue shows for a broken file, which must be there.
void TellCatalogueBox() {
    support::MessageBoxes boxes{IDIGNORE};
    wchar_t folder[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, folder);
    EXPECT_OK((support::Create<CSymbolColl, _CSymbolColl>()->ReadKatalog(support::Bstr(folder))));
    for (const support::Box& box : boxes.Seen()) {
        Tell(box.title);
        Tell(box.text);
    }
}

/// Messages before and after the resource library gets its right name: it is looked for once.
void TellMessagesAroundARename() {
    TellMessages();
    EXPECT_NE(MoveFileW(Here(L"später.dll").c_str(), Here(L"QRes.dll").c_str()), FALSE);
    TellMessages();
    EXPECT_OK((support::Create<CSymElement, _CSymElement>()->Init()));
    TellMessages();
}

/// The captions of the selection dialog, and whether each button has room for its own.
void TellCaptions() {
    using namespace support;
    DialogUser user;
    user.Do([](const SelectionDialog& dialog) {
        Tell(dialog.Title());
        for (const int id : {kFrame, kListLabel, kExport, kWidthLabel, kHeightLabel, IDOK, IDCANCEL})
            Tell(dialog.Text(id));
        const RECT button = dialog.Place(kExport);
        Tell(dialog.TextWidth(kExport) < button.right - button.left ? L"fits" : L"is cut off");
    });
    user.Press(IDCANCEL);
    Bstr chosen;
    EXPECT_OK((Create<CSymbolColl, _CSymbolColl>()->SelectSymNameDlg(Bstr(L""), chosen.Put())));
}

/// The selection dialog as a user sees it, on a desktop of any resolution; what he chose.
void Choose() {
    SetProcessDPIAware();
    const auto catalogue = support::Create<CSymbolColl, _CSymbolColl>();
    EXPECT_OK(catalogue->ReadKatalog(support::Bstr(Here(L"katalog"))));
    support::Bstr chosen;
    EXPECT_OK(catalogue->SelectSymNameDlg(support::Bstr(L"Sofa+" + Here(L"bilder")), chosen.Put()));
    Tell(L"chosen: " + chosen.Text());
}

} // namespace

int main(int argc, char** argv) {
    const std::map<std::string, void (*)()> scenarios = {{"messages", TellMessages},
                                                         {"catalogue", TellCatalogueBox},
                                                         {"rename", TellMessagesAroundARename},
                                                         {"captions", TellCaptions},
                                                         {"choose", Choose},
                                                         {"alone", TellLateBinding},
                                                         {"plan", TellLateBoundPlan},
                                                         {"threads", TellThreads}};
    testing::InitGoogleTest();
    if (argc < 2 || argc > 3 || !scenarios.contains(argv[1]) ||
        (argc == 3 && SetCurrentDirectoryA(argv[2]) == FALSE) ||
        FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)))
        return 2;
    scenarios.at(argv[1])();
    CoUninitialize();
    return testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 1 : 0;
}
