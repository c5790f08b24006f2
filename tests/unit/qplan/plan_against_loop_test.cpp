#include "base/error.h"
#include "qmath/outline.h"
#include "qplan/model/own_catalogue.h"
#include "qplan/plan/plan.h"
#include "qsymbol/draw/bounds.h"
#include "qsymbol/draw/hit_test.h"
#include "qsymbol/draw/snapping.h"
#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/picture/vector_surface.h"
#include "support/affine_transformation.h"
#include "support/elements.h"
#include "support/opaque_transformation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <random>
#include <string>

/// A plan answers what a loop over its placements answers that asks each of them alone, whatever was placed, moved,
/// removed and changed before. QSYMBOL_PLAN_ROUNDS sets how many plans are compared.

namespace {

using namespace qplan;
using qsymbol::SymbolPosition;

constexpr double kPi = 3.14159265358979323846;

int Rounds() {
    const char* const wanted = std::getenv("QSYMBOL_PLAN_ROUNDS");
    return wanted == nullptr ? 70 : std::atoi(wanted);
}

/// Notes whether anything is drawn within a rectangle.
class Marks final : public qsymbol::VectorSurface {
public:
    explicit Marks(const qmath::Rect& rect) : rect_(rect) {}
    bool any = false;

private:
    static std::int32_t Whole(double at) {
        return static_cast<std::int32_t>(std::clamp(at, -2147483648.0, 2147483647.0));
    }
    /// The rectangle with half a pen around it, rather too little: its corners are round.
    qmath::Rect Widened(double pen) const {
        const double half = pen * 0.35;
        return {Whole(rect_.left - half), Whole(rect_.top - half), Whole(rect_.right + half),
                Whole(rect_.bottom + half)};
    }
    void OnPoly(std::span<const qmath::Point> points, bool, const qsymbol::Paint& paint) override {
        any |= qmath::OutlineMeets(points, Widened(paint.width));
    }
    void OnCircle(qmath::Vector centre, double radius, const qsymbol::Paint&) override {
        const double x = centre.x - std::clamp<double>(centre.x, rect_.left, rect_.right);
        const double y = centre.y - std::clamp<double>(centre.y, rect_.top, rect_.bottom);
        any |= std::hypot(x, y) < radius - 1;
    }
    void OnArc(qmath::Vector centre, double radius, double start, double sweep,
               const qsymbol::Paint&) override {
        for (int i = 0; i <= 32; ++i) {
            const double angle = start + sweep * i / 32;
            const double x = centre.x + radius * std::cos(angle);
            const double y = centre.y - radius * std::sin(angle);
            any |= x >= rect_.left && x <= rect_.right && y >= rect_.top && y <= rect_.bottom;
        }
    }
    void OnText(const qsymbol::PictureText& text) override {
        const double part = text.side == qsymbol::TextSide::Left     ? 0
                            : text.side == qsymbol::TextSide::Centre ? 0.5
                                                                     : 1;
        const double angle = text.degrees * kPi / 180;
        std::array<qmath::Point, 4> corners;
        for (std::size_t i = 0; i < 4; ++i) {
            const double along = text.width * ((i == 1 || i == 2 ? 1 : 0) - part);
            const double down = text.font->height * (i < 2 ? 0.2 : -0.8);
            corners[i] = {
                static_cast<std::int32_t>(text.baseline.x + along * std::cos(angle) + down * std::sin(angle)),
                Whole(text.baseline.y + down * std::cos(angle) - along * std::sin(angle))};
        }
        any |= !text.text.empty() && qmath::OutlineMeets(corners, rect_);
    }

