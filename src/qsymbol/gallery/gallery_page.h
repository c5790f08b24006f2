#pragma once

#include "qsymbol/model/symbol.h"

#include <string>
#include <string_view>
#include <vector>

namespace qsymbol {

/// A catalogue as one HTML page to look through: no request ever leaves it.
///
/// Categories stand in the order in which they came first, symbols in the order in which they came.
class GalleryPage {
public:
    explicit GalleryPage(std::u16string_view title) : title_(title) {}

    /// The category is the symbol's folder, "" for none; the file's name is shown beside its measures. Errors of
    /// DrawSymbol; the page is as before then.
    void Add(std::u16string_view name, std::u16string_view category, std::u16string_view file,
             const Symbol& symbol);

    /// The page's bytes in UTF-8.
    std::string Compose() const;

private:
    struct Category {
        std::u16string name;
        std::vector<std::string> cards;
    };

    std::string Sections() const;
    std::string Chips() const;

    std::u16string title_;
    std::vector<Category> categories_;
    std::size_t count_ = 0;
};

} // namespace qsymbol
