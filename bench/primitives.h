// What a drawing gives to its painter, recorded, so that the same primitives can be painted again
// by nothing but a painter: the measure of what the drawing itself costs.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QFont>
#include <QPaintDevice>
#include <QPainter>
#include <QPolygonF>

namespace vernacle::bench {

struct Primitive {
    enum class Kind { Polyline, Rects, Ellipse, Text };

    Kind kind = Kind::Polyline;
    QTransform transform;
    QPen pen;
    QBrush brush;
    bool smooth = false;
    QPolygonF points; // a polyline's; corners of a rectangle; position of a text
    QString text;
    QFont font;
};

using Primitives = std::vector<Primitive>;

class PrimitiveEngine;

// A paint device that looks like a bitmap of that size and keeps what is painted on it.
class PrimitiveDevice : public QPaintDevice {
public:
    PrimitiveDevice(int width, int height, int dpi);
    ~PrimitiveDevice() override;

    QPaintEngine* paintEngine() const override;
    Primitives primitives;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    int width_;
    int height_;
    int dpi_;
    std::unique_ptr<PrimitiveEngine> engine_;
};

void Replay(const Primitives& primitives, QPainter& painter);

void Save(const Primitives& primitives, const std::string& path);
Primitives Load(const std::string& path);

} // namespace vernacle::bench
