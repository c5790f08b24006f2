#include "qsymbol/compare/catalogue_difference.h"

#include "base/letter_case.h"
#include "qmath/str_util.h"

#include <algorithm>
#include <unordered_map>

namespace qsymbol {

namespace {

/// Symbols under one key that have no partner yet, by their place.
using Waiting = std::unordered_multimap<std::u16string, std::size_t>;

/// What symbols of the same content have in common at any precision.
std::u16string ContentKey(const Symbol& symbol) {
    std::u16string key;
    const auto put = [&](std::int64_t value) {
        for (int shift = 0; shift < 64; shift += 16)
            key += static_cast<char16_t>(static_cast<std::uint64_t>(value) >> shift);
    };
    put(symbol.width);
    put(symbol.height);
    put(symbol.refX);
    put(symbol.refY);
    for (const ElementRecord& element : symbol.elements) {
        if (element.type < ElementType::Poly || element.type > ElementType::Text)
            continue;
        put(static_cast<std::int32_t>(element.type));
        put(element.mainColor);
        for (const qmath::Point point : element.points) {
            put(point.x);
            put(point.y);
        }
    }
    return key;
}

class Matching {
public:
    Matching(const std::vector<CatalogueSymbol>& before, const std::vector<CatalogueSymbol>& after)
        : before_(before), after_(after), partner_(after.size(), kNone), taken_(before.size(), false) {}

    std::vector<CatalogueDifference> Run() {
        // Files of one name and one extension belong together before those of one name.
        MatchBy([](const CatalogueSymbol& entry) {
            return base::UpperCase(entry.name) + u'.' +
                   base::UpperCase(qmath::GetExtension(entry.symbol.filePath));
        });
        MatchBy([](const CatalogueSymbol& entry) { return base::UpperCase(entry.name); });
        MatchBy([](const CatalogueSymbol& entry) { return ContentKey(entry.symbol); }, true);
        std::vector<CatalogueDifference> found;
        for (std::size_t i = 0; i < before_.size(); ++i)
            if (!taken_[i])
                found.push_back({before_[i].name, u"", {}});
        for (std::size_t i = 0; i < after_.size(); ++i)
            PutNew(found, i);
        return found;
    }

private:
    static constexpr std::size_t kNone = SIZE_MAX;

    template <class KeyOf>
    void MatchBy(KeyOf keyOf, bool sameContent = false) {
        Waiting waiting;
        for (std::size_t i = before_.size(); i-- > 0;)
            if (!taken_[i])
                waiting.emplace(keyOf(before_[i]), i);
        for (std::size_t i = 0; i < after_.size(); ++i) {
            if (partner_[i] != kNone)
                continue;
            const auto [begin, end] = waiting.equal_range(keyOf(after_[i]));
            const auto match = std::find_if(begin, end, [&](const auto& entry) {
                return !sameContent || Changes(entry.second, i).IsEmpty();
            });
            if (match == end)
                continue;
            partner_[i] = match->second;
            taken_[match->second] = true;
            waiting.erase(match);
        }
    }

    SymbolDifference Changes(std::size_t before, std::size_t after) const {
        return Compare(before_[before].symbol, after_[after].symbol,
                       PrecisionOf(before_[before], after_[after]));
    }

    void PutNew(std::vector<CatalogueDifference>& found, std::size_t i) const {
        if (partner_[i] == kNone) {
            found.push_back({u"", after_[i].name, {}});
            return;
        }
        SymbolDifference changes = Changes(partner_[i], i);
        if (!changes.IsEmpty() || before_[partner_[i]].name != after_[i].name)
            found.push_back({before_[partner_[i]].name, after_[i].name, std::move(changes)});
    }

    const std::vector<CatalogueSymbol>& before_;
    const std::vector<CatalogueSymbol>& after_;
    std::vector<std::size_t> partner_; ///< the old symbol of each new one
    std::vector<bool> taken_;          ///< old symbols that have a new one
};

} // namespace

Precision PrecisionOf(const CatalogueSymbol& before, const CatalogueSymbol& after) {
    return before.isText || after.isText ? Precision::Text : Precision::Exact;
}

std::vector<CatalogueDifference> Compare(const std::vector<CatalogueSymbol>& before,
                                         const std::vector<CatalogueSymbol>& after) {
    return Matching(before, after).Run();
}

} // namespace qsymbol