    qmath::Rect rect_;
};

class Chance {
public:
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
    bool OneIn(int count) { return Below(count) == 0; }
    double Real(double from, double to) { return std::uniform_real_distribution<double>(from, to)(random_); }
    std::int32_t Around(double middle, double reach) {
        const double value = middle + Real(-reach, reach);
        return static_cast<std::int32_t>(std::clamp(value, -2147483648.0, 2147483647.0));
    }
    template <class T, std::size_t kCount>
    T One(const std::array<T, kCount>& of) {
        return of[static_cast<std::size_t>(Below(kCount))];
    }
    double Angle() {
        return OneIn(3) ? One(std::array{0.0, kPi / 2, kPi, -kPi / 2, 4e15, -1e300, 1e-9}) : Real(-7, 7);
    }

private:
    std::mt19937 random_{20240611};
};

/// One plan beside the list that it stands for.
struct Placed {
    std::int32_t id;
    std::u16string name;
    SymbolPosition position;
};

class Round {
public:
    explicit Round(Chance& chance) : chance_(chance), catalogue_(std::make_shared<OwnCatalogue>()) {
        size_ = chance_.One(std::array{50.0, 3000.0, 3000.0, 200000.0, 4e8});
        spread_ = chance_.OneIn(8) ? 2.2e9 : size_ * chance_.Real(0.1, 30);
        middle_ = chance_.OneIn(6) ? 2147480000.0 : chance_.Real(-1e6, 1e6);
        for (const char16_t* const name : kNames)
            PutSymbol(name);
        plan_.SetSymbols(catalogue_);
        for (int i = chance_.Below(160); i > 0; --i)
            Add();
    }

    void Change() {
        const int kind = chance_.Below(8);
        if (kind < 4 || loop_.empty())
            return Add();
        Placed& placed = loop_[static_cast<std::size_t>(chance_.Below(static_cast<int>(loop_.size())))];
        if (kind < 5) {
            placed.position = Position();
            plan_.Move(placed.id, placed.position);
        } else if (kind < 6) {
            plan_.RemoveById(placed.id);
            loop_.erase(loop_.begin() + (&placed - loop_.data()));
        } else {
            PutSymbol(placed.name.c_str());
        }
    }

    void Compare() {
        const std::unique_ptr<qsymbol::Transformation> map = Map();
        const View view{*map, chance_.One(std::array{1.0, 1.0, 0.0, 2.5, 0.3, -1.5})};
        const qmath::Point cursor = Cursor(*map);
        CompareHit(view, cursor);
        CompareRect(view, {cursor.x, cursor.y, chance_.Around(cursor.x, Pixels()),
                           chance_.Around(cursor.y, Pixels())});
        CompareCatch(view, static_cast<float>(cursor.x + chance_.Real(-9, 9)), static_cast<float>(cursor.y),
                     static_cast<std::int16_t>(chance_.Below(12) - 1));
        CompareExtent(view.screenFactor);
        CompareVisible(*map,
                       {cursor.x, cursor.y, chance_.Around(cursor.x, 60), chance_.Around(cursor.y, 60)});
    }

    int answers = 0;
    int hits = 0;

private:
    static constexpr std::array kNames = {u"Stuhl", u"Tisch", u"Lampe", u"Leer", u"Text", u"Ferne"};

    void PutSymbol(const char16_t* name) {
        qsymbol::Symbol symbol;
        symbol.width = chance_.Around(size_ / 2, size_ / 2);
        symbol.height = chance_.OneIn(5) ? 0 : chance_.Around(size_ / 2, size_);
        symbol.refX = chance_.Around(symbol.width / 2.0, size_);
        symbol.refY = chance_.Around(symbol.height / 2.0, chance_.OneIn(4) ? 5 * size_ : size_);
        for (int i = name == kNames[3] ? 0 : 1 + chance_.Below(4); i > 0; --i)
            symbol.elements.push_back(AnyElement());
        catalogue_->Put(name, std::move(symbol));
    }

    qsymbol::ElementRecord AnyElement() {
        const auto point = [&] {
            return qmath::Point{chance_.Around(size_ / 2, size_), chance_.Around(0, size_)};
        };
        const auto type = static_cast<qsymbol::ElementType>(chance_.Below(5));
        qsymbol::ElementRecord element = support::Element(type, {point(), point(), point()});
        element.lineWidth = chance_.Around(size_ / 50, size_ / 20);
        element.radius = chance_.Around(size_ / 3, size_ / 2);
        element.lineClosed = chance_.OneIn(2);
        element.text = std::u16string(static_cast<std::size_t>(chance_.Below(9)), u'W');
        element.textAlign = chance_.One(std::array{0, 2, 6, 24, 30});
        element.textAngle = chance_.Angle();
        element.font.emplace().size = chance_.Real(1, 80);
        return element;
    }

