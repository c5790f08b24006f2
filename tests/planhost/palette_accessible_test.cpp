#include "editor/palette_list.h"
#include "text.h"

#include <gtest/gtest.h>

// The palette as a screen reader finds it.

namespace {

class Owner final : public PaletteListOwner {
public:
    _CSymbol& SymbolOf(std::size_t) override { throw Failure{L"nothing is painted here"}; }
    void Place(std::size_t number) override { placed = number; }
    void Drag(std::size_t) override {}
    void ToggleFavourite(std::size_t) override {}
    void Reload() override {}
    void TypeOn(wchar_t) override {}
    void Leave() override {}
    void FocusNext(bool) override {}

    std::optional<std::size_t> placed;
};

VARIANT Child(LONG number) {
    VARIANT child{};
    V_VT(&child) = VT_I4;
    V_I4(&child) = number;
    return child;
}

class PaletteReaders : public testing::Test {
protected:
    PaletteReaders() {
        model_.SetSymbols({{L"Bidet", L"Bad", L"370 × 540 mm"},
                           {L"Urinal", L"Bad", L"350 × 320 mm"},
                           {L"Sofa", L"Möbel", L"2100 × 900 mm"}});
        model_.SetFavourites({L"Sofa"});
        list_ = std::make_unique<PaletteList>(model_, owner_);
        list_->Create(parent_);
        MoveWindow(list_->Window(), 0, 0, 240, 200, FALSE);
        list_->UseLook(look_);
        list_->ModelChanged(false);
        reader_ = PaletteAccessible::Create(*list_);
    }
    ~PaletteReaders() override { DestroyWindow(parent_); }

    using Text = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
    std::wstring Read(Text text, LONG child) {
        Bstr read;
        EXPECT_EQ((reader_.Get()->*text)(Child(child), read.Put()), S_OK);
        return read.Get() != nullptr ? read.Text() : L"";
    }
    using Figure = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, VARIANT*);
    LONG Read(Figure figure, LONG child) {
        VARIANT read{};
        EXPECT_EQ((reader_.Get()->*figure)(Child(child), &read), S_OK);
        EXPECT_EQ(V_VT(&read), VT_I4);
        return V_I4(&read);
    }

    ComThread com_;
    Owner owner_;
    PaletteModel model_;
    PaletteLook look_{96};
    HWND parent_ = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 30, 40, 240, 200, nullptr,
                                   nullptr, nullptr, nullptr);
    std::unique_ptr<PaletteList> list_;
    Ptr<PaletteAccessible> reader_;
};

} // namespace

TEST_F(PaletteReaders, FindAListOfNamedTiles) {
    long count = 0;
    ASSERT_EQ(reader_->get_accChildCount(&count), S_OK);
    ASSERT_EQ(count, 4); // the favourite stands on top as well
    EXPECT_EQ(Read(&IAccessible::get_accName, CHILDID_SELF), L"Symbole");
    EXPECT_EQ(Read(&IAccessible::get_accRole, CHILDID_SELF), ROLE_SYSTEM_LIST);
    const wchar_t* const names[] = {L"Sofa", L"Bidet", L"Urinal", L"Sofa"};
    for (LONG child = 1; child <= 4; ++child) {
        EXPECT_EQ(Read(&IAccessible::get_accName, child), names[child - 1]);
        EXPECT_EQ(Read(&IAccessible::get_accRole, child), ROLE_SYSTEM_LISTITEM);
        EXPECT_EQ(Read(&IAccessible::get_accDefaultAction, child), L"Setzen");
    }
    EXPECT_EQ(Read(&IAccessible::get_accDescription, 2), L"370 × 540 mm, Bad");
    EXPECT_EQ(Read(&IAccessible::get_accDescription, 4), L"2100 × 900 mm, Möbel, Favorit");
}

TEST_F(PaletteReaders, FindItByItsWindow) {
    Ptr<IAccessible> found;
    const HRESULT status = AccessibleObjectFromWindow(list_->Window(), static_cast<DWORD>(OBJID_CLIENT),
                                                      IID_IAccessible, reinterpret_cast<void**>(found.Put()));
    if (status == E_NOINTERFACE)
        GTEST_SKIP() << "this system's oleacc cannot hand the interface over";
    ASSERT_EQ(status, S_OK);
    Bstr name;
    ASSERT_EQ(found->get_accName(Child(2), name.Put()), S_OK);
    EXPECT_EQ(name.Text(), L"Bidet");
}

