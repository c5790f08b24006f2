#include "golden/com_catalogue.h"

#include "support/basic_collection.h"
#include "support/text.h"

#include <algorithm>

namespace golden {

using support::Bstr;
using support::Dispatch;
using support::Failure;
using support::Narrow;
using support::Outcome;
using support::Ref;
using support::Value;
using support::Widen;

Failure LoadCatalogue(const Step& step, Road road, const std::wstring& path, Lines& outputs) {
    const Ref<_CSymbolColl> symbols = support::Create<CSymbolColl, _CSymbolColl>();
    const Dispatch late(symbols);
    const bool isLate = road == Road::LateBound;
    Failure failure;
    if (step.words[0] == "katalog") {
        failure =
            isLate ? late.Call(L"ReadKatalog", {path}).failure : Outcome(symbols->ReadKatalog(Bstr(path)));
    } else {
        std::vector<std::wstring> keys;
        const std::wstring list = Widen(step.words.at(2));
        for (std::size_t at = 0; at < list.size();) {
            const std::size_t end = std::min(list.find(L',', at), list.size());
            if (end > at)
                keys.push_back(list.substr(at, end - at));
            at = end + 1;
        }
        const Ref<support::BasicCollection> names = support::BasicCollection::Create(keys);
        VARIANT_BOOL loaded = VARIANT_FALSE;
        if (isLate) {
            const support::Answer answer =
                late.Call(L"ReadListe", {path, Value(static_cast<IDispatch*>(names.Get()))});
            failure = answer.failure;
            if (failure == Failure{})
                loaded = answer.value.Bool() ? VARIANT_TRUE : VARIANT_FALSE;
        } else {
            failure = Outcome(symbols->ReadListe(Bstr(path), names.Get(), &loaded));
        }
        if (failure == Failure{})
            outputs.emplace_back(loaded != VARIANT_FALSE ? "yes" : "no");
    }
    LONG count = 0;
    EXPECT_OK(symbols->get_Count(&count));
    Lines names;
    for (LONG i = 1; i <= count; ++i) {
        Ref<_CSymbol> symbol;
        EXPECT_OK(symbols->get_ItemByPos(i, symbol.Put()));
        names.push_back(Narrow(support::NameOf(symbol.Get())));
    }
    std::sort(names.begin(), names.end());
    outputs.insert(outputs.end(), names.begin(), names.end());
    return failure;
}

} // namespace golden
