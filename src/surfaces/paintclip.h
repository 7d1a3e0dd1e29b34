// Cuts what is painted to a rectangle that is a little more than what is seen: painters take long
// over what a damaged design asks for far away, and lose it beyond what their numbers hold. What
// lies within is left as it is, to the last bit.
#pragma once

#include <vector>

#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>

namespace vernacle {

bool IsWithin(const QRectF& rectangle, QPointF point);
bool IsWithin(const QRectF& rectangle, const QPolygonF& points);

bool IsFinite(QPointF point);

// A box with its sides drawn in to those of the rectangle; one beside it lies on a side of it then,
// without width or height.
QRectF Clamped(const QRectF& box, const QRectF& rectangle);

// The parts of a polyline that are within, each as long as it goes on unbroken.
std::vector<QPolygonF> PartsWithin(const QPolygonF& line, const QRectF& rectangle);

// The arcs of a circle that are within, as polylines that look like them.
std::vector<QPolygonF> ArcsWithin(QPointF centre, double radius, const QRectF& rectangle);

// What a pen covers within along a line, for pens so wide that their outlines reach far away.
// To be filled where the winding is not 0.
QPainterPath BandWithin(const QPainterPath& line, const QPen& pen, const QRectF& rectangle);

} // namespace vernacle
