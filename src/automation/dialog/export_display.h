#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

namespace dialog {

/// What an export shows while it runs: bar, text, and the export button as its stop button; afterwards a line that tells
/// what came of it.
class ExportDisplay {
public:
    ExportDisplay(HWND dialog, std::size_t count, const std::u16string& stopCaption);
    ExportDisplay(const ExportDisplay&) = delete;
    ExportDisplay& operator=(const ExportDisplay&) = delete;
    ~ExportDisplay();

    /// The entry that is being worked on, counted from 1.
    void Tell(std::size_t current) const;
    /// The line that stays.
    void Close(const std::u16string& line) const;

private:
    void ShowProgress(bool show) const;

    HWND button_;
    HWND bar_;
    HWND text_;
    HWND saved_;
    std::size_t count_;
    std::u16string caption_;
};

} // namespace dialog
