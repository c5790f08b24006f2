#pragma once

#include "plan_document.h"

#include <array>
#include <functional>

/// A strip with the name, the place and the angle of what is marked, to be typed over. Of several symbols it shows what they
/// have in common, and changes all.
class PropertiesBar {
public:
    /// Given the changed symbols; may fail, and explains it itself.
    using Apply = std::function<void(const std::vector<PlacedSymbol>&)>;

    PropertiesBar() = default;
    PropertiesBar(const PropertiesBar&) = delete;
    ~PropertiesBar() { DeleteObject(font_); }

    void Create(HWND parent, Apply apply, std::function<void()> leave);
    int Height(UINT dots) const;
    void MoveTo(const RECT& area, UINT dots);
    void Show(const PlanDocument& document);
    void Focus() const;

private:
    enum Field { Name, X, Y, Angle, Count };

    static LRESULT CALLBACK OnFieldMessage(HWND field, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR number, DWORD_PTR bar);
    bool OnKey(Field field, WPARAM key);
    void Take(Field field);
    void ShowField(Field field, const std::wstring& text);

    HWND window_ = nullptr;
    HFONT font_ = nullptr;
    std::array<HWND, Count> labels_{};
    std::array<HWND, Count> fields_{};
    std::array<std::wstring, Count> texts_; ///< as they were shown
    std::vector<PlacedSymbol> symbols_;
    unsigned state_ = 0;
    std::vector<std::size_t> places_;
    Apply apply_;
    std::function<void()> leave_;
};
