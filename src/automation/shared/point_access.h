#pragma once

#include "com/com_ptr.h"
#include "qmath/point.h"
#include "qmath/rect.h"

#include <QMath.h>

#include <vector>

// The caller holds the objects: what a host does in one of its own may let go of it.

/// The coordinates of any CPt, also of a foreign implementation. Error 91 for Nothing.
qmath::Point GetPoint(_CPt* pt);

void SetPoint(_CPt* pt, const qmath::Point& value);

/// The coordinates of all points of any CPtList, in order. Error 91 for Nothing.
std::vector<qmath::Point> GetPoints(_CPtList* list);

/// The edges of any CRect. Error 91 for Nothing.
qmath::Rect GetRect(_CRect* rect);

void SetRect(_CRect& rect, const qmath::Rect& value);
