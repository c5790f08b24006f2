#pragma once

#include "../com.h"

#include <oleacc.h>

#include <cstddef>
#include <optional>
#include <string>

/// A list of tiles as screen readers ask for it.
class AccessibleTiles {
public:
    virtual HWND Window() const = 0;
    virtual std::size_t Count() const = 0;
    virtual std::wstring NameOf(std::size_t tile) const = 0;
    virtual std::wstring DescriptionOf(std::size_t tile) const = 0;
    /// In pixels of the window.
    virtual RECT PlaceOf(std::size_t tile) const = 0;
    virtual std::optional<std::size_t> At(POINT pixel) const = 0;
    virtual std::optional<std::size_t> SelectedTile() const = 0;
    virtual void SelectTile(std::size_t tile) = 0;
    /// What a click does.
    virtual void UseTile(std::size_t tile) = 0;

protected:
    ~AccessibleTiles() = default;
};

/// Tells screen readers what is in the list: each tile is a child by its number, counted from 1, with name, description,
/// place and state.
class PaletteAccessible final : public IAccessible {
public:
    static Ptr<PaletteAccessible> Create(AccessibleTiles& tiles) { return Ptr(new PaletteAccessible(tiles)); }
    /// The list is gone; screen readers may hold this object still.
    void Forget() { tiles_ = nullptr; }
    /// Answers WM_GETOBJECT.
    LRESULT Answer(WPARAM wParam);

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    // Screen readers are early bound.
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

    STDMETHODIMP get_accParent(IDispatch** parent) override;
    STDMETHODIMP get_accChildCount(long* count) override;
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
    STDMETHODIMP get_accValue(VARIANT, BSTR* value) override { return Nothing(value); }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override;
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
    STDMETHODIMP get_accHelp(VARIANT, BSTR* help) override { return Nothing(help); }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT, long*) override { return Nothing(file); }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT, BSTR* key) override { return Nothing(key); }
    STDMETHODIMP get_accFocus(VARIANT* child) override;
    STDMETHODIMP get_accSelection(VARIANT* child) override;
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
    STDMETHODIMP accSelect(long flags, VARIANT child) override;
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) override;
    STDMETHODIMP accHitTest(long left, long top, VARIANT* child) override;
    STDMETHODIMP accDoDefaultAction(VARIANT child) override;
    STDMETHODIMP put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

private:
    explicit PaletteAccessible(AccessibleTiles& tiles) : tiles_(&tiles) {}
    virtual ~PaletteAccessible() = default;

    static HRESULT Nothing(BSTR* text);
    /// Finds what is meant by a child; tile: nothing for the list itself. Fails when there is no such child.
    HRESULT Find(const VARIANT& child, std::optional<std::size_t>& tile) const;
    /// The same for calls that mean something for tiles only.
    HRESULT FindTile(const VARIANT& child, std::size_t& tile) const;
    HRESULT GiveSelected(VARIANT* child) const;

    ULONG references_ = 1;
    AccessibleTiles* tiles_;
};
