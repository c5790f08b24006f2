#include "drawing/drawing_fixture.h"
#include "drawing/host_trans.h"
#include "support/servers.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>

/// Hosts that let go of everything while the library draws on their objects or asks them.

namespace {

using drawing::HostTrans;
using support::Ref;

/// How many references others hold.
template <class T>
ULONG ReferencesOf(T* object) {
    object->AddRef();
    return object->Release();
}

/// All that a host has.
struct Objects {
    Ref<_CSymbol> symbol;
    Ref<_CSymElement> element;
    Ref<_CSymElementColl> elements;
    Ref<_CSymInput> input;
    Ref<_CSymTool> tool;
    Ref<IDispatch> box;
    Ref<HostTrans> trans;
};

struct ObjectRoad {
    const char* name;
    bool usesBox;
    bool usesTrans;
    std::function<HRESULT(const Objects&, IDispatch*, _CTrans*)> call;
};

/// Each on its object alone; what the arguments are is told, as the host's own variables are empty by then.
const ObjectRoad kObjectRoads[] = {
    {"CSymbol.Draw", true, true,
     [](const Objects& o, IDispatch* box, _CTrans* trans) {
         return o.symbol.Get()->Draw(0, 0, 0, box, trans, 1, 1, nullptr);
     }},
    {"CSymbol.Draw2PBox", true, false,
     [](const Objects& o, IDispatch* box, _CTrans*) { return o.symbol.Get()->Draw2PBox(box); }},
    {"CSymbol.ObjIdentByPt", false, true,
     [](const Objects& o, IDispatch*, _CTrans* trans) {
         VARIANT_BOOL hit = VARIANT_FALSE;
         return o.symbol.Get()->ObjIdentByPt(0, 0, 0, trans, 5, 5, &hit);
     }},
    {"CSymbol.CatchPt", false, true,
     [](const Objects& o, IDispatch*, _CTrans* trans) {
         float at[2] = {1, 2};
         LONG found[2] = {};
         VARIANT_BOOL hit = VARIANT_FALSE;
         return o.symbol.Get()->CatchPt(&at[0], &at[1], &found[0], &found[1], 0, 0, 0, trans, 5, &hit);
     }},
    {"CSymElement.Draw", true, true,
     [](const Objects& o, IDispatch* box, _CTrans* trans) { return o.element.Get()->Draw(box, trans); }},
    {"CSymElement.DrawTracker", true, true,
     [](const Objects& o, IDispatch* box, _CTrans* trans) {
         return o.element.Get()->DrawTracker(box, trans);
     }},
    {"CSymElementColl.Draw", true, true,
     [](const Objects& o, IDispatch* box, _CTrans* trans) { return o.elements.Get()->Draw(box, trans); }},
    {"CSymElementColl.DrawTracker", true, true,
     [](const Objects& o, IDispatch* box, _CTrans* trans) {
         return o.elements.Get()->DrawTracker(box, trans);
     }},
    {"CSymInput.MouseMove", true, true,
     [](const Objects& o, IDispatch* box, _CTrans* trans) {
         return o.input.Get()->MouseMove(30, 40, box, trans);
     }},
    {"CSymInput.KeyUp", true, true,
     [](const Objects& o, IDispatch* box, _CTrans* trans) {
         return o.input.Get()->KeyUp(33, 0, box, trans);
     }},
    {"CSymTool.MouseMove", true, true,
     [](const Objects& o, IDispatch* box, _CTrans* trans) {
         return o.tool.Get()->MouseMove(30, 40, box, trans);
     }},
};

class DuringACall : public drawing::DrawingTest {
protected:
    void Prepare(const ObjectRoad& road) {
        StartAgain();
        const std::string_view name = road.name;
        const auto is = [&](const char* beginning) { return name.starts_with(beginning); };
        const std::vector<support::ElementSpec> specs = {
            {.type = symPoly, .points = {{10, 10}, {200, 40}, {90, 210}}, .mainColor = drawing::kRed},
            {.type = symCircle, .points = {{120, 120}}, .mainColor = drawing::kBlue, .radius = 60}};
        objects.trans = HostTrans::Create();
        objects.box = Ref<IDispatch>(box.Get());
        const Ref<_CSymbol> symbol = support::NewSymbol(0, 0, 240, 240, specs);
        if (is("CSymbol"))
            objects.symbol = symbol;
        else if (is("CSymElementColl"))
            objects.elements = support::NewElements(specs);
        else if (is("CSymElement"))
            objects.element = support::NewElement(specs[0]);
        else if (is("CSymInput"))
            PrepareInput(symbol);
        else
            PrepareTool(symbol);
    }
    void PrepareInput(Ref<_CSymbol> symbol) {
        const auto catalogue = support::Create<CSymbolColl, _CSymbolColl>();
        EXPECT_OK(symbol->put_FilePath(support::Bstr(L"Herd.syb")));
        EXPECT_OK(catalogue->AppendRef(symbol.InOut()));
        EXPECT_OK(catalogue->GetSymInput(support::Bstr(L"Herd"), objects.input.Put()));
        EXPECT_OK(objects.input->MouseMove(3, 4, objects.box.Get(), objects.trans.Get()));
    }
    void PrepareTool(const Ref<_CSymbol>& symbol) {
        objects.tool = support::Create<CSymTool, _CSymTool>();
        EXPECT_OK(objects.tool->AddSymref(1, 0, 0, 0, symbol.Get()));
    }
    IUnknown* Called() const {
        IUnknown* const all[] = {objects.symbol.Get(), objects.element.Get(), objects.elements.Get(),
                                 objects.input.Get(), objects.tool.Get()};
        return *std::find_if(std::begin(all), std::end(all), [](IUnknown* one) { return one != nullptr; });
    }
    /// The picture after the call on the first canvas, and whether the host was asked at all.
    void Run(const ObjectRoad& road, const std::function<void(const std::string& from)>& onUse) {
        Prepare(road);
        box->OnAccess([&](const std::string&) { onUse("box"); });
        objects.trans->OnCall([&] { onUse("trans"); });
        HostTrans* const trans = objects.trans.Get();
        support::PictureBox* const surface = box.Get();
        box.Reset();
        EXPECT_OK(road.call(objects, surface, trans)) << road.name;
    }

