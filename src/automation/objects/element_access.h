#pragma once

#include "com/com_ptr.h"
#include "qsymbol/model/element_record.h"

#include <QSymbol.h>

// Reading public element objects; any implementation of the interface will do. The caller holds them.

/// All plain values of an element; points and font stay empty.
qsymbol::ElementRecord GetElementValues(_CSymElement& element);

/// The element's own list or font object; empty for Nothing.
com::ComPtr<_CPtList> ElementPoints(_CSymElement& element);
com::ComPtr<IFontDisp> ElementFont(_CSymElement& element);

/// An element as drawing needs it: whatever it holds, also without points or font.
qsymbol::ElementRecord ToDrawing(_CSymElement& element);

/// The compact record of an element. Undefined elements give a record at its start values, a text without a
/// font gets the standard one. Error 91 without a point list, 9 with an empty one.
qsymbol::ElementRecord ToRecord(_CSymElement& element);
