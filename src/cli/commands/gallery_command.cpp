#include "base/utf8.h"
#include "cli/commands/command.h"
#include "cli/for_each.h"
#include "cli/paths.h"
#include "cli/symbol_files.h"
#include "cli/symbol_io.h"
#include "cli/targets.h"
#include "qsymbol/gallery/gallery_page.h"

#include <algorithm>
#include <memory>

namespace cli {

namespace {

struct GalleryArguments {
    std::string folder;
    std::string page;
};

/// The last part of a path, also of one that ends with a separator.
std::u16string LastPart(std::u16string_view path) {
    constexpr std::u16string_view kSeparators = u"/\\";
    const std::size_t end = path.find_last_not_of(kSeparators);
    path = path.substr(0, end == std::u16string_view::npos ? 0 : end + 1);
    const std::size_t separator = path.find_last_of(kSeparators);
    return std::u16string(separator == std::u16string_view::npos ? path : path.substr(separator + 1));
}

void WriteGallery(const GalleryArguments& arguments, Run& run) {
    const std::u16string path = base::FromUtf8(arguments.page);
    if (const std::u16string extension = Extension(path); extension != u"html" && extension != u"htm")
        WrongUsage("gallery: the page's name must end in .html");
    Targets targets(run);
    bool claimed = false;
    run.Try(path, [&] {
        targets.Claim(path);
        claimed = true;
    });
    if (!claimed)
        return;
    const std::u16string title = LastPart(base::FromUtf8(arguments.folder));
    qsymbol::GalleryPage page(title);
    std::size_t count = 0;
    const std::vector<SourceFile> files = SymbolFiles({arguments.folder}, run.options.recursive);
    ForEach(files, run, [&](const SourceFile& source) {
        const qsymbol::Symbol symbol = ReadSymbol(source.path, run);
        std::u16string category = source.folder.empty() ? title : source.folder;
        std::replace(category.begin(), category.end(), u'\\', u'/');
        page.Add(Name(symbol), category, LastPart(source.path), symbol);
        ++count;
    });
    if (count == 0 && !files.empty())
        return; // all of them failed
    run.Try(path, [&] { targets.Write(path, page.Compose()); });
    run.Remark(std::to_string(count) + (count == 1 ? " symbol\n" : " symbols\n"));
}

} // namespace

void AddGallery(CLI::App& application, Run& run) {
    CLI::App& command =
        AddSubcommand(application, run, "gallery", "Make a catalogue one HTML page to look through");
    const auto arguments = std::make_shared<GalleryArguments>();
    command.add_option("FOLDER", arguments->folder, "The catalogue; its subfolders (-r) are the categories")
        ->required();
    command.add_option("PAGE", arguments->page, "The page to write, .html")->required();
    command.callback([arguments, &run] { WriteGallery(*arguments, run); });
}

} // namespace cli
