#include "support/automation_test.h"
#include "support/host_program.h"

#include <gmock/gmock.h>

// Captions come from the resource library, which is opened once in a process: each case runs in a host of
// its own.

namespace {

using support::HostProgram;
using testing::ElementsAre;

class Captions : public support::AutomationTest {};

TEST_F(Captions, AreBuiltInWithoutAResourceLibrary) {
    EXPECT_THAT(HostProgram(L"Planer.exe").Run(L"captions"),
                ElementsAre("Symbol auswählen", "Vorschau", "&Symbole:", "Alle als &JPEG speichern",
                            "Breite:", "Höhe:", "OK", "Ab&brechen", "fits"));
}

TEST_F(Captions, ComeFromTheResourceLibraryFirst) {
    const HostProgram host(L"Planer.exe");
    host.AddResources(L"full");
    EXPECT_THAT(host.Run(L"captions"),
                ElementsAre("Zeichen wählen", "Ansicht des Zeichens",
                            "&Zeichen im Katalog:", "Alle Zeichen als &Bilder in den Ordner schreiben",
                            "Breite:", "Höhe:", "OK", "Abb&rechen", "fits"));
}

TEST_F(Captions, AnEmptyOrMissingStringLeavesTheDesignedOne) {
    const HostProgram host(L"Planer.exe");
    host.AddResources(L"partial");
    EXPECT_THAT(host.Run(L"captions"),
                ElementsAre("Symbol auswählen", "Vorschau", "Nur die Liste", "Alle als &JPEG speichern",
                            "Breite:", "Höhe:", "OK", "Ab&brechen", "fits"));
}

} // namespace
