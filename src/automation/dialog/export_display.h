#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

namespace dialog {

/// The caption of the export button while an export runs and the button stops it.
inline constexpr const char16_t* kStopCaption = u"&Anhalten";

/// What an export shows while it runs: bar, text, and the export button as its stop button.
class ExportDisplay {
public:
    ExportDisplay(HWND dialog, std::size_t count);
    ExportDisplay(const ExportDisplay&) = delete;
    ExportDisplay& operator=(const ExportDisplay&) = delete;
    ~ExportDisplay();

    /// The entry that is being worked on, counted from 1.
    void Tell(std::size_t current) const;

private:
    void ShowProgress(bool show) const;

    HWND button_;
    HWND bar_;
    HWND text_;
    std::size_t count_;
    std::u16string caption_;
};

} // namespace dialog
