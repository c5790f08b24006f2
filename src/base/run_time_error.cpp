#include "base/run_time_error.h"

namespace base {

std::u16string_view Description(RunTimeError number) {
    switch (number) {
    case RunTimeError::InvalidCall: return u"Ungültiger Prozeduraufruf oder ungültiges Argument";
    case RunTimeError::Overflow: return u"Überlauf";
    case RunTimeError::OutOfMemory: return u"Nicht genügend Speicher";
    case RunTimeError::SubscriptOutOfRange: return u"Index außerhalb des gültigen Bereichs";
    case RunTimeError::TypeMismatch: return u"Typen unverträglich";
    case RunTimeError::BadFileName: return u"Dateiname oder -nummer falsch";
    case RunTimeError::FileNotFound: return u"Datei nicht gefunden";
    case RunTimeError::DeviceIo: return u"E/A-Fehler beim Lesen/Schreiben von Gerät";
    case RunTimeError::FileExists: return u"Datei existiert bereits";
    case RunTimeError::DiskFull: return u"Datenträger voll";
    case RunTimeError::InputPastEnd: return u"Einlesen hinter Dateiende";
    case RunTimeError::PermissionDenied: return u"Zugriff verweigert";
    case RunTimeError::PathFileAccess: return u"Fehler beim Zugriff auf Pfad/Datei";
    case RunTimeError::PathNotFound: return u"Pfad nicht gefunden";
    case RunTimeError::ObjectNotSet: return u"Objektvariable oder With-Blockvariable nicht festgelegt";
    case RunTimeError::NoSuchMember: return u"Objekt unterstützt diese Eigenschaft oder Methode nicht";
    case RunTimeError::DuplicateKey:
        return u"Dieser Schlüssel ist bereits einem Element dieser Auflistung zugeordnet";
    }
    return u"Anwendungs- oder objektdefinierter Fehler";
}

} // namespace base
