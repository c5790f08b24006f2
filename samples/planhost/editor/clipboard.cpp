#include "clipboard.h"

#include "../text.h"

#include <cstring>
#include <sstream>

namespace {

/// The lines of a plan file, UTF-8.
UINT Format() {
    static const UINT format = RegisterClipboardFormatW(L"Planhost-Symbole");
    return format;
}

/// The clipboard while this window has it open.
class Clipboard {
public:
    explicit Clipboard(HWND owner) {
        if (!OpenClipboard(owner))
            throw Failure{L"Die Zwischenablage ist gerade nicht frei."};
    }
    Clipboard(const Clipboard&) = delete;
    ~Clipboard() { CloseClipboard(); }

    void Put(UINT format, const void* data, std::size_t size) const {
        const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
        if (memory == nullptr)
            throw Failure{L"Für die Zwischenablage reicht der Speicher nicht."};
        std::memcpy(GlobalLock(memory), data, size);
        GlobalUnlock(memory);
        if (SetClipboardData(format, memory) == nullptr)
            GlobalFree(memory);
    }
};

} // namespace

void CopySymbols(HWND owner, const std::vector<PlacedSymbol>& symbols) {
    const std::string lines = SymbolLines(symbols);
    const std::wstring text = FromUtf8(lines);
    const Clipboard clipboard(owner);
    EmptyClipboard();
    clipboard.Put(Format(), lines.c_str(), lines.size() + 1);
    clipboard.Put(CF_UNICODETEXT, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

bool CanPasteSymbols() {
    return IsClipboardFormatAvailable(Format());
}

std::vector<PlacedSymbol> SymbolsOnClipboard(HWND owner) {
    std::string lines;
    {
        const Clipboard clipboard(owner);
        const HANDLE memory = GetClipboardData(Format());
        if (memory == nullptr)
            return {};
        // Whoever put it there may have forgotten the end.
        const auto* bytes = static_cast<const char*>(GlobalLock(memory));
        lines.assign(bytes, strnlen(bytes, GlobalSize(memory)));
        GlobalUnlock(memory);
    }
    std::istringstream text("PLAN;;1;1\n" + lines);
    std::vector<PlacedSymbol> symbols = ParsePlan(text, L"Zwischenablage").symbols;
    for (PlacedSymbol& symbol : symbols)
        symbol.line = 0;
    return symbols;
}
