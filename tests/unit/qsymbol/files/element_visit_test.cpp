#include "qsymbol/files/element_visit.h"

#include "qsymbol/files/symbol_file.h"
#include "support/allocation_counter.h"
#include "support/sample_symbols.h"
#include "support/test_environment.h"

#include <gtest/gtest.h>

namespace {

using namespace qsymbol;

TEST(ElementVisit, ShowsWhatReadingMakes) {
    support::TestEnvironment world;
    const FileEnvironment environment = world.InMemory();
    for (const std::u16string path : {u"a.syb", u"a.syt"}) {
        const std::string bytes = EncodeSymbol(support::EveryField(), path, environment);
        Symbol symbol;
        symbol.filePath = path;
        DecodeSymbol(symbol, bytes, environment);
        {
            const support::AllocationCounter counter;
            VisitElements(symbol, bytes, environment, [](const ElementRecord&) {});
            EXPECT_TRUE(counter.AllGivenBack()) << "the symbol's own elements are left alone";
        }
        std::vector<ElementRecord> shown;
        VisitElements(symbol, bytes, environment,
                      [&](const ElementRecord& element) { shown.push_back(element); });
        EXPECT_EQ(shown, std::vector(symbol.elements.begin(), symbol.elements.end()));
        EXPECT_FALSE(shown.empty());
    }
}

} // namespace
