#include "dialog/dialog_fixture.h"
#include "support/text.h"

#include <gmock/gmock.h>

#include <cwctype>
#include <set>

/// Order, keys and places of the controls, at every size and with a font of twice the size.

namespace {

using namespace dialog;
using namespace support;
using testing::ElementsAre;

class Layout : public DialogTest {
protected:
    Layout() { Add({L"Bett", L"Tisch"}); }
    void Look(DialogUser::Action look) {
        user.Do(std::move(look));
        user.Press(IDCANCEL);
        EXPECT_EQ(Choose(), L"");
    }

    MessageBoxes none;
};

/// All controls that are seen at one time or another, in the order of the ids.
constexpr int kControls[] = {kListLabel, kList,   kPreview,  kWidthLabel,   kWidth, kHeightLabel,
                             kHeight,    kExport, kProgress, kProgressText, IDOK,   IDCANCEL};

long Width(const RECT& rect) {
    return rect.right - rect.left;
}
long Height(const RECT& rect) {
    return rect.bottom - rect.top;
}
bool Contains(const RECT& outer, const RECT& inner) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

/// Nothing is cut off, and nothing covers anything else.
void ExpectInOrder(const SelectionDialog& dialog) {
    const SIZE client = dialog.ClientSize();
    const RECT whole{0, 0, client.cx, client.cy};
    const RECT frame = dialog.Place(kFrame);
    EXPECT_TRUE(Contains(whole, frame));
    for (const int id : kControls) {
        const RECT place = dialog.Place(id);
        EXPECT_TRUE(Contains(whole, place)) << id;
        EXPECT_GT(Width(place), 0) << id;
        EXPECT_GT(Height(place), 0) << id;
        RECT common{};
        const bool inFrame = id >= kPreview && id <= kHeight;
        if (inFrame) {
            EXPECT_TRUE(Contains(frame, place)) << id;
        } else {
            EXPECT_FALSE(IntersectRect(&common, &frame, &place)) << id;
        }
        for (const int other : kControls) {
            const RECT otherPlace = dialog.Place(other);
            EXPECT_FALSE(id != other && IntersectRect(&common, &place, &otherPlace))
                << id << " and " << other;
        }
    }
    for (const int id : {kListLabel, kWidthLabel, kHeightLabel, kExport, IDOK, IDCANCEL})
        EXPECT_LE(dialog.TextWidth(id), Width(dialog.Place(id))) << id;
    EXPECT_LE(dialog.TextWidth(kFrame), Width(frame));
}

SIZE WindowSize(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return {Width(place), Height(place)};
}

/// The desktop's message font at a multiple of its size.
class LargeMessageFont {
public:
    explicit LargeMessageFont(int factor) {
        before_.cbSize = sizeof before_;
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof before_, &before_, 0);
        NONCLIENTMETRICSW large = before_;
        large.lfMessageFont.lfHeight *= factor;
        EXPECT_NE(SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof large, &large, 0), FALSE);
    }
    LargeMessageFont(const LargeMessageFont&) = delete;
    LargeMessageFont& operator=(const LargeMessageFont&) = delete;
    ~LargeMessageFont() { SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof before_, &before_, 0); }

private:
    NONCLIENTMETRICSW before_{};
};

LONG FontHeight(const SelectionDialog& dialog, int id) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HGDIOBJ>(SendMessageW(dialog.Control(id), WM_GETFONT, 0, 0)), sizeof font,
               &font);
    return font.lfHeight;
}

TEST_F(Layout, GermanCaptions) {
    Look([](const SelectionDialog& dialog) {
        EXPECT_EQ(dialog.Title(), L"Symbol auswählen");
        EXPECT_EQ(dialog.Text(kListLabel), L"&Symbole:");
        EXPECT_EQ(dialog.Text(kFrame), L"Vorschau");
        EXPECT_EQ(dialog.Text(kWidthLabel), L"Breite:");
        EXPECT_EQ(dialog.Text(kHeightLabel), L"Höhe:");
        EXPECT_EQ(dialog.Text(kExport), L"Alle als &JPEG speichern");
        EXPECT_EQ(dialog.Text(IDOK), L"OK");
        EXPECT_EQ(dialog.Text(IDCANCEL), L"Ab&brechen");
    });
}

TEST_F(Layout, TheFontIsTheDesktopsForMessages) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    Look([&](const SelectionDialog& dialog) {
        for (const HWND control : dialog.Controls()) {
            LOGFONTW font{};
            GetObjectW(reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)), sizeof font,
                       &font);
            EXPECT_EQ(font.lfHeight, metrics.lfMessageFont.lfHeight) << GetDlgCtrlID(control);
            EXPECT_STREQ(font.lfFaceName, metrics.lfMessageFont.lfFaceName) << GetDlgCtrlID(control);
        }
    });
}

TEST_F(Layout, TheTabOrder) {
    Look([](const SelectionDialog& dialog) {
        std::vector<int> order;
        HWND control = dialog.Control(kList);
        EXPECT_EQ(GetFocus(), control) << "the list has the focus first";
        do {
            order.push_back(GetDlgCtrlID(control));
            control = GetNextDlgTabItem(dialog.Window(), control, FALSE);
        } while (control != dialog.Control(kList) && order.size() < 20);
        EXPECT_THAT(order, ElementsAre(kList, kExport, IDOK, IDCANCEL));
    });
}

