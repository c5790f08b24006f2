#include "bench/plan_symbols.h"

#include <cstdio>
#include <cstdlib>

namespace bench {

using qsymbol::ElementRecord;
using qsymbol::ElementType;

namespace {

/// Numbers that look random and are the same in every run.
class Numbers {
public:
    explicit Numbers(std::uint32_t seed) : state_(seed * 2654435761U + 1) {}

    std::int32_t Below(std::int32_t limit) {
        state_ = state_ * 1664525U + 1013904223U;
        return static_cast<std::int32_t>((state_ >> 8) % static_cast<std::uint32_t>(limit));
    }
    qmath::Point Point() {
        const std::int32_t x = Below(500000) - 50000;
        return {x, Below(500000) - 50000};
    }

private:
    std::uint32_t state_;
};

ElementRecord Element(Numbers& numbers) {
    ElementRecord element;
    element.mainColor = numbers.Below(0x1000000);
    element.lineWidth = numbers.Below(100);
    const std::int32_t kind = numbers.Below(10);
    std::int32_t points = 1;
    if (kind < 6) {
        element.type = ElementType::Poly;
        element.lineClosed = kind < 3;
        points = 3 + numbers.Below(18);
    } else if (kind < 8) {
        element.type = kind == 6 ? ElementType::Circle : ElementType::Arc;
        element.radius = 1 + numbers.Below(100000);
        points = kind == 6 ? 1 : 3;
    } else {
        element.type = ElementType::Text;
        element.text = u"Küche " + std::u16string(static_cast<std::size_t>(numbers.Below(9)), u'x');
        element.font.emplace();
    }
    for (std::int32_t i = 0; i < points; ++i)
        element.points.push_back(numbers.Point());
    return element;
}

} // namespace

qsymbol::Symbol PlanSymbol(std::size_t elements, std::uint32_t seed) {
    Numbers numbers(seed);
    qsymbol::Symbol symbol;
    symbol.width = 500000;
    symbol.height = 500000;
    for (std::size_t i = 0; i < elements; ++i)
        symbol.elements.push_back(Element(numbers));
    return symbol;
}

messages::FailureChoice Silence::AskAbortRetryIgnore(std::u16string_view) {
    // A file that does not read would make the measurement worthless.
    std::fputs("a file of the benchmark could not be read\n", stderr);
    std::exit(1);
}

} // namespace bench
