#include "base/utf8.h"
#include "cli/commands/command.h"
#include "cli/commands/drawing_units.h"
#include "cli/commands/symbols_by_name.h"
#include "cli/paths.h"
#include "cli/shown.h"
#include "cli/targets.h"
#include "qplan/export/plan_dxf.h"
#include "qplan/export/plan_svg.h"
#include "qplan/files/plan_file.h"

#include <memory>
#include <optional>

namespace cli {

namespace {

struct PlanArguments {
    std::string plan;
    std::string catalogue;
    std::string svg;
    std::string dxf;
    qsymbol::DrawingUnit unit = qsymbol::DrawingUnit::Millimetre;
};

void RequireExtension(const std::string& file, std::u16string_view extension) {
    if (!file.empty() && Extension(base::FromUtf8(file)) != extension)
        WrongUsage("plan: the file's name must end in ." + base::ToUtf8(extension));
}

void WritePlan(const PlanArguments& arguments, Run& run) {
    RequireExtension(arguments.svg, u"svg");
    RequireExtension(arguments.dxf, u"dxf");
    if (arguments.svg.empty() && arguments.dxf.empty())
        WrongUsage("plan: --svg FILE or --dxf FILE is required");
    const std::u16string path = base::FromUtf8(arguments.plan);
    run.Try(path, [&] {
        Targets targets(run);
        const auto claim = [&](const std::string& file) {
            return file.empty() ? std::nullopt : std::optional(targets.Claim(base::FromUtf8(file)));
        };
        const std::optional<Target> svg = claim(arguments.svg);
        const std::optional<Target> dxf = claim(arguments.dxf);
        qplan::Plan plan;
        plan.SetSymbols(std::make_shared<SymbolsByName>(base::FromUtf8(arguments.catalogue), run));
        qplan::ReadPlan(plan, run.OnSystem().files, path);
        if (svg)
            targets.Write(*svg, [&](const base::ByteSink& sink) { ComposePlanSvg(plan, sink); });
        if (dxf)
            targets.Write(*dxf,
                          [&](const base::ByteSink& sink) { ComposePlanDxf(plan, arguments.unit, sink); });
        run.Remark(Counted(plan.Count(), "symbol") + '\n');
    });
}

} // namespace

void AddPlan(CLI::App& application, Run& run) {
    CLI::App& command =
        AddSubcommand(application, run, "plan",
                      "Write a plan of placed symbols as an SVG picture or a complete DXF drawing");
    const auto arguments = std::make_shared<PlanArguments>();
    command.add_option("PLAN", arguments->plan, "The plan file")->required();
    command
        .add_option("CATALOGUE", arguments->catalogue, "The folder of its symbols; -r: also the subfolders")
        ->required();
    command.add_option("--svg", arguments->svg, "The picture to write")->type_name("FILE");
    command.add_option("--dxf", arguments->dxf, "The drawing to write")->type_name("FILE");
    AddUnits(command, arguments->unit);
    command.callback([arguments, &run] { WritePlan(*arguments, run); });
}

} // namespace cli
