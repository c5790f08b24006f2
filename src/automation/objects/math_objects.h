#pragma once

#include "com/com_ptr.h"
#include "qmath/point.h"
#include "qmath/rect.h"

#include <QMath.h>

#include <span>

/// Objects of the sibling library QMath, from its registered classes or, failing that, from the QMath.dll
/// beside this one. Errors of the creation are passed on.
namespace math_objects {

com::ComPtr<_CPt> NewPoint(const qmath::Point& point);

/// A new list of new points.
com::ComPtr<_CPtList> NewPointList(std::span<const qmath::Point> points);

com::ComPtr<_CRect> NewRect(const qmath::Rect& rect);

/// A transformation with offsets of 0.
com::ComPtr<_CTrans> NewTrans(double scale);

/// The settings that all components share.
com::ComPtr<_CSettings> Settings();

} // namespace math_objects
