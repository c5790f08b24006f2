#include "print_dialog.h"

#include "../bitmap.h"
#include "../print_page.h"
#include "../text.h"
#include "dialog_support.h"
#include "plan_files.h"
#include "resource.h"

#include <commdlg.h>

#include <algorithm>

namespace {

struct ScaleForm {
    const wchar_t* name;
    double reduction;
};

constexpr ScaleForm kScales[] = {{L"auf ein Blatt einpassen", 0}, {L"1:50", 50}, {L"1:100", 100}};
constexpr int kGap = 4; // pixels between the sheets of the preview

/// The device context of a printer.
class Printer {
public:
    explicit Printer(HDC dc) : dc_(dc) {}
    Printer(const Printer&) = delete;
    ~Printer() { DeleteDC(dc_); }

    HDC Dc() const { return dc_; }

private:
    HDC dc_;
};

Paper PaperOf(HDC printer) {
    constexpr double kMillimetresPerInch = 25.4;
    return {{GetDeviceCaps(printer, HORZRES), GetDeviceCaps(printer, VERTRES)},
            GetDeviceCaps(printer, LOGPIXELSX) / kMillimetresPerInch,
            GetDeviceCaps(printer, LOGPIXELSY) / kMillimetresPerInch};
}

/// Of the printer that is the user's usual one; A4 on its side where there is none.
Paper UsualPaper() {
    PRINTDLGW form{};
    form.lStructSize = sizeof form;
    form.Flags = PD_RETURNDEFAULT | PD_RETURNDC;
    Paper paper{{3272, 2244}, 300 / 25.4, 300 / 25.4};
    if (PrintDlgW(&form)) {
        paper = PaperOf(form.hDC);
        DeleteDC(form.hDC);
        GlobalFree(form.hDevMode);
        GlobalFree(form.hDevNames);
    }
    return paper;
}

struct Question {
    const PlanDocument& document;
    Paper paper;
    double reduction;
};

PrintLayout LayoutOf(const Question& question) {
    return LayOutPrint(question.document.Content(), question.paper, question.reduction);
}

/// All sheets side by side, each drawn as it will be printed, in the dots of the screen.
void DrawPreview(HDC dc, const RECT& area, const Question& question) {
    FillRect(dc, &area, reinterpret_cast<HBRUSH>(COLOR_3DSHADOW + 1));
    const PrintLayout layout = LayoutOf(question);
    const Paper& paper = question.paper;
    const double shrink =
        std::max({paper.dots.cx / ((area.right - area.left) / static_cast<double>(layout.columns) - kGap),
                  paper.dots.cy / ((area.bottom - area.top) / static_cast<double>(layout.rows) - kGap), 1.0});
    const Paper small{{static_cast<LONG>(paper.dots.cx / shrink), static_cast<LONG>(paper.dots.cy / shrink)},
                      paper.dotsAcross / shrink,
                      paper.dotsDown / shrink};
    for (int sheet = 0; sheet < layout.Sheets(); ++sheet) {
        Bitmap picture(small.dots.cx, small.dots.cy);
        DrawSheetOnScreen(picture.Dc(), small, layout, sheet, question.document.Content(),
                          question.document.Placed());
        BitBlt(dc, area.left + kGap / 2 + sheet % layout.columns * (small.dots.cx + kGap),
               area.top + kGap / 2 + sheet / layout.columns * (small.dots.cy + kGap), small.dots.cx,
               small.dots.cy, picture.Dc(), 0, 0, SRCCOPY);
    }
}

void ShowSheets(HWND dialog, const Question& question) {
    const PrintLayout layout = LayoutOf(question);
    const std::wstring text = L"1:" + std::to_wstring(static_cast<int>(layout.reduction + 0.5)) + L", " +
                              std::to_wstring(layout.Sheets()) +
                              (layout.Sheets() == 1 ? L" Blatt" : L" Blätter");
    SetDlgItemTextW(dialog, IDC_PAGES, text.c_str());
    InvalidateRect(GetDlgItem(dialog, IDC_PREVIEW), nullptr, FALSE);
}

INT_PTR CALLBACK OnMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        CentreOverOwner(dialog);
        for (const ScaleForm& scale : kScales)
            SendDlgItemMessageW(dialog, IDC_SCALE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(scale.name));
        SendDlgItemMessageW(dialog, IDC_SCALE, CB_SETCURSEL, 0, 0);
        ShowSheets(dialog, *reinterpret_cast<Question*>(lParam));
        return TRUE;
    }
    auto* question = reinterpret_cast<Question*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (message == WM_DRAWITEM) {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        try {
            DrawPreview(item.hDC, item.rcItem, *question);
        } catch (const Failure&) {
            // What fails is told when it is printed.
        }
        return TRUE;
    }
    if (message != WM_COMMAND)
        return FALSE;
    if (LOWORD(wParam) == IDC_SCALE && HIWORD(wParam) == CBN_SELCHANGE) {
        question->reduction = kScales[SendDlgItemMessageW(dialog, IDC_SCALE, CB_GETCURSEL, 0, 0)].reduction;
        ShowSheets(dialog, *question);
    }
    if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)
        EndDialog(dialog, LOWORD(wParam));
    return TRUE;
}

void PrintOn(const Printer& printer, const Question& question) {
    const PrintLayout layout = LayoutOf(question);
    const std::wstring name = PlanName(question.document);
    DOCINFOW job{};
    job.cbSize = sizeof job;
    job.lpszDocName = name.c_str();
    if (StartDocW(printer.Dc(), &job) <= 0)
        throw Failure{L"Der Drucker nimmt keinen Auftrag an."};
    try {
        for (int sheet = 0; sheet < layout.Sheets(); ++sheet) {
            StartPage(printer.Dc());
            DrawSheetForPrinter(printer.Dc(), question.paper, layout, sheet, question.document.Content(),
                                question.document.Placed());
            EndPage(printer.Dc());
        }
    } catch (const Failure&) {
        AbortDoc(printer.Dc());
        throw;
    }
    EndDoc(printer.Dc());
}

} // namespace

void PrintPlan(HWND owner, const PlanDocument& document) {
    Question question{document, UsualPaper(), 0};
    if (ShowDialog(owner, IDD_PRINT, OnMessage, &question) != IDOK)
        return;
    PRINTDLGW form{};
    form.lStructSize = sizeof form;
    form.hwndOwner = owner;
    form.Flags = PD_RETURNDC | PD_NOPAGENUMS | PD_NOSELECTION | PD_USEDEVMODECOPIESANDCOLLATE;
    if (!PrintDlgW(&form)) {
        if (CommDlgExtendedError() != 0)
            throw Failure{L"Es ist kein Drucker da."};
        return;
    }
    const Printer printer(form.hDC);
    GlobalFree(form.hDevMode);
    GlobalFree(form.hDevNames);
    question.paper = PaperOf(printer.Dc());
    PrintOn(printer, question);
}
