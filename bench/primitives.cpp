#include "primitives.h"

#include <memory>

#include <QDataStream>
#include <QFile>
#include <QPaintEngine>

namespace vernacle::bench {

class PrimitiveEngine : public QPaintEngine {
public:
    explicit PrimitiveEngine(Primitives& primitives)
        : QPaintEngine(AllFeatures), primitives_(primitives) {}

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*changed*/) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    Type type() const override { return User; }

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode /*mode*/) override {
        Add(Primitive::Kind::Polyline).points = QPolygonF(QList<QPointF>(points, points + count));
    }
    void drawRects(const QRectF* rects, int count) override {
        for (int i = 0; i < count; ++i) {
            Add(Primitive::Kind::Rects).points << rects[i].topLeft() << rects[i].bottomRight();
        }
    }
    void drawEllipse(const QRectF& rect) override {
        Add(Primitive::Kind::Ellipse).points << rect.topLeft() << rect.bottomRight();
    }
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        Primitive& text = Add(Primitive::Kind::Text);
        text.points << at;
        text.text = item.text();
        text.font = item.font();
    }

private:
    Primitive& Add(Primitive::Kind kind) {
        Primitive primitive;
        primitive.kind = kind;
        primitive.transform = state->transform();
        primitive.pen = state->pen();
        primitive.brush = state->brush();
        primitive.smooth = (state->renderHints() & QPainter::Antialiasing) != 0;
        return primitives_.emplace_back(primitive);
    }

    Primitives& primitives_;
};

PrimitiveDevice::PrimitiveDevice(int width, int height, int dpi)
    : width_(width),
      height_(height),
      dpi_(dpi),
      engine_(std::make_unique<PrimitiveEngine>(primitives)) {}

PrimitiveDevice::~PrimitiveDevice() = default;

QPaintEngine* PrimitiveDevice::paintEngine() const {
    return engine_.get();
}

int PrimitiveDevice::metric(PaintDeviceMetric metric) const {
    switch (metric) {
    case PdmWidth:
        return width_;
    case PdmHeight:
        return height_;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dpi_;
    default:
        return QPaintDevice::metric(metric);
    }
}

void Replay(const Primitives& primitives, QPainter& painter) {
    for (const Primitive& primitive : primitives) {
        painter.setTransform(primitive.transform);
        painter.setPen(primitive.pen);
        painter.setBrush(primitive.brush);
        painter.setRenderHint(QPainter::Antialiasing, primitive.smooth);
        switch (primitive.kind) {
        case Primitive::Kind::Polyline:
            painter.drawPolyline(primitive.points);
            break;
        case Primitive::Kind::Rects:
            painter.drawRect(QRectF(primitive.points[0], primitive.points[1]));
            break;
        case Primitive::Kind::Ellipse:
            painter.drawEllipse(QRectF(primitive.points[0], primitive.points[1]));
            break;
        case Primitive::Kind::Text:
            painter.setFont(primitive.font);
            painter.drawText(primitive.points[0], primitive.text);
            break;
        }
    }
}

void Save(const Primitives& primitives, const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("cannot write the primitives");
    }
    QDataStream stream(&file);
    for (const Primitive& p : primitives) {
        stream << static_cast<int>(p.kind) << p.transform << p.pen << p.brush << p.smooth
               << p.points << p.text;
    }
}

// The font is the one reference font of all texts; to read it back for each would cost more than
// the painting.
Primitives Load(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read the primitives");
    }
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(2048);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    QDataStream stream(&file);
    Primitives primitives;
    while (!stream.atEnd()) {
        Primitive& p = primitives.emplace_back();
        int kind = 0;
        stream >> kind >> p.transform >> p.pen >> p.brush >> p.smooth >> p.points >> p.text;
        p.kind = static_cast<Primitive::Kind>(kind);
        p.font = font;
    }
    return primitives;
}

} // namespace vernacle::bench