    Objects objects;
};

TEST_F(DuringACall, TheHostMayLetGoOfEverything) {
    for (const ObjectRoad& road : kObjectRoads) {
        for (const char* const place : {"box", "trans"}) {
            if (!(*place == 'b' ? road.usesBox : road.usesTrans))
                continue;
            SCOPED_TRACE(std::string(road.name) + ", " + place);
            Run(road, [](const std::string&) {});
            const std::vector<std::uint32_t> undisturbed = drawn.Pixels();
            objects = {};
            int drops = 0;
            Run(road, [&](const std::string& from) {
                if (from != place || drops++ > 0)
                    return;
                IUnknown* const called = Called();
                IDispatch* const surface = objects.box.Get();
                HostTrans* const trans = objects.trans.Get();
                objects = {};
                ASSERT_EQ(support::QSymbolServer().CanUnloadNow(), S_FALSE) << "the called object is gone";
                EXPECT_GE(ReferencesOf(called), 1U);
                if (road.usesBox) {
                    EXPECT_GE(ReferencesOf(surface), from == "box" ? 2U : 1U); // a box at work holds itself
                }
                if (road.usesTrans) {
                    EXPECT_GE(ReferencesOf(trans), 1U);
                }
            });
            EXPECT_GT(drops, 0);
            EXPECT_TRUE(drawn.Pixels() == undisturbed);
            EXPECT_EQ(support::QSymbolServer().CanUnloadNow(), S_OK) << "somebody forgot to let go";
        }
    }
}

/// Variables that a script passes may be emptied as well.
TEST_F(DuringACall, VariablesMayBeEmptied) {
    Prepare(kObjectRoads[0]);
    support::Value surface(objects.box);
    support::Value trans(objects.trans);
    bool emptied = false;
    box->OnAccess([&](const std::string&) {
        if (std::exchange(emptied, true))
            return;
        surface = trans = support::Value();
    });
    support::PictureBox* const late = box.Get();
    HostTrans* const lateTrans = objects.trans.Get();
    box.Reset();
    objects.box.Reset();
    objects.trans.Reset();
    bool held = true;
    lateTrans->OnCall([&] { held = held && ReferencesOf(lateTrans) >= 1 && ReferencesOf(late) >= 1; });
    EXPECT_OK(support::Dispatch(objects.symbol)
                  .Call(L"Draw", {0, 0, 0.0, support::Value::Variable(surface),
                                  support::Value::Variable(trans), 1.0, 1.0})
                  .status);
    EXPECT_TRUE(emptied);
    EXPECT_TRUE(held);
    EXPECT_TRUE(support::IsDrawnOn(drawn));
}

} // namespace
