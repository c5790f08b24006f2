#include "host/scenarios.h"
#include "support/automation_test.h"
#include "support/handle_count.h"
#include "support/host_font.h"
#include "support/picture_box.h"
#include "support/servers.h"
#include "support/shapes.h"
#include "support/temp_folder.h"
#include "support/text.h"

#include <objbase.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <latch>
#include <sstream>
#include <thread>

namespace {

using support::Dispatch;
using support::Ref;
using support::Value;
using Clock = std::chrono::steady_clock;

constexpr int kThreads = 8;
constexpr int kGenerations = 3;

/// All that a thread sees of its symbol. Another thread draws in another size, at another angle, with more
/// points; anything of that would show.
struct Seen {
    std::vector<std::uint32_t> pixels;
    std::string figures;

    bool operator==(const Seen&) const = default;
};

std::vector<support::ElementSpec> Elements(int number) {
    support::ElementSpec outline{
        .type = symPoly, .lineWidth = 10, .closed = true, .fillColor = 0xFF << number};
    for (int i = 0; i < 4 + 30 * number; ++i)
        outline.points.push_back({(i * 37) % 500 - 250, (i * i * 11) % 400 - 200});
    return {outline,
            {.type = symArc, .points = {{0, 0}, {300, 0}, {0, 300}}, .mainColor = number, .radius = 300},
            {.type = symText, .points = {{0, 0}}, .text = L"T" + std::to_wstring(number)},
            {.type = symText, .points = {{90, 40}}, .text = L"F" + std::to_wstring(number)}};
}

/// Wine's standard fonts are not made for several threads: without any other library four threads that make some now and
/// then get one of 429496 points. There the font is an object of the host.
Ref<IFontDisp> Font(int number) {
    const support::FontSpec spec{.size = 6 + 3 * number, .bold = number % 2 == 0};
    return support::RunsUnderWine() ? support::HostFont::Create(spec) : support::NewFont(spec);
}

/// The elements, with a font for the last one, of which all that the library hands on is compared.
Ref<_CSymbol> Symbol(int number) {
    const Ref<_CSymElementColl> elements = support::NewElements(Elements(number));
    Ref<_CSymElement> last;
    EXPECT_OK(elements->get_ItemByPos(4, last.Put()));
    EXPECT_OK(last->putref_TxtFont(Font(number).Get()));
    auto symbol = support::NewSymbol();
    EXPECT_OK(symbol->CreateNew(0, 0, 600, 600, elements.Get()));
    return symbol;
}

/// Tells what a thread saw that it should not have seen.
int Strays(const Seen& seen, const Seen& expected) {
    if (seen == expected)
        return 0;
    const std::string first = seen.figures == expected.figures ? "pixels" : seen.figures;
    std::printf("seen: %s\n", first.c_str());
    return 1;
}

/// One round of a host: late and early bound, drawing, hits, files and an error.
Seen Work(int number) {
    std::ostringstream figures;
    const std::wstring name = L"thread" + std::to_wstring(GetCurrentThreadId());
    const Dispatch late = Dispatch::Create(L"QSymbol.CSymbol");
    EXPECT_OK(late.Put(L"FilePath", name).status);
    figures << support::Narrow(late.Call(L"ReadFromFile").failure.description) << ' ';

    const Ref<_CSymbol> symbol = Symbol(number);
    support::Canvas canvas(64, 64);
    const Ref<support::PictureBox> box = support::PictureBox::Create(canvas);
    const Ref<_CTrans> trans = support::NewTrans(20);
    const double factor = 1 + number / 4.0;
    LONG noMark = -1;
    EXPECT_OK(symbol->Draw(640, 640, number * 0.7, box.Get(), trans.Get(), factor, factor, &noMark));

    Ref<_CRect> rect;
    EXPECT_OK(symbol->GetBoundingRect(640, 640, number * 0.7, rect.Put()));
    for (const wchar_t* const side : {L"Left", L"Top", L"Right", L"Bottom"})
        figures << Dispatch(rect.As<IDispatch>()).Get(side).value.Long() << ' ';
    VARIANT_BOOL hit = VARIANT_FALSE;
    for (const LONG pixel : {20, 32, 44}) {
        EXPECT_OK(symbol->ObjIdentByPt(640, 640, number * 0.7, trans.Get(), pixel, pixel, &hit));
        figures << hit << ' ';
    }

    wchar_t folder[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L'\\' + name + L".syt";
    EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
    EXPECT_OK(symbol->Write2File());
    figures << support::ReadBytes(path);
    EXPECT_OK(support::NewSymbolAt(path)->ReadFromFile());
    DeleteFileW(path.c_str());
    return {canvas.Pixels(), figures.str()};
}

/// A user-interface thread of a host, from its beginning to its end.
template <class Body>
std::thread UserInterface(Body body) {
    return std::thread([body] {
        EXPECT_OK(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
        body();
        CoUninitialize();
    });
}

/// Eight threads that begin at once and work until a time; the first round of each, and how many later ones
/// differ from it.
int RunGeneration(Clock::time_point end, std::array<Seen, kThreads>& first) {
    std::atomic<int> strays = 0;
    std::latch start(kThreads);
    std::vector<std::thread> threads;
    for (int number = 0; number < kThreads; ++number) {
        threads.push_back(UserInterface([&, number] {
            start.arrive_and_wait();
            first[number] = Work(number);
            while (Clock::now() < end)
                strays += Strays(Work(number), first[number]);
        }));
    }
    for (std::thread& thread : threads)
        thread.join();
    return strays;
}

/// How many handles of the system stay behind when threads that drew have ended.
long HandlesLeftBy(int threads) {
    const long before = support::HandleCount::Now().system;
    for (int i = 0; i < threads; ++i)
        UserInterface([] { Work(0); }).join();
    return support::HandleCount::Now().system - before;
}

} // namespace

void TellThreads() {
    const char* const seconds = std::getenv("QSYMBOL_STRESS_SECONDS");
    const std::chrono::duration<double> duration(seconds == nullptr ? 3 : std::atof(seconds));
    const auto part = std::chrono::duration_cast<Clock::duration>(duration / kGenerations);
    int strays = 0;
    std::array<std::array<Seen, kThreads>, kGenerations> seen;
    for (std::array<Seen, kThreads>& first : seen)
        strays += RunGeneration(Clock::now() + part, first);
    // What each thread should have seen, now that nobody else is there.
    for (int number = 0; number < kThreads; ++number) {
        const Seen alone = Work(number);
        for (const std::array<Seen, kThreads>& first : seen)
            strays += Strays(first[number], alone);
    }
    std::printf("strays: %d\n", strays);
    if (duration.count() > 0) {
        HandlesLeftBy(20); // what is made once
        std::printf("%s\n", HandlesLeftBy(60) < 30 ? "threads leave nothing" : "threads leave handles");
    }
}
