#include "qsymbol/catalog/catalog_loader.h"

#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/symbol_file.h"
#include "qsymbol/model/keyed_list.h"
#include "support/caught.h"
#include "support/sample_symbols.h"
#include "support/temp_folder.h"
#include "support/test_environment.h"

#include <gmock/gmock.h>

#include <set>

namespace {

using base::RunTimeError;
using messages::FailureChoice;
using qsymbol::Symbol;
using support::Caught;
using support::CaughtFrom;
using support::Expected;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// A collection keyed by name, as the public one is.
class Catalog final : public qsymbol::CatalogSink {
public:
    qsymbol::KeyedList<Symbol> symbols;

    void Add(Symbol&& symbol) override {
        const std::u16string key = Name(symbol) + u"$";
        symbols.Append(std::move(symbol), key);
    }
    std::vector<std::u16string> Names() const {
        std::vector<std::u16string> names;
        for (std::int32_t i = 1; i <= symbols.Count(); ++i)
            names.push_back(Name(*symbols.ItemByPos(i)));
        return names;
    }
};

class CatalogLoader : public testing::Test {
protected:
    support::TestEnvironment world_;
    support::MemoryFileSystem& memory_ = world_.memory;
    Catalog catalog_;
    std::set<std::u16string> asked_; ///< names that ReadListe looked up

    void SetUp() override { memory_.folders.insert(u"plan"); }

