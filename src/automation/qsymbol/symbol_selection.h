#pragma once

#include <QSymbol.h>

#include <string>
#include <string_view>

/// Lets the user choose a symbol of a catalogue; `request` is "name to select+folder for pictures". The name
/// of the chosen symbol, "" for none. Errors of opening the dialog are passed on, later ones are shown.
std::u16string SelectSymbolName(_CSymbolColl& catalogue, std::u16string_view request);
