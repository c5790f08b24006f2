#include "cli/commands/symbols_by_name.h"

#include "base/letter_case.h"
#include "base/utf8.h"
#include "cli/paths.h"
#include "cli/symbol_files.h"
#include "cli/symbol_io.h"
#include "qmath/str_util.h"
#include "qplan/model/own_symbol.h"

namespace cli {

SymbolsByName::SymbolsByName(const std::u16string& folder, const Run& run) : run_(run) {
    const Kind kind = KindOf(folder);
    if (kind != Kind::Folder)
        throw FailureOf(folder, RunTime(kind == Kind::Missing ? base::RunTimeError::FileNotFound
                                                              : base::RunTimeError::PathFileAccess));
    for (const SourceFile& file : SymbolFiles({base::ToUtf8(folder)}, run)) {
        if (file.failure)
            throw FailureOf(file.path, *file.failure);
        const std::u16string_view name = qmath::NameWithoutExtension(qmath::FileNamePart(file.path));
        entries_.try_emplace(base::UpperCase(name), Entry{file.path, nullptr});
    }
}

std::shared_ptr<const qplan::PlacedSymbol> SymbolsByName::Find(std::u16string_view name) {
    const auto found = entries_.find(base::UpperCase(name));
    if (found == entries_.end())
        return nullptr;
    auto& [path, symbol] = found->second;
    try {
        if (symbol == nullptr)
            symbol = std::make_shared<qplan::OwnSymbol>(ReadSymbol(path, run_));
    } catch (const base::Error& error) {
        throw FailureOf(path, error);
    }
    return symbol;
}

} // namespace cli