    void PutSymbol(const std::u16string& path) {
        memory_.files[path] = ComposeBinary(support::WashRoom(), world_.InMemory());
        memory_.listing.push_back(path);
    }
    void PutBroken(const std::u16string& path) {
        memory_.files[path] = "\3";
        memory_.listing.push_back(path);
    }
    Caught Load(std::u16string_view folder = u"plan") {
        return CaughtFrom([&] { ReadKatalog(folder, catalog_, world_.InMemory()); });
    }
    bool LoadList(const std::set<std::u16string>& names, std::u16string_view folder = u"plan") {
        const qsymbol::NameList list{[&] { return static_cast<std::int32_t>(names.size()); },
                                     [&, names](const std::u16string& name) {
                                         asked_.insert(name);
                                         return names.contains(name);
                                     }};
        return ReadListe(folder, list, catalog_, world_.InMemory());
    }
};

TEST_F(CatalogLoader, LoadsBinarySymbolsInTheFoldersOrder) {
    for (const char16_t* path : {u"plan/wc.syb", u"plan/ABC.SYB", u"plan/abd.syt", u"plan/x.wsc", u"plan/syb",
                                 u"plan/a.syb2", u"plan/Tür.Syb"})
        PutSymbol(path);
    EXPECT_EQ(Load(), Caught());
    EXPECT_THAT(catalog_.Names(), ElementsAre(u"wc", u"ABC", u"Tür"));
    const Symbol& first = *catalog_.symbols.ItemByKey(u"WC$");
    EXPECT_EQ(first.filePath, u"plan/wc.syb");
    EXPECT_EQ(first.width, 300);
    EXPECT_EQ(first.elements.size(), 3U);
    EXPECT_THAT(world_.prompt.said, IsEmpty());
}

TEST_F(CatalogLoader, OneSeparatorAtTheEndGoes) {
    for (const char16_t* folder : {u"plan", u"plan\\", u"plan/"}) {
        catalog_.symbols.Clear();
        memory_.listing.clear();
        PutSymbol(u"plan/wc.syb");
        EXPECT_EQ(Load(folder), Caught());
        EXPECT_EQ(catalog_.symbols.Count(), 1);
        catalog_.symbols.Clear();
        EXPECT_FALSE(LoadList({u"WC", u"X"}, folder));
        EXPECT_FALSE(LoadList({u"WC"}, folder));
        EXPECT_TRUE(LoadList({}, folder));
    }
    Load(u"plan\\\\");
    EXPECT_EQ(catalog_.symbols.Count(), 0) << "only one";
}

TEST_F(CatalogLoader, AbortStopsAtOnce) {
    PutSymbol(u"plan/a.syb");
    PutBroken(u"plan/b.syb");
    PutSymbol(u"plan/c.syb");
    world_.prompt.failures = {messages::FailureChoice::Abort};
    EXPECT_EQ(Load(), Caught());
    EXPECT_THAT(catalog_.Names(), ElementsAre(u"a"));
    EXPECT_EQ(memory_.opened, 2) << "later files are not read";
}

TEST_F(CatalogLoader, RetryReadsTheSameFileAgain) {
    PutBroken(u"plan/a.syb");
    PutSymbol(u"plan/b.syb");
    world_.prompt.failures = {messages::FailureChoice::Retry, messages::FailureChoice::Retry};
    memory_.onOpen = [&] {
        if (world_.prompt.said.size() == 2)
            memory_.files[u"plan/a.syb"] = memory_.files[u"plan/b.syb"];
    };
    EXPECT_EQ(Load(), Caught());
    EXPECT_THAT(catalog_.Names(), ElementsAre(u"a", u"b"));
    EXPECT_EQ(world_.prompt.said.size(), 2U);
}

TEST_F(CatalogLoader, MessageFromTheResource) {
    PutBroken(u"plan/a.syb");
    world_.strings.texts = {{11105, u"Datei"}, {11106, u"ist kaputt"}};
    world_.prompt.failures = {messages::FailureChoice::Ignore};
    Load();
    EXPECT_THAT(world_.prompt.said,
                ElementsAre(u"Datei \"plan/a.syb\" ist kaputt.\r\nEinlesen hinter Dateiende"));
}

TEST_F(CatalogLoader, ASecondSymbolOfANameIsThrown) {
    PutSymbol(u"plan/wc.syb");
    PutSymbol(u"plan/WC.SYB");
    PutSymbol(u"plan/z.syb");
    EXPECT_EQ(Load(), Expected(RunTimeError::DuplicateKey));
    EXPECT_THAT(catalog_.Names(), ElementsAre(u"wc"));
    EXPECT_THAT(world_.prompt.said, IsEmpty());
}

TEST_F(CatalogLoader, OtherFailuresOfAFile) {
    PutSymbol(u"plan/a.syb");
    memory_.openError = RunTimeError::PermissionDenied;
    world_.prompt.failures = {messages::FailureChoice::Ignore};
    EXPECT_EQ(Load(), Caught());
    EXPECT_TRUE(world_.prompt.said.at(0).ends_with(u"\r\nZugriff verweigert"));
}

TEST_F(CatalogLoader, ReadingThatRunsOutOfMemoryIsAFileThatFails) {
    PutSymbol(u"plan/a.syb");
    memory_.onOpen = [] { throw std::bad_alloc(); };
    world_.prompt.failures = {messages::FailureChoice::Ignore};
    EXPECT_EQ(Load(), Caught());
    EXPECT_TRUE(world_.prompt.said.at(0).ends_with(u"\r\nNicht genügend Speicher"));
}

TEST_F(CatalogLoader, ErrorsOfTheListAreThrown) {
    PutSymbol(u"plan/a.syb");
    const qsymbol::NameList list{
        [] { return 0; }, [](const std::u16string&) -> bool { base::Raise(RunTimeError::NoSuchMember); }};
    EXPECT_EQ(CaughtFrom([&] { ReadListe(u"plan", list, catalog_, world_.InMemory()); }),
              Expected(RunTimeError::NoSuchMember));
}

TEST_F(CatalogLoader, AListIsNotAskedForAFolderThatIsNotThere) {
    const qsymbol::NameList list{[]() -> std::int32_t { base::Raise(RunTimeError::ObjectNotSet); }, nullptr};
    EXPECT_TRUE(ReadListe(u"nowhere", list, catalog_, world_.InMemory()));
}

TEST_F(CatalogLoader, OnDisk) {
    const support::TempFolder folder;
    for (const char* name : {"wc.syb", "Küche.syb", "x.syt"}) {
        Symbol symbol = support::WashRoom();
        symbol.filePath = folder.File(name);
        Write2File(symbol, world_.OnDisk());
    }
    std::filesystem::create_directory(folder.Path() / "folder.syb");
    ReadKatalog(folder.Path().u16string() + u"/", catalog_, world_.OnDisk());
    EXPECT_THAT(catalog_.Names(), UnorderedElementsAre(u"wc", u"Küche"));
}

/// The host may go to another folder afterwards.
TEST_F(CatalogLoader, SymbolsGetFullPaths) {
    const support::TempFolder folder;
    std::filesystem::create_directory(folder.Path() / "inner");
    Symbol symbol = support::WashRoom();
    symbol.filePath = folder.File("inner/wc.syb");
    Write2File(symbol, world_.OnDisk());
    const std::filesystem::path before = std::filesystem::current_path();
    const qsymbol::NameList list{[] { return 0; }, [](const std::u16string&) { return true; }};
    for (const char16_t* path : {u"inner", u"./inner/", u"inner/../inner"}) {
        for (const bool listed : {false, true}) {
            catalog_.symbols.Clear();
            std::filesystem::current_path(folder.Path());
            if (listed)
                ReadListe(path, list, catalog_, world_.OnDisk());
            else
                ReadKatalog(path, catalog_, world_.OnDisk());
            std::filesystem::current_path(before);
            ASSERT_EQ(catalog_.symbols.Count(), 1);
            EXPECT_EQ((*catalog_.symbols.ItemByPos(1)).filePath, symbol.filePath);
        }
    }
}

} // namespace