TEST_F(Layout, OkIsTheDefaultButton) {
    Look([](const SelectionDialog& dialog) {
        const auto result = SendMessageW(dialog.Window(), DM_GETDEFID, 0, 0);
        EXPECT_EQ(HIWORD(result), DC_HASDEFID);
        EXPECT_EQ(LOWORD(result), IDOK);
    });
}

TEST_F(Layout, AccessKeysAreUnique) {
    Look([](const SelectionDialog& dialog) {
        std::set<wint_t> keys;
        for (const HWND control : dialog.Controls()) {
            const std::wstring caption = dialog.Text(GetDlgCtrlID(control));
            const std::size_t mark = caption.find(L'&');
            if (mark != std::wstring::npos) {
                EXPECT_TRUE(keys.insert(std::towlower(caption[mark + 1])).second) << Narrow(caption);
            }
        }
        EXPECT_EQ(keys, (std::set<wint_t>{L's', L'j', L'b'}));
    });
}

TEST_F(Layout, AccessKeysReachTheirControls) {
    user.Do([](const SelectionDialog& dialog) {
        SetFocus(dialog.Control(IDCANCEL));
        dialog.AccessKey(L's');
    });
    user.Do([](const SelectionDialog& dialog) { EXPECT_EQ(GetFocus(), dialog.Control(kList)); });
    user.Do([](const SelectionDialog& dialog) { dialog.AccessKey(L'b'); });
    EXPECT_EQ(Choose(), L"");
}

TEST_F(Layout, EverythingHasItsPlaceAtTheOpeningSize) {
    Look(ExpectInOrder);
}

TEST_F(Layout, ThereIsASmallestSize) {
    Look([](const SelectionDialog& dialog) {
        const SIZE opening = WindowSize(dialog.Window());
        dialog.Resize({1, 1});
        const SIZE smallest = WindowSize(dialog.Window());
        EXPECT_GT(smallest.cx, 200);
        EXPECT_GT(smallest.cy, 100);
        EXPECT_LE(smallest.cx, opening.cx);
        EXPECT_LE(smallest.cy, opening.cy);
        ExpectInOrder(dialog);
    });
}

TEST_F(Layout, ListAndPreviewGrowTheRestMoves) {
    Look([](const SelectionDialog& dialog) {
        std::map<int, RECT> before;
        for (const int id : kControls)
            before[id] = dialog.Place(id);
        const SIZE opening = WindowSize(dialog.Window());
        dialog.Resize({opening.cx + 300, opening.cy + 200});
        ExpectInOrder(dialog);
        for (const int id : kControls) {
            const RECT now = dialog.Place(id);
            const bool grows = id == kList || id == kPreview;
            EXPECT_EQ(Height(now) - Height(before[id]), grows ? 200 : 0) << id;
            const bool below = id != kListLabel && !grows;
            EXPECT_EQ(now.top - before[id].top, below ? 200 : 0) << id;
        }
        EXPECT_EQ(Width(dialog.Place(kList)) - Width(before[kList]), 100);
        EXPECT_EQ(Width(dialog.Place(kPreview)) - Width(before[kPreview]), 200);
        for (const int id : {IDOK, IDCANCEL}) {
            EXPECT_EQ(dialog.Place(id).left - before[id].left, 300) << id;
            EXPECT_EQ(Width(dialog.Place(id)), Width(before[id])) << id;
        }
        EXPECT_EQ(dialog.Place(kExport).left, before[kExport].left);
    });
}

TEST_F(Layout, EverySizeIsInOrder) {
    Look([](const SelectionDialog& dialog) {
        for (const SIZE size : {SIZE{1, 700}, SIZE{700, 1}, SIZE{555, 444}, SIZE{1501, 901}, SIZE{1, 1}}) {
            dialog.Resize(size);
            ExpectInOrder(dialog);
        }
    });
}

TEST_F(Layout, AFontOfTwiceTheSizeDoublesTheDialog) {
    SIZE usual{};
    LONG usualHeight = 0;
    user.Do([&](const SelectionDialog& dialog) {
        usual = dialog.ClientSize();
        usualHeight = FontHeight(dialog, kList);
    });
    user.Press(IDCANCEL);
    EXPECT_EQ(Choose(), L"");
    const LargeMessageFont large(2);
    Look([&](const SelectionDialog& dialog) {
        EXPECT_EQ(FontHeight(dialog, kList), 2 * usualHeight);
        EXPECT_NEAR(dialog.ClientSize().cx, 2 * usual.cx, usual.cx / 5);
        EXPECT_NEAR(dialog.ClientSize().cy, 2 * usual.cy, usual.cy / 5);
        ExpectInOrder(dialog);
        dialog.Resize({1, 1});
        ExpectInOrder(dialog);
    });
}

TEST_F(Layout, NewResolutionsAreFollowed) {
    Look([](const SelectionDialog& dialog) {
        RECT place{40, 50, 740, 550};
        SendMessageW(dialog.Window(), 0x02E0 /* WM_DPICHANGED */, MAKEWPARAM(192, 192),
                     reinterpret_cast<LPARAM>(&place));
        RECT now{};
        GetWindowRect(dialog.Window(), &now);
        EXPECT_TRUE(EqualRect(&now, &place));
        ExpectInOrder(dialog);
    });
}

TEST_F(Layout, TheProgressIsSeenDuringAnExportOnly) {
    Look([](const SelectionDialog& dialog) {
        EXPECT_FALSE(dialog.IsShown(kProgress));
        EXPECT_FALSE(dialog.IsShown(kProgressText));
    });
}

} // namespace
