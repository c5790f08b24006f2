// placed_symbols CATALOGUEFOLDER PLACEMENTS OUT.dxf
// Writes a whole DXF file of placed symbols. Each line of PLACEMENTS names one:
//   symbol;x;y;angle in radians;factor;mirror value

#include "base/error.h"
#include "dxf/dxf_frame.h"
#include "dxf/odd_texts.h"
#include "qsymbol/export/dxf_export.h"
#include "qsymbol/files/symbol_file.h"
#include "support/test_environment.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

std::vector<std::string> Fields(const std::string& line) {
    std::vector<std::string> fields(1);
    for (const char c : line) {
        if (c == ';')
            fields.emplace_back();
        else
            fields.back() += c;
    }
    return fields;
}

void Write(const std::filesystem::path& catalogue, const std::filesystem::path& placements,
           const std::u16string& out) {
    support::TestEnvironment world;
    support::BeginDxf(world.disk, out);
    std::ifstream lines(placements);
    for (std::string line; std::getline(lines, line);) {
        const std::vector<std::string> fields = Fields(line);
        qsymbol::Symbol symbol;
        symbol.filePath = (catalogue / (fields.at(0) + ".syt")).u16string();
        qsymbol::ReadFromFile(symbol, world.OnDisk());
        symbol.etagenbreite = std::stoi(fields.at(5));
        const double factor = std::stod(fields.at(4));
        const qsymbol::SymbolPosition position{.at = {std::stoi(fields.at(1)), std::stoi(fields.at(2))},
                                               .angle = std::stod(fields.at(3))};
        if (qsymbol::AppendToDxfFile(symbol, position, factor, out, world.disk, world.codePage) != nullptr)
            throw std::runtime_error(fields.at(0) + " has no elements");
    }
    support::EndDxf(world.disk, out);
}

} // namespace

int main(int count, char** values) {
    if (count != 4 && count != 2) {
        std::cerr << "placed_symbols CATALOGUEFOLDER PLACEMENTS OUT.dxf\n"
                     "placed_symbols OUT.dxf writes texts that are hard to read\n";
        return 2;
    }
    try {
        if (count == 2) {
            support::TestEnvironment world;
            support::WriteOddTexts(world.disk, world.codePage, std::filesystem::path(values[1]).u16string());
            return 0;
        }
        Write(values[1], values[2], std::filesystem::path(values[3]).u16string());
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