    SymbolPosition Position() {
        return {.at = {chance_.Around(middle_, spread_), chance_.Around(-middle_ / 3, spread_)},
                .angle = chance_.Angle()};
    }

    void Add() {
        const Placed placed{0, chance_.One(kNames), Position()};
        loop_.push_back(placed);
        loop_.back().id = plan_.Add(placed.name, placed.position);
    }

    double Pixels() { return chance_.One(std::array{0.0, 2.0, 40.0, 600.0}); }

    std::unique_ptr<qsymbol::Transformation> Map() {
        qmath::Transform plain;
        plain.SetScale(chance_.OneIn(4) ? 1 : size_ / std::exp(chance_.Real(-1, 7)));
        plain.SetOffsetX(chance_.Around(middle_, spread_));
        plain.SetOffsetY(chance_.Around(-middle_ / 3, spread_));
        switch (chance_.Below(4)) {
        case 0: return std::make_unique<support::OpaqueTransformation>(plain);
        case 1: {
            auto map = std::make_unique<support::AffineTransformation>();
            const double angle = chance_.OneIn(2) ? chance_.Angle() : 0;
            const double x = 1 / plain.Scale() * chance_.One(std::array{1.0, -1.0, 3.0});
            const double y = 1 / plain.Scale() * chance_.One(std::array{1.0, -1.0, 0.4});
            map->a = x * std::cos(angle);
            map->b = y * std::sin(angle);
            map->c = -x * std::sin(angle);
            map->d = y * std::cos(angle);
            map->atX = -1.0 * plain.OffsetX() * map->a - plain.OffsetY() * map->b;
            map->atY = -1.0 * plain.OffsetX() * map->c - plain.OffsetY() * map->d;
            map->leadsBack = !chance_.OneIn(3);
            return map;
        }
        default: return std::make_unique<qsymbol::PlainTransformation>(plain);
        }
    }

    /// Mostly near something.
    qmath::Point Cursor(const qsymbol::Transformation& map) {
        qmath::Point at{chance_.Around(0, 1000), chance_.Around(0, 1000)};
        if (!loop_.empty() && !chance_.OneIn(10)) {
            const Placed& near =
                loop_[static_cast<std::size_t>(chance_.Below(static_cast<int>(loop_.size())))];
            qmath::Point pixel = near.position.at;
            try {
                map.WorldToScreen(pixel);
                at = pixel;
            } catch (const base::Error&) { // out of range: nothing is near there
            }
        }
        return {chance_.Around(at.x, Pixels()), chance_.Around(at.y, Pixels())};
    }

    const qsymbol::Symbol& ValueOf(const Placed& placed) {
        value_ = catalogue_->Find(placed.name)->Value();
        return *value_;
    }

    /// Asks a placement alone. An error counts as no answer, and allows the plan to raise one too.
    template <class Ask>
    auto Alone(const Ask& ask) -> decltype(ask()) {
        ++answers;
        try {
            return ask();
        } catch (const base::Error&) {
            failed_ = true;
            return {};
        }
    }

    template <class Ask, class Answer>
    void Expect(const Ask& ask, const Answer& expected, const char* what) {
        try {
            const auto got = ask();
            EXPECT_EQ(got, expected) << what;
        } catch (const base::Error& error) {
            EXPECT_TRUE(failed_) << what << ": " << error.what();
        }
    }

    void CompareHit(const View& view, qmath::Point cursor) {
        failed_ = false;
        std::optional<std::int32_t> expected;
        for (auto placed = loop_.rbegin(); placed != loop_.rend() && !expected; ++placed)
            if (Alone([&] {
                    return ObjIdentByPt(ValueOf(*placed), placed->position, view.screenFactor,
                                        view.transformation, cursor);
                }))
                expected = placed->id;
        hits += expected ? 1 : 0;
        Expect([&] { return plan_.HitTest(view, cursor); }, expected, "hit");
    }