TEST_F(PaletteReaders, SelectAndUseTiles) {
    EXPECT_EQ(Read(&IAccessible::get_accState, 1) & STATE_SYSTEM_SELECTED, 0);
    VARIANT selected{};
    EXPECT_EQ(reader_->get_accSelection(&selected), S_FALSE);
    EXPECT_EQ(V_VT(&selected), VT_EMPTY);
    ASSERT_EQ(reader_->accSelect(SELFLAG_TAKESELECTION, Child(3)), S_OK);
    EXPECT_EQ(list_->Selected(), 1U); // the number of "Urinal"
    EXPECT_NE(Read(&IAccessible::get_accState, 3) & STATE_SYSTEM_SELECTED, 0);
    ASSERT_EQ(reader_->get_accSelection(&selected), S_OK);
    EXPECT_EQ(V_I4(&selected), 3);
    EXPECT_EQ(owner_.placed, std::nullopt);
    ASSERT_EQ(reader_->accDoDefaultAction(Child(4)), S_OK);
    EXPECT_EQ(owner_.placed, 2U);
}

TEST_F(PaletteReaders, FindTilesWhereTheyAreShown) {
    long left = 0, top = 0, width = 0, height = 0;
    ASSERT_EQ(reader_->accLocation(&left, &top, &width, &height, Child(1)), S_OK);
    VARIANT hit{};
    ASSERT_EQ(reader_->accHitTest(left + width / 2, top + height / 2, &hit), S_OK);
    EXPECT_EQ(V_I4(&hit), 1);
    ASSERT_EQ(reader_->accHitTest(left + width / 2, top - 2, &hit), S_OK); // the heading
    EXPECT_EQ(V_I4(&hit), CHILDID_SELF);
    EXPECT_EQ(reader_->accHitTest(left - 1000, top, &hit), S_FALSE);
    EXPECT_EQ(Read(&IAccessible::get_accState, 1) & STATE_SYSTEM_OFFSCREEN, 0);
    EXPECT_NE(Read(&IAccessible::get_accState, 4) & STATE_SYSTEM_OFFSCREEN, 0)
        << "three rows are higher than the window";
    ASSERT_EQ(reader_->accSelect(SELFLAG_TAKESELECTION, Child(4)), S_OK);
    EXPECT_EQ(Read(&IAccessible::get_accState, 4) & STATE_SYSTEM_OFFSCREEN, 0) << "it comes into sight";
}

TEST_F(PaletteReaders, GoFromTileToTile) {
    const auto go = [&](long direction, LONG from) {
        VARIANT to{};
        return reader_->accNavigate(direction, Child(from), &to) == S_OK ? V_I4(&to) : -1;
    };
    EXPECT_EQ(go(NAVDIR_FIRSTCHILD, CHILDID_SELF), 1);
    EXPECT_EQ(go(NAVDIR_LASTCHILD, CHILDID_SELF), 4);
    EXPECT_EQ(go(NAVDIR_NEXT, 1), 2);
    EXPECT_EQ(go(NAVDIR_PREVIOUS, 2), 1);
    EXPECT_EQ(go(NAVDIR_NEXT, 4), -1);
    EXPECT_EQ(go(NAVDIR_PREVIOUS, 1), -1);
}

TEST_F(PaletteReaders, AskForWhatIsNotThere) {
    Bstr name;
    EXPECT_EQ(reader_->get_accName(Child(5), name.Put()), E_INVALIDARG);
    EXPECT_EQ(reader_->get_accName(Child(-1), name.Put()), E_INVALIDARG);
    EXPECT_EQ(reader_->accDoDefaultAction(Child(CHILDID_SELF)), DISP_E_MEMBERNOTFOUND);
    reader_->Forget();
    long count = 1;
    EXPECT_EQ(reader_->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(reader_->get_accName(Child(1), name.Put()), CO_E_OBJNOTCONNECTED);
}
