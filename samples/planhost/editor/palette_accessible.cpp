#include "palette_accessible.h"

namespace {

HRESULT Give(BSTR* text, const std::wstring& given) {
    if (text == nullptr)
        return E_INVALIDARG;
    *text = SysAllocStringLen(given.data(), static_cast<UINT>(given.size()));
    return *text != nullptr ? S_OK : E_OUTOFMEMORY;
}

HRESULT Give(VARIANT* number, LONG given) {
    if (number == nullptr)
        return E_INVALIDARG;
    V_VT(number) = VT_I4;
    V_I4(number) = given;
    return S_OK;
}

HRESULT GiveNone(VARIANT* number) {
    if (number == nullptr)
        return E_INVALIDARG;
    V_VT(number) = VT_EMPTY;
    return S_FALSE;
}

LONG ChildOf(std::size_t tile) {
    return static_cast<LONG>(tile) + 1;
}

} // namespace

LRESULT PaletteAccessible::Answer(WPARAM wParam) {
    return LresultFromObject(IID_IAccessible, wParam, this);
}

STDMETHODIMP PaletteAccessible::QueryInterface(REFIID id, void** object) {
    if (object == nullptr)
        return E_POINTER;
    const bool isKnown = id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible;
    *object = isKnown ? static_cast<IAccessible*>(this) : nullptr;
    if (!isKnown)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) PaletteAccessible::AddRef() {
    return ++references_;
}