    void CompareRect(const View& view, const qmath::Rect& rect) {
        failed_ = false;
        std::vector<std::int32_t> expected;
        for (const Placed& placed : loop_)
            if (Alone([&] {
                    return ObjIdentByRect(ValueOf(placed), placed.position, view.screenFactor,
                                          view.transformation, rect);
                }))
                expected.push_back(placed.id);
        hits += expected.empty() ? 0 : 1;
        Expect([&] { return plan_.HitRect(view, rect); }, expected, "rectangle");
    }

    void CompareCatch(const View& view, float x, float y, std::int16_t range) {
        failed_ = false;
        std::array<std::int32_t, 4> expected{};
        double least = std::numeric_limits<double>::infinity();
        for (const Placed& placed : loop_) {
            const auto caught = Alone([&] {
                return qsymbol::CatchPt(ValueOf(placed), placed.position, view.screenFactor,
                                        view.transformation, x, y, range);
            });
            if (!caught)
                continue;
            const double distance =
                std::pow(caught->screen.x - double{x}, 2) + std::pow(caught->screen.y - double{y}, 2);
            if (distance <= least)
                expected = {caught->world.x, caught->world.y, caught->screen.x, caught->screen.y};
            least = std::min(least, distance);
        }
        hits += std::isfinite(least) ? 1 : 0;
        Expect(
            [&] {
                const auto caught = plan_.CatchPt(view, x, y, range).value_or(qsymbol::CaughtPoint{});
                return std::array{caught.world.x, caught.world.y, caught.screen.x, caught.screen.y};
            },
            expected, "snap");
    }

    void CompareExtent(double factor) {
        failed_ = false;
        std::optional<qmath::Rect> expected;
        for (const Placed& placed : loop_) {
            const qmath::Rect bounds =
                Alone([&] { return GetBoundingRect(ValueOf(placed), placed.position, factor); });
            const qmath::Rect last = expected.value_or(bounds);
            expected = {std::min(last.left, bounds.left), std::min(last.top, bounds.top),
                        std::max(last.right, bounds.right), std::max(last.bottom, bounds.bottom)};
        }
        bool raised = false;
        try {
            EXPECT_EQ(plan_.Extent(factor), expected);
        } catch (const base::Error&) {
            raised = true;
        }
        EXPECT_EQ(raised, failed_) << "extent";
    }

    /// Everything that leaves a mark within the pixels is among the visible.
    void CompareVisible(const qsymbol::Transformation& map, const qmath::Rect& pixels) {
        const auto [left, right] = std::minmax(pixels.left, pixels.right);
        const auto [top, bottom] = std::minmax(pixels.top, pixels.bottom);
        const std::vector<std::int32_t> visible = plan_.Visible(map, pixels);
        EXPECT_TRUE(std::is_sorted(visible.begin(), visible.end()));
        for (const Placed& placed : loop_) {
            Marks marks({left, top, right, bottom});
            failed_ = false;
            Alone([&] {
                DrawSymbol(ValueOf(placed), placed.position, marks, map, qsymbol::kUnscaled);
                return 0;
            });
            if (failed_ || !marks.any)
                continue;
            ++hits;
            EXPECT_TRUE(std::binary_search(visible.begin(), visible.end(), placed.id)) << "visible";
        }
    }

    Chance& chance_;
    std::shared_ptr<OwnCatalogue> catalogue_;
    Plan plan_;
    std::vector<Placed> loop_;
    std::shared_ptr<const qsymbol::Symbol> value_;
    bool failed_ = false;
    double size_ = 0;
    double spread_ = 0;
    double middle_ = 0;
};

TEST(PlanAgainstLoop, GivesTheSameAnswers) {
    Chance chance;
    int answers = 0;
    int hits = 0;
    for (int i = 0; i < Rounds() && !HasFailure(); ++i) {
        Round round(chance);
        for (int question = 0; question < 24; ++question) {
            for (int change = question % 4 == 0 ? 40 : 1; change > 0; --change)
                round.Change();
            round.Compare();
        }
        answers += round.answers;
        hits += round.hits;
    }
    RecordProperty("answers", answers);
    RecordProperty("hits", hits);
    EXPECT_GT(answers, Rounds() * 10000);
    EXPECT_GT(hits, Rounds() * 60); // it is about something
}

} // namespace
