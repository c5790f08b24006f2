// dxflib_dump FILE.dxf
// Writes one line for each entity that dxflib finds: kind;layer;colour;x;y;x;y…

#include "dxf/dxflib_collector.h"

#include <exception>
#include <iostream>

int main(int count, char** values) {
    try {
        support::DxflibCollector found;
        if (count != 2 || !found.Read(values[1])) {
            std::cerr << "dxflib_dump FILE.dxf\n";
            return 2;
        }
        std::cout.precision(17);
        for (const support::ReadEntity& entity : found.entities) {
            std::cout << entity.kind << ';' << entity.layer << ';' << entity.colour;
            for (const std::complex<double>& point : entity.points)
                std::cout << ';' << point.real() << ';' << point.imag();
            std::cout << '\n';
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