STDMETHODIMP_(ULONG) PaletteAccessible::Release() {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

STDMETHODIMP PaletteAccessible::GetTypeInfoCount(UINT* count) {
    if (count == nullptr)
        return E_INVALIDARG;
    *count = 0;
    return S_OK;
}

HRESULT PaletteAccessible::Nothing(BSTR* text) {
    if (text == nullptr)
        return E_INVALIDARG;
    *text = nullptr;
    return S_FALSE;
}

HRESULT PaletteAccessible::Find(const VARIANT& child, std::optional<std::size_t>& tile) const {
    if (tiles_ == nullptr)
        return CO_E_OBJNOTCONNECTED;
    tile.reset();
    if (V_VT(&child) != VT_I4 || V_I4(&child) < CHILDID_SELF)
        return E_INVALIDARG;
    if (V_I4(&child) == CHILDID_SELF)
        return S_OK;
    tile = static_cast<std::size_t>(V_I4(&child)) - 1;
    return *tile < tiles_->Count() ? S_OK : E_INVALIDARG;
}

HRESULT PaletteAccessible::FindTile(const VARIANT& child, std::size_t& tile) const {
    std::optional<std::size_t> found;
    const HRESULT status = Find(child, found);
    if (FAILED(status))
        return status;
    tile = found.value_or(0);
    return found ? S_OK : DISP_E_MEMBERNOTFOUND;
}

STDMETHODIMP PaletteAccessible::get_accParent(IDispatch** parent) {
    if (parent == nullptr)
        return E_INVALIDARG;
    *parent = nullptr;
    if (tiles_ == nullptr)
        return CO_E_OBJNOTCONNECTED;
    return AccessibleObjectFromWindow(tiles_->Window(), static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                      reinterpret_cast<void**>(parent));
}

STDMETHODIMP PaletteAccessible::get_accChildCount(long* count) {
    if (count == nullptr)
        return E_INVALIDARG;
    *count = tiles_ != nullptr ? static_cast<long>(tiles_->Count()) : 0;
    return tiles_ != nullptr ? S_OK : CO_E_OBJNOTCONNECTED;
}

/// Tiles are no objects of their own.
STDMETHODIMP PaletteAccessible::get_accChild(VARIANT child, IDispatch** object) {
    if (object == nullptr)
        return E_INVALIDARG;
    *object = nullptr;
    std::optional<std::size_t> tile;
    const HRESULT status = Find(child, tile);
    return FAILED(status) ? status : S_FALSE;
}

STDMETHODIMP PaletteAccessible::get_accName(VARIANT child, BSTR* name) {
    std::optional<std::size_t> tile;
    const HRESULT status = Find(child, tile);
    return FAILED(status) ? status : Give(name, tile ? tiles_->NameOf(*tile) : L"Symbole");
}

STDMETHODIMP PaletteAccessible::get_accDescription(VARIANT child, BSTR* description) {
    std::optional<std::size_t> tile;
    const HRESULT status = Find(child, tile);
    if (FAILED(status))
        return status;
    return tile ? Give(description, tiles_->DescriptionOf(*tile)) : Nothing(description);
}

STDMETHODIMP PaletteAccessible::get_accRole(VARIANT child, VARIANT* role) {
    std::optional<std::size_t> tile;
    const HRESULT status = Find(child, tile);
    return FAILED(status) ? status : Give(role, tile ? ROLE_SYSTEM_LISTITEM : ROLE_SYSTEM_LIST);
}

STDMETHODIMP PaletteAccessible::get_accState(VARIANT child, VARIANT* state) {
    std::optional<std::size_t> tile;
    const HRESULT status = Find(child, tile);
    if (FAILED(status))
        return status;
    const bool hasFocus = GetFocus() == tiles_->Window();
    LONG states = STATE_SYSTEM_FOCUSABLE;
    if (!tile)
        return Give(state, hasFocus ? states | STATE_SYSTEM_FOCUSED : states);
    states |= STATE_SYSTEM_SELECTABLE;
    if (tiles_->SelectedTile() == tile)
        states |= hasFocus ? STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED : STATE_SYSTEM_SELECTED;
    RECT seen, part;
    const RECT place = tiles_->PlaceOf(*tile);
    GetClientRect(tiles_->Window(), &seen);
    if (!IntersectRect(&part, &seen, &place))
        states |= STATE_SYSTEM_OFFSCREEN;
    return Give(state, states);
}

HRESULT PaletteAccessible::GiveSelected(VARIANT* child) const {
    if (tiles_ == nullptr)
        return CO_E_OBJNOTCONNECTED;
    const std::optional<std::size_t> selected = tiles_->SelectedTile();
    return selected ? Give(child, ChildOf(*selected)) : GiveNone(child);
}

STDMETHODIMP PaletteAccessible::get_accFocus(VARIANT* child) {
    if (tiles_ == nullptr || GetFocus() == tiles_->Window())
        return GiveSelected(child);
    return GiveNone(child);
}

STDMETHODIMP PaletteAccessible::get_accSelection(VARIANT* child) {
    return GiveSelected(child);
}

STDMETHODIMP PaletteAccessible::get_accDefaultAction(VARIANT child, BSTR* action) {
    std::size_t tile;
    const HRESULT status = FindTile(child, tile);
    return FAILED(status) ? status : Give(action, L"Setzen");
}

STDMETHODIMP PaletteAccessible::accSelect(long flags, VARIANT child) {
    std::size_t tile;
    const HRESULT status = FindTile(child, tile);
    if (FAILED(status))
        return status;
    constexpr long kKnown = SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION;
    if ((flags & kKnown) == 0 || (flags & ~kKnown) != 0) // one tile at a time
        return E_INVALIDARG;
    if ((flags & SELFLAG_TAKEFOCUS) != 0)
        SetFocus(tiles_->Window());
    tiles_->SelectTile(tile);
    return S_OK;
}

STDMETHODIMP PaletteAccessible::accLocation(long* left, long* top, long* width, long* height, VARIANT child) {
    if (left == nullptr || top == nullptr || width == nullptr || height == nullptr)
        return E_INVALIDARG;
    std::optional<std::size_t> tile;
    const HRESULT status = Find(child, tile);
    if (FAILED(status))
        return status;
    RECT place;
    GetClientRect(tiles_->Window(), &place);
    if (tile)
        place = tiles_->PlaceOf(*tile);
    MapWindowPoints(tiles_->Window(), nullptr, reinterpret_cast<POINT*>(&place), 2);
    *left = place.left;
    *top = place.top;
    *width = place.right - place.left;
    *height = place.bottom - place.top;
    return S_OK;
}

/// From tile to tile, and from the list to its ends.
STDMETHODIMP PaletteAccessible::accNavigate(long direction, VARIANT start, VARIANT* end) {
    std::optional<std::size_t> tile;
    const HRESULT status = Find(start, tile);
    if (FAILED(status))
        return status;
    const std::size_t count = tiles_->Count();
    if (!tile && count > 0 && direction == NAVDIR_FIRSTCHILD)
        return Give(end, ChildOf(0));
    if (!tile && count > 0 && direction == NAVDIR_LASTCHILD)
        return Give(end, ChildOf(count - 1));
    if (tile && *tile + 1 < count && direction == NAVDIR_NEXT)
        return Give(end, ChildOf(*tile + 1));
    if (tile && *tile > 0 && direction == NAVDIR_PREVIOUS)
        return Give(end, ChildOf(*tile - 1));
    return GiveNone(end);
}

STDMETHODIMP PaletteAccessible::accHitTest(long left, long top, VARIANT* child) {
    if (tiles_ == nullptr)
        return CO_E_OBJNOTCONNECTED;
    POINT pixel{left, top};
    RECT seen;
    ScreenToClient(tiles_->Window(), &pixel);
    GetClientRect(tiles_->Window(), &seen);
    if (!PtInRect(&seen, pixel))
        return GiveNone(child);
    const std::optional<std::size_t> tile = tiles_->At(pixel);
    return Give(child, tile ? ChildOf(*tile) : CHILDID_SELF);
}

STDMETHODIMP PaletteAccessible::accDoDefaultAction(VARIANT child) {
    std::size_t tile;
    const HRESULT status = FindTile(child, tile);
    if (SUCCEEDED(status))
        tiles_->UseTile(tile);
    return status;
}
