#include "qsymbol/files/symbol_file.h"
#include "support/file_oracles.h"
#include "support/in_sources.h"
#include "support/temp_folder.h"
#include "support/test_environment.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <set>

namespace {

using qsymbol::ElementType;
using qsymbol::Symbol;

std::vector<std::filesystem::path> Samples() {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(support::InSources("samples/wsc")))
        if (entry.path().extension() == ".wsc")
            paths.push_back(entry.path());
    return paths;
}

TEST(WscSamples, AllAreImported) {
    support::TestEnvironment world;
    ASSERT_GE(Samples().size(), 12U);
    for (const std::filesystem::path& path : Samples()) {
        Symbol symbol;
        symbol.filePath = path.u16string();
        ASSERT_NO_THROW(ReadFromFile(symbol, world.OnDisk())) << path;
        EXPECT_THAT(world.prompt.said, testing::IsEmpty()) << path;
        EXPECT_GT(symbol.width, 0) << path;
        EXPECT_EQ(symbol.refX, 5000);
        for (const qsymbol::ElementRecord& element : symbol.elements) {
            EXPECT_NE(element.type, ElementType::Undefined) << path;
            const std::size_t count = element.points.size();
            EXPECT_TRUE(element.type == ElementType::Poly  ? count >= 2
                        : element.type == ElementType::Arc ? count == 3
                                                           : count == 1)
                << path << ' ' << count;
            for (const qmath::Point point : element.points) {
                EXPECT_TRUE(point.x >= 0 && point.x <= symbol.width && point.y >= 0 &&
                            point.y <= symbol.height)
                    << path << ' ' << point.x << ' ' << point.y;
            }
        }
        EXPECT_EQ(support::BrokenImportPromise(support::BytesOf(path)), "") << path;
    }
}

TEST(WscSamples, TogetherTheyUseEveryKeywordAndBothFormsOfAnEllipse) {
    std::set<std::string> keywords;
    for (const std::filesystem::path& path : Samples()) {
        const std::string bytes = support::BytesOf(path);
        EXPECT_TRUE(bytes.ends_with("END\r\n")) << path;
        for (std::size_t at = 0; at < bytes.size(); at = bytes.find('\n', at) + 1)
            keywords.insert(bytes.substr(at, 3));
    }
    EXPECT_THAT(keywords, testing::UnorderedElementsAre("BLT", "STR", "STF", "SFF", "FLA", "FLF", "ELL",
                                                        "EBO", "EBF", "EFL", "PIE", "PIF", "END"));
}

TEST(WscSamples, ASocketAsItWasDrawn) {
    support::TestEnvironment world;
    Symbol symbol;
    symbol.filePath = support::InSources("samples/wsc/Steckdose.wsc").u16string();
    ReadFromFile(symbol, world.OnDisk());
    ASSERT_EQ(symbol.elements.size(), 4U);
    EXPECT_EQ(symbol.width, 10000);
    const qsymbol::ElementRecord& bow = symbol.elements[0];
    EXPECT_EQ(bow.type, ElementType::Arc);
    EXPECT_EQ(bow.radius, 3000);
    EXPECT_EQ(bow.lineWidth, 200);
    EXPECT_THAT(bow.points, testing::ElementsAre(qmath::Point{5000, 6400}, qmath::Point{8000, 6400},
                                                 qmath::Point{2000, 6400}));
}

} // namespace
