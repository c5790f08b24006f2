#include "base/utf8.h"
#include "cli/commands/command.h"
#include "cli/commands/json_output.h"
#include "cli/for_each.h"
#include "cli/shown.h"
#include "cli/symbol_files.h"
#include "cli/symbol_io.h"
#include "qsymbol/check/file_check.h"
#include "qsymbol/check/symbol_check.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace cli {

namespace {

using qsymbol::Finding;
using qsymbol::Severity;

struct CheckArguments {
    std::vector<std::string> paths;
    bool json = false;
};

/// How many files and findings there are.
struct Counts {
    std::size_t files = 0;
    std::size_t errors = 0;
    std::size_t warnings = 0;
};

const char* Word(Severity severity) {
    return severity == Severity::Error ? "error" : "warning";
}

Json FindingsAsJson(const std::u16string& path, const std::vector<Finding>& findings) {
    const char* status = "ok";
    Json list = Json::array();
    for (const Finding& finding : findings) {
        if (finding.severity == Severity::Error || status == std::string_view("ok"))
            status = Word(finding.severity);
        list.push_back({{"code", finding.code},
                        {"severity", Word(finding.severity)},
                        {"element", finding.element ? Json(*finding.element) : Json()},
                        {"number", finding.number ? Json(*finding.number) : Json()},
                        {"message", base::ToUtf8(finding.message)}});
    }
    return {{"path", base::ToUtf8(path)}, {"status", status}, {"findings", std::move(list)}};
}

/// The file's name, and under it a line for each finding.
std::string FindingsAsText(const std::u16string& path, const std::vector<Finding>& findings) {
    std::string text = Shown(path);
    text += '\n';
    for (const Finding& finding : findings) {
        text += "  ";
        text += Word(finding.severity);
        text += ' ';
        text += finding.code;
        if (finding.element)
            text.append(", element ").append(std::to_string(*finding.element));
        if (finding.number)
            text.append(" ").append(std::to_string(*finding.number));
        text.append(": ").append(Shown(finding.message)).append("\n");
    }
    return text;
}

std::string Summary(const Counts& counts) {
    std::string text = Counted(counts.files, "file");
    text.append(", ").append(Counted(counts.errors, "error"));
    text.append(", ").append(Counted(counts.warnings, "warning"));
    return text += '\n';
}

/// Collects the findings of one file after the other and puts them out.
class Report {
public:
    Report(const CheckArguments& arguments, Run& run) : run_(run), settings_(run.Settings()) {
        if (arguments.json)
            array_.emplace(run);
    }

    void Check(const SourceFile& file) {
        duplicate_ = names_.Add(file.path);
        qsymbol::SymbolCheck check;
        const Reading reading =
            ReadSymbolFile(file.path, settings_, run_.OnSystem(),
                           [&](const qsymbol::ElementRecord& element) { check.Look(element); });
        std::vector<Finding> findings;
        if (!reading.notice.empty())
            findings.push_back(qsymbol::ImportStopped(reading.notice));
        AddDuplicate(findings);
        if (reading.notice.empty())
            std::ranges::move(check.Findings(reading.symbol), std::back_inserter(findings));
        Put(file.path, findings);
    }

    void PutUnreadable(const SourceFile& file, const base::Error& error) {
        std::vector<Finding> findings = {qsymbol::Unreadable(error)};
        AddDuplicate(findings);
        Put(file.path, findings);
    }

    void Finish() {
        if (!array_)
            run_.Remark(Summary(counts_));
    }

private:
    void AddDuplicate(std::vector<Finding>& findings) {
        if (duplicate_)
            findings.push_back(*std::exchange(duplicate_, std::nullopt));
    }

    void Put(const std::u16string& path, const std::vector<Finding>& findings) {
        ++counts_.files;
        for (const Finding& finding : findings) {
            ++(finding.severity == Severity::Error ? counts_.errors : counts_.warnings);
            run_.Found();
        }
        if (array_)
            array_->Add(FindingsAsJson(path, findings));
        else if (!findings.empty())
            run_.Print(FindingsAsText(path, findings));
    }

    Run& run_;
    base::RegionalSettings settings_;
    qsymbol::FileNames names_;
    std::optional<Finding> duplicate_; ///< of the file at hand, until it is put
    Counts counts_;
    std::optional<JsonArray> array_;
};

void Check(const CheckArguments& arguments, Run& run) {
    Report report(arguments, run);
    ForEach(
        SymbolFiles(arguments.paths, run), run, [&](const SourceFile& file) { report.Check(file); },
        [&](const SourceFile& file, const base::Error& error) { report.PutUnreadable(file, error); });
    report.Finish();
}

} // namespace

void AddCheck(CLI::App& application, Run& run) {
    CLI::App& command =
        AddSubcommand(application, run, "check", "Tell what is wrong with symbol files and folders");
    const auto arguments = std::make_shared<CheckArguments>();
    command.add_option("PATH", arguments->paths, "Symbol files (syt, syb, wsc) and folders of them")
        ->required();
    command.add_flag("--json", arguments->json, "As JSON");
    command.callback([arguments, &run] { Check(*arguments, run); });
}

} // namespace cli
