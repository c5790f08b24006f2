#include "dxf/dxflib_collector.h"
#include "dxf/odd_texts.h"
#include "qsymbol/export/dxf_text.h"
#include "support/temp_folder.h"
#include "support/test_environment.h"

#include <gtest/gtest.h>

namespace {

/// dxflib takes blanks off both ends of a value.
std::string Trimmed(const std::string& text) {
    const std::size_t from = text.find_first_not_of(" \t");
    return from == std::string::npos ? "" : text.substr(from, text.find_last_not_of(" \t") - from + 1);
}

TEST(DxflibTexts, StayWhatTheyAreAndKeepTheReaderInStep) {
    support::TestEnvironment world;
    const support::TempFolder folder;
    support::WriteOddTexts(world.disk, world.codePage, folder.File("a.dxf"));
    support::DxflibCollector found;
    ASSERT_TRUE(found.Read((folder.Path() / "a.dxf").string()));
    ASSERT_EQ(found.entities.size(), 2 * support::OddTexts().size());
    for (std::size_t i = 0; i < support::OddTexts().size(); ++i) {
        const support::ReadEntity& text = found.entities[2 * i];
        ASSERT_EQ(text.kind, "TEXT") << i;
        EXPECT_EQ(Trimmed(text.text), Trimmed(qsymbol::DxfText(support::OddTexts()[i], world.codePage))) << i;
        EXPECT_EQ(found.entities[2 * i + 1].radius, static_cast<double>(i + 1));
    }
}

} // namespace
