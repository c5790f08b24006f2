#pragma once

#include "qsymbol/catalog/catalog_loader.h"

#include <windows.h>

#include <oaidl.h>

/// A host's collection as a list of names, which holds it.
///
/// One with `Exists(key)`, as a scripting dictionary has it, is asked that and stays unchanged; any other is
/// asked for `Item(key)`. An error of either means that the key is not there. Nothing is error 91, but only
/// when the list is asked at all.
qsymbol::NameList NameListOf(IDispatch* collection);
