#include "qsymbol/files/library_error.h"

#include "base/error.h"

namespace qsymbol {

namespace {

struct Message {
    std::int32_t resource;
    std::u16string_view german;
};

Message MessageOf(std::int32_t number) {
    switch (static_cast<LibraryError>(number)) {
    case LibraryError::NotASymbolFile: return {11102, u"Keine gültige Symboldatei."};
    case LibraryError::FaultyHeader: return {11103, u"Kopfzeile fehlerhaft."};
    case LibraryError::InvalidExtension: return {11104, u"Keine gültige Extension für eine Symboldatei."};
    }
    return {11101, u"Unbekannter Fehler"};
}

} // namespace

std::u16string GetErrorMessage(std::int32_t number, const messages::ResourceStrings& strings) {
    const Message message = MessageOf(number);
    std::u16string text = strings.LoadResString(message.resource);
    return text.empty() ? std::u16string(message.german) : text;
}

void Raise(LibraryError number, std::u16string_view source, const messages::ResourceStrings& strings) {
    const auto value = static_cast<std::int32_t>(number);
    throw base::Error(value, std::u16string(source), GetErrorMessage(value, strings));
}

} // namespace qsymbol
