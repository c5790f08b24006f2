#pragma once

#include "com/com_ptr.h"
#include "qsymbol/model/font_record.h"

#include <windows.h>

#include <olectl.h>

/// Name, size and the four flags of a standard font object. Error 91 for Nothing.
qsymbol::FontRecord GetFont(IFontDisp* font);

/// A new standard font object. It may round its size to pixels and replace a name that is not installed.
com::ComPtr<IFontDisp> NewStdFont(const qsymbol::FontRecord& record);
