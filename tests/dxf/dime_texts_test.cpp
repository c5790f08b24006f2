#include "dxf/odd_texts.h"
#include "qsymbol/export/dxf_text.h"
#include "support/temp_folder.h"
#include "support/test_environment.h"

#include <dime/Input.h>
#include <dime/Model.h>
#include <dime/State.h>
#include <dime/entities/Arc.h>
#include <dime/entities/Text.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

// dime frees what it made by new[] with delete, or not at all; that is not ours to answer for.
extern "C" const char* __asan_default_options() { // NOLINT(bugprone-reserved-identifier)
    return "alloc_dealloc_mismatch=0";
}
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:libdime";
}

namespace {

/// What dime finds: each text, and each radius as a whole number.
bool Note(const dimeState*, dimeEntity* entity, void* notes) {
    auto& found = *static_cast<std::vector<std::string>*>(notes);
    if (entity->typeId() == dimeBase::dimeTextType)
        found.emplace_back(static_cast<dimeText*>(entity)->getTextString());
    else if (entity->typeId() == dimeBase::dimeArcType)
        found.push_back(std::to_string(static_cast<int>(static_cast<dimeArc*>(entity)->getRadius())));
    else
        found.emplace_back("something else");
    return true;
}

TEST(DimeTexts, StayWhatTheyAreAndKeepTheReaderInStep) {
    support::TestEnvironment world;
    const support::TempFolder folder;
    support::WriteOddTexts(world.disk, world.codePage, folder.File("a.dxf"));
    dimeInput input;
    dimeModel model;
    ASSERT_TRUE(input.setFile((folder.Path() / "a.dxf").c_str()));
    ASSERT_TRUE(model.read(&input));
    std::vector<std::string> found;
    model.traverseEntities(Note, &found);
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < support::OddTexts().size(); ++i) {
        expected.push_back(qsymbol::DxfText(support::OddTexts()[i], world.codePage));
        expected.push_back(std::to_string(i + 1));
    }
    EXPECT_EQ(found, expected);
}

} // namespace
