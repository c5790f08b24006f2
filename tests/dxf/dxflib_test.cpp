// What dxflib reads from exported symbols.

#include "dxf/dxf_frame.h"
#include "dxf/dxflib_collector.h"
#include "qsymbol/export/dxf_export.h"
#include "qsymbol/files/symbol_file.h"
#include "support/in_sources.h"
#include "support/sample_symbols.h"
#include "support/temp_folder.h"
#include "support/test_environment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace {

using qsymbol::ElementRecord;
using qsymbol::ElementType;
using qsymbol::Symbol;
using support::DxflibCollector;
using support::ReadEntity;

/// One placement for all symbols of a test.
struct Placed {
    std::complex<double> at; ///< y downwards
    double angle;
    double factor;
    std::int32_t mirror;

    std::complex<double> Map(const Symbol& symbol, qmath::Point point) const {
        // Turned by minus the angle, because y grows downwards; mirrored at the end.
        const std::complex<double> own(point.x - static_cast<double>(symbol.refX),
                                       point.y - static_cast<double>(symbol.refY));
        const std::complex<double> world = at + std::polar(factor, -angle) * own;
        return std::complex<double>(world.real(), mirror - world.imag()) / 1e5;
    }
};

class Dxflib : public testing::Test {
protected:
    void SetUp() override { support::BeginDxf(world_.disk, path_); }

    void Append(Symbol symbol, const Placed& placed) {
        symbol.etagenbreite = placed.mirror;
        const qmath::Point at{static_cast<std::int32_t>(placed.at.real()),
                              static_cast<std::int32_t>(placed.at.imag())};
        const auto left = qsymbol::AppendToDxfFile(symbol, {.at = at, .angle = placed.angle}, placed.factor,
                                                   path_, world_.disk, world_.codePage);
        ASSERT_EQ(left, nullptr);
    }

    DxflibCollector Read() {
        support::EndDxf(world_.disk, path_);
        DxflibCollector collector;
        EXPECT_TRUE(collector.Read((folder_.Path() / "a.dxf").string()));
        return collector;
    }

    support::TempFolder folder_;
    std::u16string path_ = folder_.File("a.dxf");
    support::TestEnvironment world_;
};

constexpr double kHalf = 0.501e-5; ///< coordinates were rounded to whole logical units

void ExpectPoints(const ReadEntity& entity, const Symbol& symbol, const ElementRecord& element,
                  const Placed& placed, std::size_t count) {
    ASSERT_EQ(entity.points.size(), count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::complex<double> expected = placed.Map(symbol, element.points[i % element.points.size()]);
        EXPECT_NEAR(entity.points[i].real(), expected.real(), kHalf);
        EXPECT_NEAR(entity.points[i].imag(), expected.imag(), kHalf);
    }
}

void ExpectEntity(const ReadEntity& entity, const Symbol& symbol, const ElementRecord& element,
                  const Placed& placed) {
    EXPECT_EQ(entity.layer, "SYMBOLE");
    switch (element.type) {
    case ElementType::Poly:
        EXPECT_EQ(entity.kind, "POLYLINE");
        EXPECT_EQ(entity.flags, 0);
        EXPECT_TRUE(entity.ended);
        EXPECT_TRUE(entity.flat);
        EXPECT_EQ(entity.vertexLayers, std::set<std::string>{"SYMBOLE"});
        ExpectPoints(entity, symbol, element, placed, element.points.size() + (element.lineClosed ? 1 : 0));
        break;
    case ElementType::Circle:
        EXPECT_EQ(entity.kind, "ARC");
        ExpectPoints(entity, symbol, element, placed, 1);
        EXPECT_NEAR(entity.radius, element.radius * placed.factor / 1e5, kHalf);
        EXPECT_EQ(entity.end - entity.start, 360);
        break;
    case ElementType::Arc: {
        EXPECT_EQ(entity.kind, "ARC");
        ExpectPoints(entity, symbol, element, placed, 1);
        const auto arm = [&](std::size_t i) {
            return placed.Map(symbol, element.points[i]) - placed.Map(symbol, element.points[0]);
        };
        EXPECT_NEAR(entity.radius, std::abs(arm(1)), 4 * kHalf);
        const auto near = [&](double degrees, std::complex<double> direction) {
            const double radians = degrees * std::acos(-1.0) / 180;
            EXPECT_LT(std::abs(std::polar(std::abs(direction), radians) - direction), 4 * kHalf);
        };
        near(entity.start, arm(1));
        near(entity.end, arm(2));
        break;
    }
    default:
        EXPECT_EQ(entity.kind, "TEXT");
        ExpectPoints(entity, symbol, element, placed, 1);
        EXPECT_NEAR(entity.height, std::round(element.font->size) / 30, 1e-12);
        break;
    }
}

TEST_F(Dxflib, ReadsEverySymbolOfTheCatalogue) {
    const Placed placed{.at = {700000, 1200000}, .angle = 0.7, .factor = 1.3, .mirror = 2000000};
    std::vector<Symbol> symbols;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(support::InSources("samples/katalog"))) {
        if (entry.path().extension() != ".syt")
            continue;
        Symbol& symbol = symbols.emplace_back();
        symbol.filePath = entry.path().u16string();
        qsymbol::ReadFromFile(symbol, world_.OnDisk());
        Append(symbol, placed);
    }
    ASSERT_FALSE(symbols.empty());

    const DxflibCollector found = Read();
    EXPECT_NE(std::find(found.layers.begin(), found.layers.end(), "SYMBOLE"), found.layers.end());
    std::size_t next = 0;
    for (const Symbol& symbol : symbols) {
        for (const ElementRecord& element : symbol.elements) {
            ASSERT_LT(next, found.entities.size());
            ExpectEntity(found.entities[next++], symbol, element, placed);
            ASSERT_FALSE(HasFailure()) << symbol.elements.size() << " elements, entity " << next;
        }
    }
    EXPECT_EQ(next, found.entities.size());
}

TEST_F(Dxflib, ReadsColoursTextsAndAngles) {
    Symbol symbol = support::WashRoom();
    symbol.elements[0].mainColor = 0x0000FF; // red
    symbol.elements[1].mainColor = 0x030201; // no number has it
    symbol.elements[2].mainColor = 0x008000; // green 128
    symbol.elements[2].text = u"Küche 5 m²";
    symbol.elements[2].textAngle = std::acos(-1.0) / 4;
    Append(symbol, {.at = {0, 0}, .angle = std::acos(-1.0) / 2, .factor = 1, .mirror = 0});
    const DxflibCollector found = Read();
    ASSERT_EQ(found.entities.size(), 3U);
    EXPECT_EQ(found.entities[0].colour, 1);
    EXPECT_EQ(found.entities[1].colour, 7);
    EXPECT_EQ(found.entities[2].colour, 14);
    EXPECT_EQ(found.entities[2].text, "K\xFC"
                                      "che 5 m\xB2");
    // dxflib turns a text's angle into radians.
    EXPECT_NEAR(found.entities[2].angle, 3 * std::acos(-1.0) / 4, 1e-12);
}

} // namespace
