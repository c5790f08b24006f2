#include "base/utf8.h"
#include "cli/commands/command.h"
#include "cli/one_target.h"
#include "cli/paths.h"
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
    const std::u16string title = LastPart(base::FromUtf8(arguments.folder));
    qsymbol::GalleryPage page(title);
    WriteOneTarget({.path = path,
                    .add =
                        [&](const SourceFile& source, const qsymbol::Symbol& symbol) {
                            std::u16string category = source.folder.empty() ? title : source.folder;
                            std::replace(category.begin(), category.end(), u'\\', u'/');
                            page.Add(Name(symbol), category, LastPart(source.path), symbol);
                        },
                    .compose = [&] { return page.Compose(); },
                    .noun = "symbol"},
                   {arguments.folder}, run);
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
