#pragma once

#include "base/code_page.h"
#include "base/file_system.h"
#include "qsymbol/files/file_environment.h"

#include <string_view>

/// What all objects of QSymbol share: one of each in a process, made on first use.
namespace library {

/// Makes sure that the resource-string object exists; it opens "QRes.dll" once and lives as long as
/// the process.
void EnsureResources();

/// The user seam of this DLL: message boxes.
messages::UserPrompt& Prompt();

/// The file seam of this DLL.
base::FileSystem& Files();

/// The ANSI code page, in which texts stand in files.
const base::CodePage& CodePage();

/// Everything a symbol file needs, with the user's number settings as they are now.
qsymbol::FileEnvironment FileEnvironmentNow();

/// Shows the exception being handled to the user: source, line break, description. Never throws.
void ReportCurrentError(std::u16string_view source) noexcept;

/// The body of an operation that a user triggers: run, it shows an error under the source, which goes
/// no further.
template <class Body>
[[nodiscard]] auto ReportAndSwallow(std::u16string_view source, Body body) {
    return [source, body]() noexcept {
        try {
            body();
        } catch (...) {
            ReportCurrentError(source);
        }
    };
}

/// The body of an operation whose errors nobody is told.
template <class Body>
[[nodiscard]] auto Swallow(Body body) {
    return [body]() noexcept {
        try {
            body();
        } catch (...) { // NOLINT(bugprone-empty-catch): that is the contract
            return;
        }
    };
}

} // namespace library
