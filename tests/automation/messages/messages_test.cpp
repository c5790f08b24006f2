#include "support/automation_test.h"
#include "support/host_program.h"
#include "support/text.h"

#include <gmock/gmock.h>

// The texts of the library's errors come from a resource library; one is opened once in a process, so each
// case runs in a host program of its own.

namespace {

using support::HostProgram;
using support::Narrow;
using testing::ElementsAre;

class Messages : public support::AutomationTest {};

TEST_F(Messages, AreBuiltInWithoutAResourceLibrary) {
    EXPECT_THAT(HostProgram(L"Planer.exe").Run(L"messages"),
                ElementsAre("Keine gültige Symboldatei.", "Kopfzeile fehlerhaft.",
                            "Keine gültige Extension für eine Symboldatei."));
}

TEST_F(Messages, ComeFromTheResourceLibraryFirst) {
    const HostProgram host(L"Planer.exe");
    host.AddResources(L"full");
    EXPECT_THAT(host.Run(L"messages"),
                ElementsAre("Das ist kein Symbol.", "Kopf kaputt.", "So darf kein Symbol heißen."));
}

TEST_F(Messages, AnEmptyOrMissingStringLeavesTheBuiltInText) {
    const HostProgram host(L"Planer.exe");
    host.AddResources(L"partial");
    EXPECT_THAT(host.Run(L"messages"), ElementsAre("Nur dies.", "Kopfzeile fehlerhaft.",
                                                   "Keine gültige Extension für eine Symboldatei."));
}

TEST_F(Messages, TheResourceLibraryIsLookedForOnce) {
    const HostProgram host(L"Planer.exe");
    host.AddResources(L"full", L"später.dll");
    const std::vector<std::string> lines = host.Run(L"rename");
    ASSERT_EQ(lines.size(), 9U);
    for (std::size_t i = 0; i < lines.size(); i += 3)
        EXPECT_EQ(lines[i], "Keine gültige Symboldatei.") << i;
}

TEST_F(Messages, ABrokenResourceLibraryIsLikeNone) {
    const HostProgram host(L"Planer.exe");
    support::WriteBytes(host.Folder() / L"QRes.dll", "kein Programm");
    EXPECT_THAT(host.Run(L"messages"), testing::Contains("Kopfzeile fehlerhaft."));
}

/// What a catalogue says about a file that is no symbol.
class CatalogueMessages : public Messages {
protected:
    static std::vector<std::string> BoxOf(const HostProgram& host) {
        support::WriteBytes(host.Folder() / L"Müll.syb", std::string("\x03\0xyz", 5));
        return host.Run(L"catalogue");
    }
    static std::string Broken(const HostProgram& host) { return Narrow(host.Folder() / L"Müll.syb"); }
};

TEST_F(CatalogueMessages, AreBuiltIn) {
    const HostProgram host(L"Planer.exe");
    EXPECT_THAT(BoxOf(host),
                ElementsAre("Planer", "Das Symbol \"" + Broken(host) + "\" konnte nicht geladen werden.",
                            "Keine gültige Symboldatei."));
}

TEST_F(CatalogueMessages, ComeFromTheResourceLibrary) {
    const HostProgram host(L"Planer 2.0.exe");
    host.AddResources(L"full");
    EXPECT_THAT(BoxOf(host), ElementsAre("Planer 2.0", "Leider war \"" + Broken(host) + "\" nicht zu laden.",
                                         "Das ist kein Symbol."));
}

TEST_F(CatalogueMessages, NeedTheFirstHalfOfTheSentence) {
    const HostProgram host(L"Planer.exe");
    host.AddResources(L"partial");
    EXPECT_THAT(BoxOf(host),
                ElementsAre("Planer", "Das Symbol \"" + Broken(host) + "\" konnte nicht geladen werden.",
                            "Nur dies."));
}

TEST_F(CatalogueMessages, CarryTheDescriptionOfTheProgram) {
    const HostProgram host(L"Planer.exe", L"automation_host_titled.exe");
    EXPECT_THAT(BoxOf(host), ElementsAre("Grundriß-Zeichner", testing::_, testing::_));
}

} // namespace
