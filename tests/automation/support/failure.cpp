#include "support/failure.h"

#include "support/bstr.h"
#include "support/ref.h"
#include "support/text.h"

#include <oleauto.h>

#include <iomanip>
#include <map>

namespace support {

namespace {

bool g_throughProxies = false;

} // namespace

void ExpectProxies() {
    g_throughProxies = true;
}

std::ostream& operator<<(std::ostream& out, const Failure& failure) {
    const auto flags = out.flags();
    out << "0x" << std::hex << std::uppercase << std::setw(8) << std::setfill('0')
        << static_cast<unsigned>(failure.status);
    out.flags(flags);
    if ((static_cast<unsigned>(failure.status) & 0xFFFF0000U) == 0x800A0000U)
        out << " (error " << (static_cast<unsigned>(failure.status) & 0xFFFFU) << ")";
    return out << " from \"" << Narrow(failure.source) << "\": \"" << Narrow(failure.description) << '"';
}

Failure RunTimeError(int number, const wchar_t* source) {
    static const std::map<int, const wchar_t*> kTexts = {
        {5, L"Ungültiger Prozeduraufruf oder ungültiges Argument"},
        {6, L"Überlauf"},
        {7, L"Nicht genügend Speicher"},
        {9, L"Index außerhalb des gültigen Bereichs"},
        {13, L"Typen unverträglich"},
        {52, L"Dateiname oder -nummer falsch"},
        {53, L"Datei nicht gefunden"},
        {57, L"E/A-Fehler beim Lesen/Schreiben von Gerät"},
        {61, L"Datenträger voll"},
        {62, L"Einlesen hinter Dateiende"},
        {70, L"Zugriff verweigert"},
        {75, L"Fehler beim Zugriff auf Pfad/Datei"},
        {76, L"Pfad nicht gefunden"},
        {91, L"Objektvariable oder With-Blockvariable nicht festgelegt"},
        {438, L"Objekt unterstützt diese Eigenschaft oder Methode nicht"},
        {457, L"Dieser Schlüssel ist bereits einem Element dieser Auflistung zugeordnet"},
    };
    return {Numbered(number), source, kTexts.at(number), false};
}

Failure LibraryError(int number, const wchar_t* source) {
    static const std::map<int, const wchar_t*> kTexts = {
        {3501, L"Keine gültige Symboldatei."},
        {3502, L"Kopfzeile fehlerhaft."},
        {3503, L"Keine gültige Extension für eine Symboldatei."},
    };
    return {Numbered(number), source, kTexts.at(number), false};
}

HRESULT Throw(const Failure& failure) {
    Ref<ICreateErrorInfo> info;
    CreateErrorInfo(info.Put());
    info->SetSource(Bstr(failure.source));
    info->SetDescription(Bstr(failure.description));
    SetErrorInfo(0, info.As<IErrorInfo>().Get());
    return failure.status;
}

Failure TakeErrorInfo() {
    Failure failure;
    Ref<IErrorInfo> info;
    if (GetErrorInfo(0, info.Put()) != S_OK || !info)
        return failure;
    Bstr source;
    Bstr description;
    info->GetSource(source.Put());
    info->GetDescription(description.Put());
    failure.source = source.Text();
    failure.description = description.Text();
    return failure;
}

Failure Outcome(HRESULT status) {
    Failure failure = TakeErrorInfo();
    if (SUCCEEDED(status))
        failure = {};
    failure.status = status;
    failure.statusOnly = g_throughProxies && failure.source.empty() && failure.description.empty();
    return failure;
}

testing::AssertionResult Succeeds(const char* expression, HRESULT status) {
    if (status == S_OK)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << expression << " gave " << Outcome(status);
}

} // namespace support
